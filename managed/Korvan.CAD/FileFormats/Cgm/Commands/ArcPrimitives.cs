using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An arc of a circle through three points.</summary>
[CgmCommand(GraphicalPrimitiveElement.CircularArc3Point, "ARC3PT")]
public partial class CircularArc3Point : Command
{
    /// <summary>Gets or sets where the arc begins.</summary>
    [CgmPoint]
    public CgmPoint Start { get; set; } = new();

    /// <summary>Gets or sets a point in between.</summary>
    [CgmPoint]
    public CgmPoint Intermediate { get; set; } = new();

    /// <summary>Gets or sets where the arc ends.</summary>
    [CgmPoint]
    public CgmPoint End { get; set; } = new();
}

/// <summary>An area bounded by an arc of a circle through three points.</summary>
[CgmCommand(GraphicalPrimitiveElement.CircularArc3PointClose, "ARC3PTCLOSE")]
public sealed partial class CircularArc3PointClose : CircularArc3Point
{
    /// <summary>Gets or sets how the arc becomes an area.</summary>
    [CgmEnum]
    public ClosureType Closure { get; set; }
}

/// <summary>An arc of a circle around a centre, counterclockwise where the axes are not turned.</summary>
[CgmCommand(GraphicalPrimitiveElement.CircularArcCentre, "ARCCTR")]
public partial class CircularArcCentre : Command
{
    /// <summary>Gets or sets the centre.</summary>
    [CgmPoint]
    public CgmPoint Centre { get; set; } = new();

    /// <summary>Gets or sets the abscissa of the direction from the centre to the beginning.</summary>
    [CgmVdc]
    public double StartX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that direction.</summary>
    [CgmVdc]
    public double StartY { get; set; }

    /// <summary>Gets or sets the abscissa of the direction from the centre to the end.</summary>
    [CgmVdc]
    public double EndX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that direction.</summary>
    [CgmVdc]
    public double EndY { get; set; }

    /// <summary>Gets or sets the radius, in units of the coordinates.</summary>
    [CgmVdc]
    public double Radius { get; set; }
}

/// <summary>An area bounded by an arc of a circle around a centre.</summary>
[CgmCommand(GraphicalPrimitiveElement.CircularArcCentreClose, "ARCCTRCLOSE")]
public sealed partial class CircularArcCentreClose : CircularArcCentre
{
    /// <summary>Gets or sets how the arc becomes an area.</summary>
    [CgmEnum]
    public ClosureType Closure { get; set; }
}

/// <summary>An arc of a circle around a centre, clockwise where the axes are not turned.</summary>
[CgmCommand(GraphicalPrimitiveElement.CircularArcCentreReversed, "ARCCTRREV")]
public sealed partial class CircularArcCentreReversed : Command
{
    /// <summary>Gets or sets the centre.</summary>
    [CgmPoint]
    public CgmPoint Centre { get; set; } = new();

    /// <summary>Gets or sets the abscissa of the direction from the centre to the beginning.</summary>
    [CgmVdc]
    public double StartX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that direction.</summary>
    [CgmVdc]
    public double StartY { get; set; }

    /// <summary>Gets or sets the abscissa of the direction from the centre to the end.</summary>
    [CgmVdc]
    public double EndX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that direction.</summary>
    [CgmVdc]
    public double EndY { get; set; }

    /// <summary>Gets or sets the radius, in units of the coordinates.</summary>
    [CgmVdc]
    public double Radius { get; set; }
}

/// <summary>An arc of an ellipse, in the direction from the first conjugate radius to the second.</summary>
[CgmCommand(GraphicalPrimitiveElement.EllipticalArc, "ELLIPARC")]
public partial class EllipticalArc : Command
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

    /// <summary>Gets or sets the abscissa of the direction from the centre to the beginning.</summary>
    [CgmVdc]
    public double StartX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that direction.</summary>
    [CgmVdc]
    public double StartY { get; set; }

    /// <summary>Gets or sets the abscissa of the direction from the centre to the end.</summary>
    [CgmVdc]
    public double EndX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that direction.</summary>
    [CgmVdc]
    public double EndY { get; set; }
}

/// <summary>An area bounded by an arc of an ellipse.</summary>
[CgmCommand(GraphicalPrimitiveElement.EllipticalArcClose, "ELLIPARCCLOSE")]
public sealed partial class EllipticalArcClose : EllipticalArc
{
    /// <summary>Gets or sets how the arc becomes an area.</summary>
    [CgmEnum]
    public ClosureType Closure { get; set; }
}

/// <summary>An arc of a hyperbola.</summary>
[CgmCommand(GraphicalPrimitiveElement.HyperbolicArc, "HYPERBARC")]
public sealed partial class HyperbolicArc : Command
{
    /// <summary>Gets or sets the centre.</summary>
    [CgmPoint]
    public CgmPoint Centre { get; set; } = new();

    /// <summary>Gets or sets the end of the transverse radius.</summary>
    [CgmPoint]
    public CgmPoint TransverseRadiusEnd { get; set; } = new();

    /// <summary>Gets or sets the end of the conjugate radius.</summary>
    [CgmPoint]
    public CgmPoint ConjugateRadiusEnd { get; set; } = new();

    /// <summary>Gets or sets the abscissa of the direction from the centre to the beginning.</summary>
    [CgmVdc]
    public double StartX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that direction.</summary>
    [CgmVdc]
    public double StartY { get; set; }

    /// <summary>Gets or sets the abscissa of the direction from the centre to the end.</summary>
    [CgmVdc]
    public double EndX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that direction.</summary>
    [CgmVdc]
    public double EndY { get; set; }
}

/// <summary>An arc of a parabola.</summary>
[CgmCommand(GraphicalPrimitiveElement.ParabolicArc, "PARABARC")]
public sealed partial class ParabolicArc : Command
{
    /// <summary>Gets or sets the point where the tangents at both ends meet.</summary>
    [CgmPoint]
    public CgmPoint TangentIntersection { get; set; } = new();

    /// <summary>Gets or sets where the arc begins.</summary>
    [CgmPoint]
    public CgmPoint Start { get; set; } = new();

    /// <summary>Gets or sets where the arc ends.</summary>
    [CgmPoint]
    public CgmPoint End { get; set; } = new();
}
