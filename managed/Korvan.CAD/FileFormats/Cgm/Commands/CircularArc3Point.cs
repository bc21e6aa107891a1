using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An arc of a circle through three points.</summary>
public class CircularArc3Point : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public CircularArc3Point()
        : this((int)GraphicalPrimitiveElement.CircularArc3Point)
    {
    }

    private protected CircularArc3Point(int elementId)
        : base(ClassCode.GraphicalPrimitiveElement, elementId)
    {
    }

    /// <summary>Gets or sets where the arc begins.</summary>
    public CgmPoint Start { get; set; } = new();

    /// <summary>Gets or sets a point in between.</summary>
    public CgmPoint Intermediate { get; set; } = new();

    /// <summary>Gets or sets where the arc ends.</summary>
    public CgmPoint End { get; set; } = new();

    internal override void Exchange(ParameterExchange x)
    {
        Start = x.Point(Start);
        Intermediate = x.Point(Intermediate);
        End = x.Point(End);
    }
}
