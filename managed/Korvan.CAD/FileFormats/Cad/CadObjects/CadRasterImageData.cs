using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>How the raster images of a drawing are shown.</summary>
[CadObject("RASTERVARIABLES", Subclass = "AcDbRasterVariables")]
[CadBits("BL Version", "BS FrameMode", "BS Quality", "BS Units")]
public partial class CadRasterImageData : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadRasterImageData()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int Version { get; set; }

    /// <summary>Gets or sets whether frames are shown: 0 no, 1 yes. Group code 70.</summary>
    [CadShort(70)]
    public short FrameMode { get; set; } = 1;

    /// <summary>Gets or sets the quality of the display: 0 draft, 1 high. Group code 71.</summary>
    [CadShort(71)]
    public short Quality { get; set; } = 1;

    /// <summary>Gets or sets the unit of images: 0 none, 1 millimetre, 2 centimetre, 3 metre, 4 kilometre, 5 inch, 6
    /// foot, 7 yard, 8 mile. Group code 72.</summary>
    [CadShort(72)]
    public short Units { get; set; }
}
