using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A part of the screen with a view of the model.</summary>
[CadObject("VPORT", Subclass = "AcDbViewportTableRecord")]
[CadBits(
    "ExchangeRecord()", "BD ViewHeight", "ExchangeWidth()", "2RD ViewCenter", "3BD ViewTarget", "3BD ViewDirection",
    "BD ViewTwistAngle", "BD LensLength", "BD FrontClippingPlane", "BD BackClippingPlane", "ExchangeMode()",
    "2000+ RC RenderMode", "2007+ B UsesDefaultLights", "2007+ RC DefaultLighting", "2007+ BD Brightness",
    "2007+ BD Contrast", "2007+ CMC AmbientColorId AmbientColorValue AmbientColorName", "2RD LowerLeft",
    "2RD UpperRight", "ExchangeFollow()", "BS CircleSides", "B ZoomsFast", "ExchangeIcon()", "B ShowsGrid",
    "2RD GridSpacing", "B SnapsToGrid", "B SnapStyle", "BS SnapPair", "BD SnapRotationAngle", "2RD SnapBasePoint",
    "2RD SnapSpacing", "2000+ B", "2000+ B HasOwnUcs", "2000+ 3BD UcsOrigin", "2000+ 3BD UcsXAxis",
    "2000+ 3BD UcsYAxis", "2000+ BD UcsElevation", "2000+ BS UcsOrthographicType", "2007+ BS GridFlags",
    "2007+ BS MajorGridLines", "2007+ H BackgroundHandle", "2007+ H VisualStyleHandle", "2007+ H SunHandle",
    "2000+ H NamedUcsHandle", "2000+ H BaseUcsHandle")]
public partial class CadVportTableObject : CadSymbolTableGroupCodes
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadVportTableObject()
    {
    }

    /// <summary>Gets or sets the lower left corner, as part of the screen. Group codes 10, 20.</summary>
    [Cad2DPoint(10)]
    public Cad2DPoint LowerLeft { get; set; } = new();

    /// <summary>Gets or sets the upper right corner, as part of the screen. Group codes 11, 21.</summary>
    [Cad2DPoint(11)]
    public Cad2DPoint UpperRight { get; set; } = new(1, 1);

    /// <summary>Gets or sets the centre of the view, in display coordinates. Group codes 12, 22.</summary>
    [Cad2DPoint(12)]
    public Cad2DPoint ViewCenter { get; set; } = new();

    /// <summary>Gets or sets the base of the snap grid. Group codes 13, 23.</summary>
    [Cad2DPoint(13)]
    public Cad2DPoint SnapBasePoint { get; set; } = new();

    /// <summary>Gets or sets the distances of the snap grid. Group codes 14, 24.</summary>
    [Cad2DPoint(14)]
    public Cad2DPoint SnapSpacing { get; set; } = new(0.5, 0.5);

    /// <summary>Gets or sets the distances of the grid. Group codes 15, 25.</summary>
    [Cad2DPoint(15)]
    public Cad2DPoint GridSpacing { get; set; } = new(0.5, 0.5);

    /// <summary>Gets or sets the direction from the target to the eye, in world coordinates. Group codes 16, 26,
    /// 36.</summary>
    [Cad3DPoint(16)]
    public Cad3DPoint ViewDirection { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the point looked at, in world coordinates. Group codes 17, 27, 37.</summary>
    [Cad3DPoint(17)]
    public Cad3DPoint ViewTarget { get; set; } = new();

    /// <summary>Gets or sets the height of the view. Group code 40.</summary>
    [CadDouble(40)]
    public double ViewHeight { get; set; } = 1;

    /// <summary>Gets or sets width to height of the view. Group code 41.</summary>
    [CadDouble(41)]
    public double ViewAspectRatio { get; set; } = 1;

    /// <summary>Gets or sets the focal length in perspective. Group code 42.</summary>
    [CadDouble(42)]
    public double LensLength { get; set; } = 50;

    /// <summary>Gets or sets the front clipping plane. Group code 43.</summary>
    [CadDouble(43)]
    public double FrontClippingPlane { get; set; }

    /// <summary>Gets or sets the back clipping plane. Group code 44.</summary>
    [CadDouble(44)]
    public double BackClippingPlane { get; set; }

    /// <summary>Gets or sets the angle of the snap grid, in degrees. Group code 50.</summary>
    [CadAngle(50)]
    public double SnapRotationAngle { get; set; }

    /// <summary>Gets or sets the twist angle of the view, in degrees. Group code 51.</summary>
    [CadAngle(51)]
    public double ViewTwistAngle { get; set; }

    /// <summary>Gets or sets bits: 1 perspective, 2 front and 4 back clipping. Group code 71.</summary>
    [CadShort(71)]
    public short ViewMode { get; set; }

    /// <summary>Gets or sets how finely circles are drawn. Group code 72.</summary>
    [CadShort(72)]
    public short CircleSides { get; set; } = 1000;

    /// <summary>Gets or sets whether views are zoomed without regeneration. Group code 73.</summary>
    [CadShort(73, Optional = true)]
    internal short ZoomsFast { get; set; } = 1;

    /// <summary>Gets or sets the flags of the icon of the coordinate system: 1 shown, 2 at the origin. Group code
    /// 74.</summary>
    [CadShort(74, Optional = true)]
    internal short UcsIcon { get; set; } = 3;

    /// <summary>Gets or sets whether the cursor snaps. Group code 75.</summary>
    [CadShort(75, Optional = true)]
    internal short SnapsToGrid { get; set; }

    /// <summary>Gets or sets whether the grid is shown. Group code 76.</summary>
    [CadShort(76, Optional = true)]
    internal short ShowsGrid { get; set; }

    /// <summary>Gets or sets the style of snapping: 1 isometric. Group code 77.</summary>
    [CadShort(77, Optional = true)]
    internal short SnapStyle { get; set; }

    /// <summary>Gets or sets the plane of isometric snapping: 0 left, 1 top, 2 right. Group code 78.</summary>
    [CadShort(78, Optional = true)]
    internal short SnapPair { get; set; }

    /// <summary>Gets or sets how the view is rendered. Group code 281.</summary>
    [CadShort(281, Optional = true, Since = 2000)]
    internal short RenderMode { get; set; }

    /// <summary>Gets or sets whether the viewport has a coordinate system of its own. Group code 65.</summary>
    [CadShort(65, Optional = true, Since = 2000)]
    internal short HasOwnUcs { get; set; } = 1;

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

    /// <summary>Gets or sets the flags of the grid. Group code 60.</summary>
    [CadShort(60, Optional = true, Since = 2007)]
    internal short GridFlags { get; set; } = 3;

    /// <summary>Gets or sets how many lines of the grid there are from one major line to the next. Group code
    /// 61.</summary>
    [CadShort(61, Optional = true, Since = 2007)]
    internal short MajorGridLines { get; set; } = 5;

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

    // Files have the width of the view, and not its ratio to the height.
    private void ExchangeWidth(BitExchange fields)
    {
        double width = fields.BitDouble(ViewHeight * ViewAspectRatio);
        ViewAspectRatio = !fields.IsReading || ViewHeight == 0 ? ViewAspectRatio : width / ViewHeight;
    }

    private void ExchangeFollow(BitExchange fields) =>
        ViewMode = (short)((ViewMode & ~8) | (fields.Bit((ViewMode & 8) != 0) ? 8 : 0));

    private void ExchangeIcon(BitExchange fields) =>
        UcsIcon = (short)((fields.Bit((UcsIcon & 1) != 0) ? 1 : 0) | (fields.Bit((UcsIcon & 2) != 0) ? 2 : 0));
}
