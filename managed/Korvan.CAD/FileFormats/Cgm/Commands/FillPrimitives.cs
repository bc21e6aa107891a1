using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A polygon; the last point is joined to the first.</summary>
[CgmCommand(GraphicalPrimitiveElement.PolygonElement, "POLYGON", Default = "a polygon without points")]
[CgmConstructor(nameof(Points))]
public sealed partial class PolygonElement : Command
{
    /// <summary>Gets or sets the points, at least three.</summary>
    [CgmPoint]
    public List<CgmPoint> Points { get; set; } = [];
}

/// <summary>A set of polygons, which can have holes and invisible edges.</summary>
[CgmCommand(GraphicalPrimitiveElement.PolygonSet, "POLYGONSET", Default = "an empty set")]
public sealed partial class PolygonSet : Command
{
    /// <summary>The edge after a point.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum EdgeFlag
    {
        /// <summary>An invisible edge to the next point.</summary>
        [CgmKeyword("INVIS")] Invisible = 0,

        /// <summary>A visible edge to the next point.</summary>
        [CgmKeyword("VIS")] Visible = 1,

        /// <summary>An invisible edge to the first point of the polygon; the next point starts another.</summary>
        [CgmKeyword("CLOSEINVIS")] CloseInvisible = 2,

        /// <summary>A visible edge to the first point of the polygon; the next point starts another.</summary>
        [CgmKeyword("CLOSEVIS")] CloseVisible = 3,
    }

    /// <summary>Gets or sets the points.</summary>
    public List<CgmPoint> Points { get; set; } = [];

    /// <summary>Gets or sets the edge after each point.</summary>
    public List<EdgeFlag> Flags { get; set; } = [];

    internal override void Exchange(ParameterExchange x) => (Points, Flags) = x.Pairs(
        (Points, Flags),
        (nameof(Points), nameof(Flags)),
        null,
        static (y, point) => y.Point(point),
        static (y, flag) => y.Enumeration(flag, EnumKeywords.PolygonSetEdgeFlag));
}

/// <summary>A filled rectangle with sides parallel to the axes.</summary>
[CgmCommand(GraphicalPrimitiveElement.RectangleElement, "RECT")]
[CgmConstructor(nameof(FirstCorner), nameof(SecondCorner))]
public sealed partial class RectangleElement : Command
{
    /// <summary>Gets or sets a corner.</summary>
    [CgmPoint]
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the corner opposite to it.</summary>
    [CgmPoint]
    public CgmPoint SecondCorner { get; set; } = new();
}

/// <summary>A filled circle.</summary>
[CgmCommand(GraphicalPrimitiveElement.CircleElement, "CIRCLE")]
[CgmConstructor(nameof(Centre), nameof(Radius))]
public sealed partial class CircleElement : Command
{
    /// <summary>Gets or sets the centre.</summary>
    [CgmPoint]
    public CgmPoint Centre { get; set; } = new();

    /// <summary>Gets or sets the radius, in VDC, not negative.</summary>
    [CgmVdc]
    public double Radius { get; set; }
}

/// <summary>A filled ellipse, given by two conjugate radii.</summary>
[CgmCommand(GraphicalPrimitiveElement.EllipseElement, "ELLIPSE")]
[CgmConstructor(nameof(Centre), nameof(FirstRadiusEnd), nameof(SecondRadiusEnd))]
public sealed partial class EllipseElement : Command
{
    /// <summary>Gets or sets the centre.</summary>
    [CgmPoint]
    public CgmPoint Centre { get; set; } = new();

    /// <summary>Gets or sets the end of the first conjugate radius.</summary>
    [CgmPoint]
    public CgmPoint FirstRadiusEnd { get; set; } = new();

    /// <summary>Gets or sets the end of the second conjugate radius.</summary>
    [CgmPoint]
    public CgmPoint SecondRadiusEnd { get; set; } = new();
}
