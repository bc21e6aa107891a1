using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How lines or edges and their dashes end.</summary>
public abstract class CapCommand : Command
{
    private protected CapCommand(ClassCode elementClass, int elementId)
        : base(elementClass, elementId)
    {
    }

    /// <summary>Gets or sets how lines end.</summary>
    public LineCapIndicator Cap { get; set; } = LineCapIndicator.Unspecified;

    /// <summary>Gets or sets how dashes end.</summary>
    public DashCapIndicator DashCap { get; set; } = DashCapIndicator.Unspecified;

    internal override void Exchange(ParameterExchange x)
    {
        Cap = x.Index(Cap);
        DashCap = x.Index(DashCap);
    }
}
