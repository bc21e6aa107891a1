using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A named view.</summary>
[CadObject("VIEW", Subclass = "AcDbViewTableRecord")]
[CadBits(
    "ExchangeRecord()", "BD ViewHeight", "BD ViewWidth", "2RD ViewCenter", "3BD TargetPoint", "3BD ViewDirection",
    "BD TwistAngle", "BD LensLength", "BD FrontClippingPlane", "BD BackClippingPlane", "ExchangeMode()",
    "2000+ RC RenderMode", "2007+ B UsesDefaultLights", "2007+ RC DefaultLighting", "2007+ BD Brightness",
    "2007+ BD Contrast", "2007+ CMC AmbientColorId AmbientColorValue AmbientColorName", "ExchangeFlag()",
    "2000+ B HasUcs", "2000+ if HasUcs: 3BD UcsOrigin", "2000+ if HasUcs: 3BD UcsXAxis",
    "2000+ if HasUcs: 3BD UcsYAxis", "2000+ if HasUcs: BD UcsElevation", "2000+ if HasUcs: BS UcsOrthographicType",
    "2007+ B IsCameraPlotted", "2007+ H BackgroundHandle", "2007+ H VisualStyleHandle", "2007+ H SunHandle",
    "2000+ if HasUcs: H BaseUcsHandle", "2000+ if HasUcs: H NamedUcsHandle", "2007+ H LiveSectionHandle")]
public partial class CadViewTableObject : CadSymbolTableGroupCodes
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadViewTableObject()
    {
    }

    /// <summary>Gets or sets the height of the view, in display coordinates. Group code 40.</summary>
    [CadDouble(40)]
    public double ViewHeight { get; set; } = 1;

    /// <summary>Gets or sets the centre, in display coordinates. Group codes 10, 20.</summary>
    [Cad2DPoint(10)]
    public Cad2DPoint ViewCenter { get; set; } = new();

    /// <summary>Gets or sets the width of the view, in display coordinates. Group code 41.</summary>
    [CadDouble(41)]
    public double ViewWidth { get; set; } = 1;

    /// <summary>Gets or sets the direction from the target to the eye, in world coordinates. Group codes 11, 21,
    /// 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint ViewDirection { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the point looked at, in world coordinates. Group codes 12, 22, 32.</summary>
    [Cad3DPoint(12)]
    public Cad3DPoint TargetPoint { get; set; } = new();

    /// <summary>Gets or sets the focal length in perspective. Group code 42.</summary>
    [CadDouble(42)]
    public double LensLength { get; set; } = 50;

    /// <summary>Gets or sets the front clipping plane. Group code 43.</summary>
    [CadDouble(43)]
    public double FrontClippingPlane { get; set; }

    /// <summary>Gets or sets the back clipping plane. Group code 44.</summary>
    [CadDouble(44)]
    public double BackClippingPlane { get; set; }

    /// <summary>Gets or sets the twist angle of the view, in degrees. Group code 50.</summary>
    [CadAngle(50)]
    public double TwistAngle { get; set; }

    /// <summary>Gets or sets bits: 1 perspective, 2 front and 4 back clipping. Group code 71.</summary>
    [CadShort(71)]
    public short ViewMode { get; set; }

    /// <summary>Gets or sets how the view is rendered. Group code 281.</summary>
    [CadShort(281, Optional = true, Since = 2000)]
    internal short RenderMode { get; set; }

    /// <summary>Gets or sets whether the view has a coordinate system. Group code 72.</summary>
    [CadBool(72, Optional = true, Since = 2000)]
    internal bool HasUcs { get; set; }

    /// <summary>Gets or sets whether the camera is plotted. Group code 73.</summary>
    [CadBool(73, Optional = true, Since = 2007)]
    internal bool IsCameraPlotted { get; set; }

    /// <summary>Gets or sets the origin of the coordinate system. Group codes 110, 120, 130.</summary>
    [Cad3DPoint(110, Optional = true, Since = 2000)]
    internal Cad3DPoint UcsOrigin { get; set; } = new();

    /// <summary>Gets or sets the X axis of the coordinate system. Group codes 111, 121, 131.</summary>
    [Cad3DPoint(111, Optional = true, Since = 2000)]
    internal Cad3DPoint UcsXAxis { get; set; } = new(1, 0, 0);

    /// <summary>Gets or sets the Y axis of the coordinate system. Group codes 112, 122, 132.</summary>
    [Cad3DPoint(112, Optional = true, Since = 2000)]
    internal Cad3DPoint UcsYAxis { get; set; } = new(0, 1, 0);

    /// <summary>Gets or sets the kind of an orthographic coordinate system. Group code 79.</summary>
    [CadShort(79, Optional = true, Since = 2000)]
    internal short UcsOrthographicType { get; set; }

    /// <summary>Gets or sets the elevation of the coordinate system. Group code 146.</summary>
    [CadDouble(146, Optional = true, Since = 2000)]
    internal double UcsElevation { get; set; }

    /// <summary>Gets or sets the handle of the named coordinate system. Group code 345.</summary>
    [CadHandle(345, Optional = true, Since = 2000)]
    internal string NamedUcsHandle { get; set; } = "";

    /// <summary>Gets or sets the handle of the base of an orthographic coordinate system. Group code 346.</summary>
    [CadHandle(346, Optional = true, Since = 2000)]
    internal string BaseUcsHandle { get; set; } = "";

    /// <summary>Gets or sets the handle of the background. Group code 332.</summary>
    [CadHandle(332, Optional = true, Since = 2007)]
    internal string BackgroundHandle { get; set; } = "";

    /// <summary>Gets or sets the handle of the visual style. Group code 348.</summary>
    [CadHandle(348, Optional = true, Since = 2007)]
    internal string VisualStyleHandle { get; set; } = "";

    /// <summary>Gets or sets whether the default lights are on. Group code 292.</summary>
    [CadBool(292, Optional = true, Since = 2007)]
    internal bool UsesDefaultLights { get; set; } = true;

    /// <summary>Gets or sets the kind of the default lights. Group code 282.</summary>
    [CadShort(282, Optional = true, Since = 2007)]
    internal short DefaultLighting { get; set; } = 1;

    /// <summary>Gets or sets the brightness. Group code 141.</summary>
    [CadDouble(141, Optional = true, Since = 2007)]
    internal double Brightness { get; set; }

    /// <summary>Gets or sets the contrast. Group code 142.</summary>
    [CadDouble(142, Optional = true, Since = 2007)]
    internal double Contrast { get; set; }

    /// <summary>Gets or sets the index of the ambient colour. Group code 63.</summary>
    [CadColor(63, Optional = true, Since = 2007)]
    internal short AmbientColorId { get; set; } = 250;

    /// <summary>Gets or sets the RGB value of the ambient colour, -1 for none. Group code 421.</summary>
    [CadInt(421, Optional = true, Since = 2007)]
    internal int AmbientColorValue { get; set; } = -1;

    /// <summary>Gets or sets the name of the ambient colour. Group code 431.</summary>
    [CadString(431, Optional = true, Since = 2007)]
    internal string AmbientColorName { get; set; } = "";

    /// <summary>Gets or sets the handle of the sun. Group code 361.</summary>
    [CadHandle(361, Optional = true, Since = 2007)]
    internal string SunHandle { get; set; } = "";

    /// <summary>Gets or sets the handle of the live section. Group code 334.</summary>
    [CadHandle(334, Optional = true, Since = 2007)]
    internal string LiveSectionHandle { get; set; } = "";

    // The bit of perspective and so on; front clipping at the eye is stored as its opposite.
    private void ExchangeMode(BitExchange fields)
    {
        int mode = ViewMode & 8;
        mode |= fields.Bit((ViewMode & 1) != 0) ? 1 : 0;
        mode |= fields.Bit((ViewMode & 2) != 0) ? 2 : 0;
        mode |= fields.Bit((ViewMode & 4) != 0) ? 4 : 0;
        mode |= fields.Bit((ViewMode & 16) == 0) ? 0 : 16;
        ViewMode = (short)mode;
    }

    private void ExchangeFlag(BitExchange fields) =>
        Flags = (short)((Flags & ~1) | (fields.Bit((Flags & 1) != 0) ? 1 : 0));
}
