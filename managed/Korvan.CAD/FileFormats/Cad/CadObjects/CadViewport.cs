using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A window of a paper sheet that shows the model.</summary>
[CadObject("VIEWPORT", Subclass = "AcDbViewport")]
[CadBits(
    "3BD CenterPoint", "BD Width", "BD Height", "2000+ 3BD ViewTarget", "2000+ 3BD ViewDirection",
    "2000+ BD ViewTwistAngle", "2000+ BD ViewHeight", "2000+ BD LensLength", "2000+ BD FrontClipPlaneZ",
    "2000+ BD BackClipPlaneZ", "2000+ BD SnapAngle", "2000+ 2RD ViewCenter", "2000+ 2RD SnapBase",
    "2000+ 2RD SnapSpacing", "2000+ 2RD GridSpacing", "2000+ BS CircleZoomPercent", "2007+ BS MajorGridLines",
    "2000+ H[BL] FrozenLayers", "2000+ BL StatusFlags", "2000+ T PlotStyleSheet", "2000+ RC RenderMode",
    "2000+ B UcsIconAtOrigin", "2000+ B UcsPerViewport", "2000+ 3BD UcsOrigin", "2000+ 3BD UcsXAxis",
    "2000+ 3BD UcsYAxis", "2000+ BD UcsElevation", "2000+ BS UcsOrthographicType", "2004+ BS ShadePlotMode",
    "2007+ B UsesDefaultLights", "2007+ RC DefaultLighting", "2007+ BD Brightness", "2007+ BD Contrast",
    "2007+ CMC AmbientColorId AmbientColorValue AmbientColorName", "-1997 H", "2000+ H ClippingBoundaryHandle",
    "2000-2000 H", "2000+ H NamedUcsHandle", "2000+ H BaseUcsHandle", "2007+ H BackgroundHandle",
    "2007+ H VisualStyleHandle", "2007+ H ShadePlotHandle", "2007+ H SunHandle")]
public partial class CadViewport : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadViewport()
    {
    }

    /// <summary>Gets or sets the centre, in paper coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint CenterPoint { get; set; } = new();

    /// <summary>Gets or sets the width in paper units. Group code 40.</summary>
    [CadDouble(40)]
    public double Width { get; set; }

    /// <summary>Gets or sets the height in paper units. Group code 41.</summary>
    [CadDouble(41)]
    public double Height { get; set; }

    /// <summary>Gets or sets whether it is on: 0 off, -1 on but not active, else its position in the stack. Group code
    /// 68.</summary>
    [CadShort(68)]
    public short ViewportStatus { get; set; } = 1;

    /// <summary>Gets or sets the number of the viewport; 1 is the sheet itself. Group code 69.</summary>
    [CadShort(69)]
    public short ViewportId { get; set; }

    /// <summary>Gets or sets the centre of the view, in display coordinates. Group codes 12, 22.</summary>
    [Cad2DPoint(12, Since = 2000)]
    public Cad2DPoint ViewCenter { get; set; } = new();

    /// <summary>Gets or sets the base of the snap grid. Group codes 13, 23.</summary>
    [Cad2DPoint(13, Since = 2000)]
    public Cad2DPoint SnapBase { get; set; } = new();

    /// <summary>Gets or sets the distances of the snap grid. Group codes 14, 24.</summary>
    [Cad2DPoint(14, Since = 2000)]
    public Cad2DPoint SnapSpacing { get; set; } = new(0.5, 0.5);

    /// <summary>Gets or sets the distances of the grid. Group codes 15, 25.</summary>
    [Cad2DPoint(15, Since = 2000)]
    public Cad2DPoint GridSpacing { get; set; } = new(0.5, 0.5);

    /// <summary>Gets or sets the direction from the target to the eye, in world coordinates. Group codes 16, 26,
    /// 36.</summary>
    [Cad3DPoint(16, Since = 2000)]
    public Cad3DPoint ViewDirection { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the point looked at, in world coordinates. Group codes 17, 27, 37.</summary>
    [Cad3DPoint(17, Since = 2000)]
    public Cad3DPoint ViewTarget { get; set; } = new();

    /// <summary>Gets or sets the focal length in perspective. Group code 42.</summary>
    [CadDouble(42, Since = 2000)]
    public double LensLength { get; set; } = 50;

    /// <summary>Gets or sets the front clipping plane. Group code 43.</summary>
    [CadDouble(43, Since = 2000)]
    public double FrontClipPlaneZ { get; set; }

    /// <summary>Gets or sets the back clipping plane. Group code 44.</summary>
    [CadDouble(44, Since = 2000)]
    public double BackClipPlaneZ { get; set; }

    /// <summary>Gets or sets the height of the view, in units of the model. Group code 45.</summary>
    [CadDouble(45, Since = 2000)]
    public double ViewHeight { get; set; } = 1;

    /// <summary>Gets or sets the angle of the snap grid, in degrees. Group code 50.</summary>
    [CadAngle(50, Since = 2000)]
    public double SnapAngle { get; set; }

    /// <summary>Gets or sets the twist angle of the view, in degrees. Group code 51.</summary>
    [CadAngle(51, Since = 2000)]
    public double ViewTwistAngle { get; set; }

    /// <summary>Gets or sets how finely circles are drawn. Group code 72.</summary>
    [CadShort(72, Since = 2000)]
    public short CircleZoomPercent { get; set; } = 100;

    /// <summary>Gets the handles of the layers that are frozen in this viewport, in hexadecimal. Group code
    /// 331.</summary>
    public List<string> FrozenLayers { get; } = [];

    /// <summary>Gets or sets bits: 1 perspective, 2 front and 4 back clipping, 64 UCS icon at the origin, 512
    /// grid, 16384 locked, 65536 clipped by a shape, 131072 off. Group code 90.</summary>
    [CadInt(90, Since = 2000)]
    public int StatusFlags { get; set; } = 32864;

    /// <summary>Gets or sets the handle of the entity that clips the viewport, in hexadecimal; empty for none.
    /// Group code 340.</summary>
    [CadHandle(340, Optional = true)]
    public string ClippingBoundaryHandle { get; set; } = "";

    /// <summary>Gets or sets the name of the plot style sheet. Group code 1.</summary>
    [CadString(1, Since = 2000)]
    public string PlotStyleSheet { get; set; } = "";

    /// <summary>Gets or sets how it is drawn: 0 as lines, 2 with hidden lines left out, 3 to 6 shaded. Group code
    /// 281.</summary>
    [CadShort(281, Since = 2000)]
    public short RenderMode { get; set; }

    /// <summary>Gets or sets whether each viewport has its own coordinate system. Group code 71.</summary>
    [CadShort(71, Since = 2000)]
    public short UcsPerViewport { get; set; }

    /// <summary>Gets or sets whether the coordinate system icon is at the origin. Group code 74.</summary>
    [CadShort(74, Since = 2000)]
    public short UcsIconAtOrigin { get; set; }

    /// <summary>Gets or sets the origin of the coordinate system. Group codes 110, 120, 130.</summary>
    [Cad3DPoint(110, Since = 2000)]
    public Cad3DPoint UcsOrigin { get; set; } = new();

    /// <summary>Gets or sets the X axis of the coordinate system. Group codes 111, 121, 131.</summary>
    [Cad3DPoint(111, Since = 2000)]
    public Cad3DPoint UcsXAxis { get; set; } = new(1, 0, 0);

    /// <summary>Gets or sets the Y axis of the coordinate system. Group codes 112, 122, 132.</summary>
    [Cad3DPoint(112, Since = 2000)]
    public Cad3DPoint UcsYAxis { get; set; } = new(0, 1, 0);

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

    /// <summary>Gets or sets how many lines of the grid there are from one major line to the next. Group code
    /// 61.</summary>
    [CadShort(61, Optional = true, Since = 2007)]
    internal short MajorGridLines { get; set; } = 5;

    /// <summary>Gets or sets the handle of the background. Group code 332.</summary>
    [CadHandle(332, Optional = true, Since = 2007)]
    internal string BackgroundHandle { get; set; } = "";

    /// <summary>Gets or sets how the view is plotted. Group code 170.</summary>
    [CadShort(170, Optional = true, Since = 2004)]
    internal short ShadePlotMode { get; set; }

    /// <summary>Gets or sets the handle of what the view is plotted as. Group code 333.</summary>
    [CadHandle(333, Optional = true, Since = 2007)]
    internal string ShadePlotHandle { get; set; } = "";

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

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        if (code is 331 or 341)
        {
            FrozenLayers.Add(reader.GetHandleText());
            taken = true;
        }
    }

    partial void OnExchange(ObjectExchange fields)
    {
        if (fields.Includes(2000, true))
        {
            fields.Handles(331, HandleRole.SoftPointer, FrozenLayers, fields.Count(0, FrozenLayers.Count));
        }
    }
}
