using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Where in its dashes a line begins.</summary>
public sealed class LineTypeInitialOffset : Command
{
    /// <summary>Creates the element with its default.</summary>
    public LineTypeInitialOffset()
        : base(ClassCode.AttributeElement, (int)AttributeElement.LineTypeInitialOffset)
    {
    }

    /// <summary>Gets or sets the part of the dashes that is left out at the beginning, 0 to 1.</summary>
    public double Offset { get; set; }

    internal override void Exchange(ParameterExchange x) => Offset = x.Real(Offset);
}
