using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A named view.</summary>
[CadObject("VIEW", Subclass = "AcDbViewTableRecord")]
[CadBits(
    "ExchangeRecord()", "BD ViewHeight", "BD ViewWidth", "2RD ViewCenter", "3BD TargetPoint", "3BD ViewDirection",
    "BD TwistAngle", "BD LensLength", "BD FrontClippingPlane", "BD BackClippingPlane", "ExchangeMode()", "2000+ RC",
    "2007+ B = true", "2007+ RC = 1", "2007+ BD", "2007+ BD", "2007+ CMC = 250", "ExchangeFlag()",
    "2000+ ExchangeUcs()", "2007+ B", "2007+ H", "2007+ H", "2007+ H", "2000+ if _hasUcs: H", "2000+ if _hasUcs: H",
    "2007+ H")]
public partial class CadViewTableObject : CadSymbolTableGroupCodes
{
    private bool _hasUcs;

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

    // The coordinate system of the view is not kept.
    private void ExchangeUcs(BitExchange fields)
    {
        _hasUcs = fields.Bit(false);
        if (_hasUcs)
        {
            fields.Point3(new Cad3DPoint());
            fields.Point3(new Cad3DPoint());
            fields.Point3(new Cad3DPoint());
            fields.BitDouble(0);
            fields.BitShort(0);
        }
    }
}
