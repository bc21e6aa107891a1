using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.DimAssoc;

/// <summary>A point of an entity that a dimension follows.</summary>
[CadSequence]
[CadBits(
    "T ClassName", "RC OsnapType", "H[BL] ObjectHandles", "if OsnapType != 0: BL SubentityType",
    "if OsnapType != 0: BL SubentityIndex", "if OsnapType != 0: T[BL] ReferencePaths", "BD Parameter", "3BD Point",
    "if OsnapType is 6 or 11: H[BL] IntersectionHandles", "if OsnapType is 6 or 11: BL IntersectionSubentityType",
    "if OsnapType is 6 or 11: BL IntersectionSubentityIndex", "if OsnapType is 6 or 11: T[BL] IntersectionPaths",
    "B HasLastPointReference")]
public partial class CadOsnapPointRef
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadOsnapPointRef()
    {
    }

    /// <summary>Gets or sets the name of the class. Group code 1.</summary>
    [CadString(1)]
    public string ClassName { get; set; } = "AcDbOsnapPointRef";

    /// <summary>Gets or sets the kind of the point: 0 none, 1 end, 2 middle, 3 centre, 4 node, 5 quadrant, 6
    /// intersection, 7 insertion, 8 perpendicular, 9 tangent, 10 nearest, 11 apparent intersection, 12 parallel, 13
    /// start. Group code 72.</summary>
    [CadShort(72)]
    public short OsnapType { get; set; }

    /// <summary>Gets the handles of the entity and of the block references around it, in hexadecimal. The list is live.
    /// Group code 331.</summary>
    [CadList(331)]
    public List<string> ObjectHandles { get; } = [];

    /// <summary>Gets or sets the kind of the part of the entity: 0 none, 1 vertex, 2 edge. Group code 73.</summary>
    [CadShort(73, Optional = true)]
    public short SubentityType { get; set; }

    /// <summary>Gets or sets the index of the part of the entity. Group code 91.</summary>
    [CadInt(91, Optional = true)]
    public int SubentityIndex { get; set; }

    /// <summary>Gets the handles of entities in external references, as strings. The list is live. Group code
    /// 301.</summary>
    [CadList(301)]
    public List<string> ReferencePaths { get; } = [];

    /// <summary>Gets or sets the position along the entity. Group code 40.</summary>
    [CadDouble(40)]
    public double Parameter { get; set; }

    /// <summary>Gets or sets the point, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint Point { get; set; } = new();

    /// <summary>Gets the handles of the entity that is intersected and of the block references around it, in
    /// hexadecimal. The list is live. Group code 332.</summary>
    [CadList(332)]
    public List<string> IntersectionHandles { get; } = [];

    /// <summary>Gets or sets the kind of the part of the intersected entity: 0 none, 1 vertex, 2 edge. Group code
    /// 74.</summary>
    [CadShort(74, Optional = true)]
    public short IntersectionSubentityType { get; set; }

    /// <summary>Gets or sets the index of the part of the intersected entity. Group code 92.</summary>
    [CadInt(92, Optional = true)]
    public int IntersectionSubentityIndex { get; set; }

    /// <summary>Gets the handles of intersected entities in external references, as strings. The list is live. Group
    /// code 302.</summary>
    [CadList(302)]
    public List<string> IntersectionPaths { get; } = [];

    /// <summary>Gets or sets whether a further point follows that the dimension had before. Group code 75.</summary>
    [CadBool(75)]
    public bool HasLastPointReference { get; set; }
}
