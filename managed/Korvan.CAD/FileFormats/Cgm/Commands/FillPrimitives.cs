using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An area bounded by lines through points; the last point leads back to the first.</summary>
[CgmCommand(GraphicalPrimitiveElement.PolygonElement, "POLYGON",
    Default = "an area without points")]
[CgmConstructor(nameof(Points))]
public sealed partial class PolygonElement : Command
{
    /// <summary>Gets or sets the points, at least three.</summary>
    [CgmPoint]
    public List<CgmPoint> Points { get; set; } = [];
}

/// <summary>Areas bounded by lines, which can have holes and hidden edges.</summary>
[CgmCommand(GraphicalPrimitiveElement.PolygonSet, "POLYGONSET",
    Default = "no areas")]
public sealed partial class PolygonSet : Command
{
    /// <summary>What follows a point.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum EdgeFlag
    {
        /// <summary>An edge that is not drawn leads to the next point.</summary>
        [CgmKeyword("INVIS")]
        Invisible = 0,

        /// <summary>An edge leads to the next point.</summary>
        [CgmKeyword("VIS")]
        Visible = 1,

        /// <summary>An edge that is not drawn leads back to the first point of this area; the next one begins
        /// another.</summary>
        [CgmKeyword("CLOSEINVIS")]
        CloseInvisible = 2,

        /// <summary>An edge leads back to the first point of this area; the next one begins another.</summary>
        [CgmKeyword("CLOSEVIS")]
        CloseVisible = 3,
    }

    /// <summary>Gets or sets the points.</summary>
    public List<CgmPoint> Points { get; set; } = [];

    /// <summary>Gets or sets, for each point, what follows it.</summary>
    public List<EdgeFlag> Flags { get; set; } = [];

    internal override void Exchange(ParameterExchange x) => (Points, Flags) = x.Pairs(
        (Points, Flags),
        (nameof(Points), nameof(Flags)),
        null,
        static (y, point) => y.Point(point),
        static (y, flag) => y.Enumeration(flag, EnumKeywords.PolygonSetEdgeFlag));
}

/// <summary>A rectangle with sides along the axes.</summary>
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

/// <summary>A circle, filled.</summary>
[CgmCommand(GraphicalPrimitiveElement.CircleElement, "CIRCLE")]
[CgmConstructor(nameof(Centre), nameof(Radius))]
public sealed partial class CircleElement : Command
{
    /// <summary>Gets or sets the centre.</summary>
    [CgmPoint]
    public CgmPoint Centre { get; set; } = new();

    /// <summary>Gets or sets the radius, in units of the coordinates, not negative.</summary>
    [CgmVdc]
    public double Radius { get; set; }
}

/// <summary>An ellipse, filled, by two conjugate radii.</summary>
[CgmCommand(GraphicalPrimitiveElement.EllipseElement, "ELLIPSE")]
[CgmConstructor(nameof(Centre), nameof(FirstRadiusEnd), nameof(SecondRadiusEnd))]
public sealed partial class EllipseElement : Command
{
    /// <summary>Gets or sets the centre.</summary>
    [CgmPoint]
    public CgmPoint Centre { get; set; } = new();

    /// <summary>Gets or sets the end of one conjugate radius.</summary>
    [CgmPoint]
    public CgmPoint FirstRadiusEnd { get; set; } = new();

    /// <summary>Gets or sets the end of the other conjugate radius.</summary>
    [CgmPoint]
    public CgmPoint SecondRadiusEnd { get; set; } = new();
}
