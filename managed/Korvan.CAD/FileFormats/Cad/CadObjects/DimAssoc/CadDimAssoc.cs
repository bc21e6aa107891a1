using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.DimAssoc;

/// <summary>The points of entities that a dimension follows.</summary>
[CadSequence]
[CadObject("DIMASSOC", Subclass = "AcDbDimAssoc")]
[CadBits(
    "BL AssociativityFlags", "B TransSpaceFlag", "RC RotatedDimensionType", "H DimensionHandle",
    "ExchangeReferences()")]
public partial class CadDimAssoc : CadObjectBase, ICadObjectContainer
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDimAssoc()
    {
    }

    /// <summary>Gets or sets the handle of the dimension in hexadecimal. Group code 330.</summary>
    [CadHandle(330)]
    public string DimensionHandle { get; set; } = "0";

    /// <summary>Gets or sets which points of the dimension are associated: 1 the first, 2 the second, 4 the third, 8
    /// the fourth; added up. Group code 90.</summary>
    [CadInt(90)]
    public int AssociativityFlags { get; set; }

    /// <summary>Gets or sets whether dimension and entities are in different spaces: 0 no, 1 yes. Group code
    /// 70.</summary>
    [CadShort(70)]
    public short TransSpaceFlag { get; set; }

    /// <summary>Gets or sets how a rotated dimension is associated: 0 parallel, 1 perpendicular. Group code
    /// 71.</summary>
    [CadShort(71)]
    public short RotatedDimensionType { get; set; }

    /// <summary>Gets the points. The list is live. Group code 1.</summary>
    [CadRepeated(1)]
    public IList<CadOsnapPointRef> PointReferences { get; } = new CheckedList<CadOsnapPointRef>("point_references");

    /// <inheritdoc/>
    public string[] GetObjectHandles() => [.. PointReferences.SelectMany(static point => point.ObjectHandles)];

    // A bit for each point that is associated; one that refers to its last point is followed by that.
    private void ExchangeReferences(BitExchange fields)
    {
        const int points = 6;
        bool isLast = false;
        for (int bit = 0, index = 0; bit < points; bit++)
        {
            if ((AssociativityFlags & (1 << bit)) == 0 && !isLast)
            {
                continue;
            }

            if (!fields.IsReading && index == PointReferences.Count)
            {
                throw fields.Fault($"the flags {AssociativityFlags} need more than {index} references to points");
            }

            CadOsnapPointRef point = fields.Item(PointReferences, index++);
            point.ExchangeBits(fields);
            isLast = point.HasLastPointReference;
        }
    }
}
