using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A named coordinate system.</summary>
[CadObject("UCS", Subclass = "AcDbUCSTableRecord")]
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
}
