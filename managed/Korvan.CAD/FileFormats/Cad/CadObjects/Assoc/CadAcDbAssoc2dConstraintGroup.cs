using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>Geometric and dimensional constraints of entities in a plane.</summary>
[CadSequence]
[CadObject("ACDBASSOC2DCONSTRAINTGROUP", Subclass = "AcDbAssoc2dConstraintGroup")]
[CadBits(
    "base", "BL GroupVersion", "B GroupFlags", "3BD PlaneOrigin", "3BD PlaneXAxis", "3BD PlaneYAxis", "H GroupOwner",
    "H[BL] GeometryHandles", "ExchangeNodes()", "if HasUnknownNodes: partial")]
public partial class CadAcDbAssoc2dConstraintGroup : CadAcDbAssocAction
{
    // The largest number of a node that there was.
    private int _maxNumber;

    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbAssoc2dConstraintGroup()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int GroupVersion { get; set; } = 2;

    /// <summary>Gets or sets flags. Group code 70.</summary>
    [CadShort(70)]
    public short GroupFlags { get; set; }

    /// <summary>Gets or sets the origin of the plane, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint PlaneOrigin { get; set; } = new();

    /// <summary>Gets or sets the X axis of the plane. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint PlaneXAxis { get; set; } = new(1, 0, 0);

    /// <summary>Gets or sets the Y axis of the plane. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint PlaneYAxis { get; set; } = new(0, 1, 0);

    /// <summary>Gets or sets the handle of the object that owns the group, in hexadecimal. Group code 360.</summary>
    [CadHandle(360)]
    public string GroupOwner { get; set; } = "0";

    /// <summary>Gets the handles of the dependencies of the constrained geometry, in hexadecimal. The list is live.
    /// Group code 360.</summary>
    [CadList(360, Count = 90)]
    public List<string> GeometryHandles { get; } = [];

    /// <summary>Gets or sets the number of nodes: constraints and constrained geometry. Group code 90.</summary>
    [CadInt(90)]
    public int NodeCount { get; set; }

    /// <summary>Gets the tags of the nodes, whose classes differ.</summary>
    internal List<CadCodeValue> Nodes { get; } = [];

    private bool HasUnknownNodes => ConstraintNodes.Parse(Nodes) is null;

    partial void OnExchange(ObjectExchange fields) => fields.Tags(Nodes);

    private void ExchangeNodes(BitExchange fields)
    {
        ConstraintNodes nodes = (fields.IsReading ? null : ConstraintNodes.Parse(Nodes)) ?? new ConstraintNodes();
        _maxNumber = fields.BitLong(System.Math.Max(_maxNumber, nodes.MaxNumber));
        nodes.Exchange(fields);
        if (!fields.IsReading)
        {
            return;
        }

        if (fields.DataRemaining > 0)
        {
            throw fields.Fault($"{fields.DataRemaining} bits more than are known");
        }

        NodeCount = nodes.Count;
        Nodes.AddRange(nodes.ToTags(Owner == 0 ? "0" : HandleText.Format(Owner)));
    }
}
