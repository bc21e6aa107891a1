using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An arc of a parabola.</summary>
public sealed class ParabolicArc : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public ParabolicArc()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.ParabolicArc)
    {
    }

    /// <summary>Gets or sets the point where the tangents at both ends meet.</summary>
    public CgmPoint TangentIntersection { get; set; } = new();

    /// <summary>Gets or sets where the arc begins.</summary>
    public CgmPoint Start { get; set; } = new();

    /// <summary>Gets or sets where the arc ends.</summary>
    public CgmPoint End { get; set; } = new();

    internal override void Exchange(ParameterExchange x)
    {
        TangentIntersection = x.Point(TangentIntersection);
        Start = x.Point(Start);
        End = x.Point(End);
    }
}
