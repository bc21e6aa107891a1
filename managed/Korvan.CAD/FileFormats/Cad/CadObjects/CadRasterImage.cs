using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A raster image placed in the drawing.</summary>
[CadObject("IMAGE", Subclass = "AcDbRasterImage")]
[CadBits(
    "BL ClassVersion", "3BD InsertionPoint", "3BD VectorU", "3BD VectorV", "2RD ImageSize", "BS DisplayFlags",
    "B ClippingState", "RC Brightness", "RC Contrast", "RC Fade", "2010+ B ClipMode", "BS ClippingBoundaryType",
    "ExchangeClip()", "H ImageDefReference", "H ImageDefReactorReference")]
public partial class CadRasterImage : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadRasterImage()
    {
    }

    /// <summary>Gets or sets the version of the object. Group code 90.</summary>
    [CadInt(90)]
    public int ClassVersion { get; set; }

    /// <summary>Gets or sets the lower left corner, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint InsertionPoint { get; set; } = new();

    /// <summary>Gets or sets one pixel along the lower side, in world coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint VectorU { get; set; } = new(1, 0, 0);

    /// <summary>Gets or sets one pixel along the left side, in world coordinates. Group codes 12, 22, 32.</summary>
    [Cad3DPoint(12)]
    public Cad3DPoint VectorV { get; set; } = new(0, 1, 0);

    /// <summary>Gets or sets the width and height in pixels. Group codes 13, 23.</summary>
    [Cad2DPoint(13)]
    public Cad2DPoint ImageSize { get; set; } = new(1, 1);

    /// <summary>Gets or sets the handle of the image definition in hexadecimal. Group code 340.</summary>
    [CadHandle(340, Optional = true)]
    public string ImageDefReference { get; set; } = "";

    /// <summary>Gets or sets bits: 1 shown, 2 shown when not aligned with the screen, 4 clipped, 8 transparent. Group
    /// code 70.</summary>
    [CadShort(70)]
    public short DisplayFlags { get; set; } = 7;

    /// <summary>Gets or sets whether it is clipped: 0 no, 1 yes. Group code 280.</summary>
    [CadShort(280)]
    public short ClippingState { get; set; }

    /// <summary>Gets or sets the brightness, 0 to 100. Group code 281.</summary>
    [CadShort(281)]
    public short Brightness { get; set; } = 50;

    /// <summary>Gets or sets the contrast, 0 to 100. Group code 282.</summary>
    [CadShort(282)]
    public short Contrast { get; set; } = 50;

    /// <summary>Gets or sets the fading into the background, 0 to 100. Group code 283.</summary>
    [CadShort(283)]
    public short Fade { get; set; }

    /// <summary>Gets or sets the handle of the reactor in hexadecimal. Group code 360.</summary>
    [CadHandle(360, Optional = true)]
    public string ImageDefReactorReference { get; set; } = "";

    /// <summary>Gets or sets the kind of the boundary: 1 a rectangle by two corners, 2 a polygon. Group code
    /// 71.</summary>
    [CadShort(71)]
    public short ClippingBoundaryType { get; set; } = 1;

    /// <summary>Gets the clipping boundary in pixels, from the upper left corner and half a pixel outwards. Group
    /// codes 14, 24.</summary>
    [CadList(14, Count = 91)]
    public IList<Cad2DPoint> ClipBoundaryVertices { get; } = new CheckedList<Cad2DPoint>("clip_boundary_vertices");

    /// <summary>Gets or sets which side of the boundary is shown: 0 the inside, 1 the outside. Group code
    /// 290.</summary>
    [CadShort(290, Optional = true, Since = 2010)]
    public short ClipMode { get; set; }

    private void ExchangeClip(BitExchange fields) =>
        RasterClip.Exchange(fields, ClippingBoundaryType, ClipBoundaryVertices);
}
