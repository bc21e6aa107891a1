using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A line with an arrowhead that leads to an annotation.</summary>
[CadObject("LEADER", Subclass = "AcDbLeader")]
[CadBits(
    "B", "BS AnnotationType", "BS PathType", "3BD[BL] Coordinates", "ExchangePlane()",
    "2010+ BD", "-1997 BD", "BD TextHeight",
    "BD TextWidth", "B HookLineDirection", "B ArrowheadFlag", "-1997 BS", "-1997 BD", "-1997 B", "-1997 B",
    "-1997 BS", "-1997 BS ColorToUse", "-1997 B HookLineFlag", "-1997 B", "2000+ BS", "2000+ B HookLineFlag", "2000+ B",
    "H AnnotationHandle", "H DimensionStyleName")]
public partial class CadLeader : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadLeader()
    {
    }

    /// <summary>Gets or sets the name of the dimension style. Group code 3.</summary>
    [CadName(3, SymbolTable.DimensionStyle)]
    public string DimensionStyleName { get; set; } = "STANDARD";

    /// <summary>Gets or sets whether there is an arrowhead: 0 no, 1 yes. Group code 71.</summary>
    [CadShort(71)]
    public short ArrowheadFlag { get; set; } = 1;

    /// <summary>Gets or sets the form of the line: 0 straight segments, 1 a spline. Group code 72.</summary>
    [CadShort(72)]
    public short PathType { get; set; }

    /// <summary>Gets or sets what it leads to: 0 a text, 1 a tolerance, 2 an insertion, 3 nothing. Group code
    /// 73.</summary>
    [CadShort(73)]
    public short AnnotationType { get; set; } = 3;

    /// <summary>Gets or sets whether the hook line runs against the horizontal direction (0) or along it (1). Group
    /// code 74.</summary>
    [CadShort(74)]
    public short HookLineDirection { get; set; }

    /// <summary>Gets or sets whether there is a hook line. Group code 75.</summary>
    [CadShort(75)]
    public short HookLineFlag { get; set; }

    /// <summary>Gets or sets the height of the annotation's text. Group code 40.</summary>
    [CadDouble(40, Optional = true)]
    public double TextHeight { get; set; }

    /// <summary>Gets or sets the width of the annotation's text. Group code 41.</summary>
    [CadDouble(41, Optional = true)]
    public double TextWidth { get; set; }

    /// <summary>Gets the vertices from the arrowhead on, in world coordinates. Group codes 10, 20, 30.</summary>
    [CadList(10, Count = 76)]
    public IList<Cad3DPoint> Coordinates { get; } = new CheckedList<Cad3DPoint>("coordinates");

    /// <summary>Gets or sets the index of the colour to use where dimension style or block say "by block". Group code
    /// 77.</summary>
    [CadColor(77, Optional = true)]
    public short ColorToUse { get; set; }

    /// <summary>Gets or sets the handle of the annotation in hexadecimal; empty for none. Group code 340.</summary>
    [CadHandle(340, Optional = true)]
    public string AnnotationHandle { get; set; } = "";

    /// <summary>Gets or sets the unit normal of the plane of the leader. Group codes 210, 220, 230.</summary>
    [Cad3DPoint(210, Optional = true)]
    public Cad3DPoint ExtrusionDirection { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the horizontal direction. Group codes 211, 221, 231.</summary>
    [Cad3DPoint(211, Optional = true)]
    public Cad3DPoint HorizontalDirection { get; set; } = new(1, 0, 0);

    /// <summary>Gets or sets the offset of the last vertex from the insertion point of the block. Group codes 212,
    /// 222, 232.</summary>
    [Cad3DPoint(212, Optional = true)]
    public Cad3DPoint LastVertexOffsetFromBlock { get; set; } = new();

    /// <summary>Gets or sets the offset of the last vertex from the position of the annotation. Group codes 213, 223,
    /// 233.</summary>
    [Cad3DPoint(213, Optional = true)]
    public Cad3DPoint LastVertexOffsetFromAnnotation { get; set; } = new();

    private void ExchangePlane(BitExchange fields)
    {
        Cad3DPoint origin = Coordinates.Count > 0 && !fields.IsReading ? Coordinates[0] : new Cad3DPoint();
        fields.Point3(origin);
        fields.Point3(ExtrusionDirection);
        fields.Point3(HorizontalDirection);
        fields.Point3(LastVertexOffsetFromBlock);
        if (fields.Release is >= 1997 and <= 2007)
        {
            fields.Point3(LastVertexOffsetFromAnnotation);
        }
    }
}
