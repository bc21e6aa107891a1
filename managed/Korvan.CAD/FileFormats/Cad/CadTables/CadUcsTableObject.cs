using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A named coordinate system.</summary>
[CadObject("UCS", Subclass = "AcDbUCSTableRecord")]
[CadBits(
    "ExchangeRecord()", "3BD Origin", "3BD XDirection", "3BD YDirection", "2000+ BD", "2000+ BS",
    "2000+ ExchangeOrthographicTypes()", "2000+ H", "2000+ H")]
public partial class CadUcsTableObject : CadSymbolTableGroupCodes
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadUcsTableObject()
    {
    }

    /// <summary>Gets or sets the origin, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint Origin { get; set; } = new();

    /// <summary>Gets or sets the X axis, in world coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint XDirection { get; set; } = new(1, 0, 0);

    /// <summary>Gets or sets the Y axis, in world coordinates. Group codes 12, 22, 32.</summary>
    [Cad3DPoint(12)]
    public Cad3DPoint YDirection { get; set; } = new(0, 1, 0);

    // Origins of orthographic types are not kept.
    private static void ExchangeOrthographicTypes(BitExchange fields)
    {
        int count = fields.CountShort(0);
        for (int i = 0; i < count; i++)
        {
            fields.BitShort(0);
            fields.Point3(new Cad3DPoint());
        }
    }
}
