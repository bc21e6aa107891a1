using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A part of the screen with a view of the model.</summary>
[CadObject("VPORT", Subclass = "AcDbViewportTableRecord")]
[CadBits(
    "ExchangeRecord()", "BD ViewHeight", "ExchangeWidth()", "2RD ViewCenter", "3BD ViewTarget", "3BD ViewDirection",
    "BD ViewTwistAngle", "BD LensLength", "BD FrontClippingPlane", "BD BackClippingPlane", "ExchangeMode()",
    "2000+ RC", "2007+ B = true", "2007+ RC = 1", "2007+ BD", "2007+ BD", "2007+ CMC = 250", "2RD LowerLeft",
    "2RD UpperRight", "ExchangeFollow()", "BS CircleSides", "B = true", "B = true", "B = true", "B",
    "2RD GridSpacing", "B", "B", "BS", "BD SnapRotationAngle", "2RD SnapBasePoint", "2RD SnapSpacing", "2000+ B",
    "2000+ B = true", "2000+ ExchangeUcs()", "2007+ BS = 3", "2007+ BS = 5", "2007+ H", "2007+ H", "2007+ H",
    "2000+ H", "2000+ H")]
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
        ViewAspectRatio = ViewHeight == 0 ? ViewAspectRatio : width / ViewHeight;
    }

    private void ExchangeFollow(BitExchange fields) =>
        ViewMode = (short)((ViewMode & ~8) | (fields.Bit((ViewMode & 8) != 0) ? 8 : 0));

    // The coordinate system of the viewport is not kept.
    private static void ExchangeUcs(BitExchange fields)
    {
        fields.Point3(new Cad3DPoint());
        fields.Point3(new Cad3DPoint(1, 0, 0));
        fields.Point3(new Cad3DPoint(0, 1, 0));
        fields.BitDouble(0);
        fields.BitShort(0);
    }
}
