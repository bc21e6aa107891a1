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

    /// <summary>Gets or sets the number of how lines end; negative ones are private.</summary>
    public int CapIndex { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public LineCapIndicator Cap
    {
        get => (LineCapIndicator)CapIndex;
        set => CapIndex = (int)value;
    }

    /// <summary>Gets or sets the number of how dashes end; negative ones are private.</summary>
    public int DashCapIndex { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public DashCapIndicator DashCap
    {
        get => (DashCapIndicator)DashCapIndex;
        set => DashCapIndex = (int)value;
    }

    internal override void Exchange(ParameterExchange x)
    {
        CapIndex = x.Index(CapIndex);
        DashCapIndex = x.Index(DashCapIndex);
    }
}
