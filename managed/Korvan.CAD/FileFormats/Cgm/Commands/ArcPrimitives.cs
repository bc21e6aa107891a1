using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A circular arc through three points.</summary>
[CgmCommand(GraphicalPrimitiveElement.CircularArc3Point, "ARC3PT")]
public partial class CircularArc3Point : Command
{
    /// <summary>Gets or sets the start point.</summary>
    [CgmPoint]
    public CgmPoint Start { get; set; } = new();

    /// <summary>Gets or sets a point between start and end.</summary>
    [CgmPoint]
    public CgmPoint Intermediate { get; set; } = new();

    /// <summary>Gets or sets the end point.</summary>
    [CgmPoint]
    public CgmPoint End { get; set; } = new();
}

/// <summary>A closed circular arc through three points, a filled area.</summary>
[CgmCommand(GraphicalPrimitiveElement.CircularArc3PointClose, "ARC3PTCLOSE")]
public sealed partial class CircularArc3PointClose : CircularArc3Point
{
    /// <summary>Gets or sets how the arc is closed.</summary>
    [CgmEnum]
    public ClosureType Closure { get; set; }
}

/// <summary>A circular arc by its centre, counterclockwise where the VDC axes are not mirrored.</summary>
[CgmCommand(GraphicalPrimitiveElement.CircularArcCentre, "ARCCTR")]
public partial class CircularArcCentre : Command
{
    /// <summary>Gets or sets the centre.</summary>
    [CgmPoint]
    public CgmPoint Centre { get; set; } = new();

    /// <summary>Gets or sets the X component of the vector from the centre towards the start.</summary>
    [CgmVdc]
    public double StartX { get; set; } = 1;

    /// <summary>Gets or sets the Y component of the vector from the centre towards the start.</summary>
    [CgmVdc]
    public double StartY { get; set; }

    /// <summary>Gets or sets the X component of the vector from the centre towards the end.</summary>
    [CgmVdc]
    public double EndX { get; set; } = 1;

    /// <summary>Gets or sets the Y component of the vector from the centre towards the end.</summary>
    [CgmVdc]
    public double EndY { get; set; }

    /// <summary>Gets or sets the radius, in VDC.</summary>
    [CgmVdc]
    public double Radius { get; set; }
}

/// <summary>A closed circular arc by its centre, a filled area.</summary>
[CgmCommand(GraphicalPrimitiveElement.CircularArcCentreClose, "ARCCTRCLOSE")]
public sealed partial class CircularArcCentreClose : CircularArcCentre
{
    /// <summary>Gets or sets how the arc is closed.</summary>
    [CgmEnum]
    public ClosureType Closure { get; set; }
}

/// <summary>A circular arc by its centre, clockwise where the VDC axes are not mirrored.</summary>
[CgmCommand(GraphicalPrimitiveElement.CircularArcCentreReversed, "ARCCTRREV")]
public sealed partial class CircularArcCentreReversed : Command
{
    /// <summary>Gets or sets the centre.</summary>
    [CgmPoint]
    public CgmPoint Centre { get; set; } = new();

    /// <summary>Gets or sets the X component of the vector from the centre towards the start.</summary>
    [CgmVdc]
    public double StartX { get; set; } = 1;

    /// <summary>Gets or sets the Y component of the vector from the centre towards the start.</summary>
    [CgmVdc]
    public double StartY { get; set; }

    /// <summary>Gets or sets the X component of the vector from the centre towards the end.</summary>
    [CgmVdc]
    public double EndX { get; set; } = 1;

    /// <summary>Gets or sets the Y component of the vector from the centre towards the end.</summary>
    [CgmVdc]
    public double EndY { get; set; }

    /// <summary>Gets or sets the radius, in VDC.</summary>
    [CgmVdc]
    public double Radius { get; set; }
}

/// <summary>An elliptical arc, in the direction from the first conjugate radius to the second.</summary>
[CgmCommand(GraphicalPrimitiveElement.EllipticalArc, "ELLIPARC")]
public partial class EllipticalArc : Command
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

    /// <summary>Gets or sets the X component of the vector from the centre towards the start.</summary>
    [CgmVdc]
    public double StartX { get; set; } = 1;

    /// <summary>Gets or sets the Y component of the vector from the centre towards the start.</summary>
    [CgmVdc]
    public double StartY { get; set; }

    /// <summary>Gets or sets the X component of the vector from the centre towards the end.</summary>
    [CgmVdc]
    public double EndX { get; set; } = 1;

    /// <summary>Gets or sets the Y component of the vector from the centre towards the end.</summary>
    [CgmVdc]
    public double EndY { get; set; }
}

/// <summary>A closed elliptical arc, a filled area.</summary>
[CgmCommand(GraphicalPrimitiveElement.EllipticalArcClose, "ELLIPARCCLOSE")]
public sealed partial class EllipticalArcClose : EllipticalArc
{
    /// <summary>Gets or sets how the arc is closed.</summary>
    [CgmEnum]
    public ClosureType Closure { get; set; }
}

/// <summary>A hyperbolic arc.</summary>
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

    /// <summary>Gets or sets the X component of the vector from the centre towards the start.</summary>
    [CgmVdc]
    public double StartX { get; set; } = 1;

    /// <summary>Gets or sets the Y component of the vector from the centre towards the start.</summary>
    [CgmVdc]
    public double StartY { get; set; }

    /// <summary>Gets or sets the X component of the vector from the centre towards the end.</summary>
    [CgmVdc]
    public double EndX { get; set; } = 1;

    /// <summary>Gets or sets the Y component of the vector from the centre towards the end.</summary>
    [CgmVdc]
    public double EndY { get; set; }
}

/// <summary>A parabolic arc.</summary>
[CgmCommand(GraphicalPrimitiveElement.ParabolicArc, "PARABARC")]
public sealed partial class ParabolicArc : Command
{
    /// <summary>Gets or sets the intersection of the tangents at both ends.</summary>
    [CgmPoint]
    public CgmPoint TangentIntersection { get; set; } = new();

    /// <summary>Gets or sets the start point.</summary>
    [CgmPoint]
    public CgmPoint Start { get; set; } = new();

    /// <summary>Gets or sets the end point.</summary>
    [CgmPoint]
    public CgmPoint End { get; set; } = new();
}
