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

    /// <summary>Gets or sets how pieces meet.</summary>
    public JoinIndicator Join { get; set; } = JoinIndicator.Unspecified;

    internal override void Exchange(ParameterExchange x) => Join = x.Index(Join);
}
