using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How the pieces of lines or edges meet.</summary>
public abstract class JoinCommand : Command
{
    private protected JoinCommand(ClassCode elementClass, int elementId)
        : base(elementClass, elementId)
    {
    }

    /// <summary>Gets or sets the number of how pieces meet; negative ones are private.</summary>
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public JoinIndicator Join
    {
        get => (JoinIndicator)Index;
        set => Index = (int)value;
    }

    internal override void Exchange(ParameterExchange x) => Index = x.Index(Index);
}
