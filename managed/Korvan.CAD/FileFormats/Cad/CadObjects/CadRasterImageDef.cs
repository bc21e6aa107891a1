using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The definition of a raster image: the file that image entities show.</summary>
[CadObject("IMAGEDEF", Subclass = "AcDbRasterImageDef")]
[CadBits("BL ClassVersion", "2RD ImageSize", "T FileName", "B IsLoaded", "RC ResolutionUnits", "2RD PixelSize")]
public partial class CadRasterImageDef : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadRasterImageDef()
    {
    }

    /// <summary>Gets or sets the version of the object. Group code 90.</summary>
    [CadInt(90)]
    public int ClassVersion { get; set; }

    /// <summary>Gets or sets the path of the file, as the drawing states it. Group code 1.</summary>
    [CadString(1)]
    public string FileName { get; set; } = "";

    /// <summary>Gets or sets the width and height in pixels. Group codes 10, 20.</summary>
    [Cad2DPoint(10)]
    public Cad2DPoint ImageSize { get; set; } = new();

    /// <summary>Gets or sets the default size of a pixel, in drawing units. Group codes 11, 21.</summary>
    [Cad2DPoint(11)]
    public Cad2DPoint PixelSize { get; set; } = new(1, 1);

    /// <summary>Gets or sets whether the image is shown: 0 no, 1 yes. Group code 280.</summary>
    [CadShort(280)]
    public short IsLoaded { get; set; } = 1;

    /// <summary>Gets or sets the unit of resolution: 0 none, 2 centimetre, 5 inch. Group code 281.</summary>
    [CadShort(281)]
    public short ResolutionUnits { get; set; }
}
