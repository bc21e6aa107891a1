using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How long the point may be in which lines meet.</summary>
public sealed class MitreLimit : Command
{
    /// <summary>Creates the element with its default.</summary>
    public MitreLimit()
        : base(ClassCode.ControlElement, (int)ControlElement.MitreLimit)
    {
    }

    /// <summary>Gets or sets the largest length in widths of the line, at least 1.</summary>
    public double Limit { get; set; } = 32767;

    internal override void Exchange(ParameterExchange x) => Limit = x.Real(Limit);
}
