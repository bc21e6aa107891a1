using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A page of another file below the drawing: what PDF, DWF and DGN underlays have in common.</summary>
[CadSequence]
[CadObject("", Subclass = "AcDbUnderlayReference")]
[CadBits(
    "3BD Normal", "3BD InsertionPoint", "BD RotationAngle", "BD ScaleX", "BD ScaleY", "BD ScaleZ", "RC Flags",
    "RC Contrast", "RC Fade", "2RD[BL] ClipPoints",
    "2010+ if (Flags & UnderlayFlags.ClipInside) != 0: 2RD[BS] InnerClipPoints", "H UnderlayDefinition")]
public abstract partial class CadUnderlay : CadEntityBase
{
    internal CadUnderlay()
    {
    }

    /// <summary>Gets or sets the handle of the definition, which states the file, in hexadecimal. Group code
    /// 340.</summary>
    [CadHandle(340)]
    public string UnderlayDefinition { get; set; } = "0";

    /// <summary>Gets or sets the position of the origin of the page, in object coordinates. Group codes 10, 20,
    /// 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint InsertionPoint { get; set; } = new();

    /// <summary>Gets or sets the scale along X. Group code 41.</summary>
    [CadDouble(41)]
    public double ScaleX { get; set; } = 1;

    /// <summary>Gets or sets the scale along Y. Group code 42.</summary>
    [CadDouble(42)]
    public double ScaleY { get; set; } = 1;

    /// <summary>Gets or sets the scale along Z. Group code 43.</summary>
    [CadDouble(43)]
    public double ScaleZ { get; set; } = 1;

    /// <summary>Gets or sets the rotation, in degrees. Group code 50.</summary>
    [CadAngle(50)]
    public double RotationAngle { get; set; }

    /// <summary>Gets or sets the unit normal of the plane of the page, which sets the object coordinates. Group codes
    /// 210, 220, 230.</summary>
    [Cad3DPoint(210, Optional = true)]
    public Cad3DPoint Normal { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets how the underlay is shown. Group code 280.</summary>
    [CadInt(280)]
    public UnderlayFlags Flags { get; set; } =
        UnderlayFlags.Clipped | UnderlayFlags.On | UnderlayFlags.AdjustForBackground;

    /// <summary>Gets or sets the contrast, 20 to 100. Group code 281.</summary>
    [CadShort(281)]
    public short Contrast { get; set; } = 100;

    /// <summary>Gets or sets the fading into the background, 0 to 80. Group code 282.</summary>
    [CadShort(282)]
    public short Fade { get; set; }

    /// <summary>Gets the clipping boundary, in coordinates of the page: two opposite corners of a rectangle, or the
    /// corners of a polygon. The list is live. Group codes 11, 21.</summary>
    [CadList(11)]
    public IList<Cad2DPoint> ClipPoints { get; } = new CheckedList<Cad2DPoint>("clip_points");

    /// <summary>Gets the boundary of what is hidden while the clip is inside, in coordinates of the page. The list is
    /// live. Group codes 12, 22.</summary>
    [CadList(12, Count = 170)]
    [CadWhen("(Flags & UnderlayFlags.ClipInside) != 0")]
    public IList<Cad2DPoint> InnerClipPoints { get; } = new CheckedList<Cad2DPoint>("inner_clip_points");
}
