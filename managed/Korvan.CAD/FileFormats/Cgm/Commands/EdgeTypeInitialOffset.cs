using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Where in its dashes an edge begins.</summary>
public sealed class EdgeTypeInitialOffset : Command
{
    /// <summary>Creates the element with its default.</summary>
    public EdgeTypeInitialOffset()
        : base(ClassCode.AttributeElement, (int)AttributeElement.EdgeTypeInitialOffset)
    {
    }

    /// <summary>Gets or sets the part of the dashes that is left out at the beginning, 0 to 1.</summary>
    public double Offset { get; set; }

    internal override void Exchange(ParameterExchange x) => Offset = x.Real(Offset);
}
