using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An area bounded by an arc of a circle around a centre.</summary>
public sealed class CircularArcCentreClose : CircularArcCentre
{
    /// <summary>Creates the element with its defaults.</summary>
    public CircularArcCentreClose()
        : base((int)GraphicalPrimitiveElement.CircularArcCentreClose)
    {
    }

    /// <summary>Gets or sets how the arc becomes an area.</summary>
    public ClosureType Closure { get; set; }

    internal override void Exchange(ParameterExchange x)
    {
        base.Exchange(x);
        Closure = x.Enumeration(Closure, SharedWords.Closure);
    }
}
