using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An element whose only parameter is an index.</summary>
public abstract class GenericIndexCommand : Command
{
    private protected GenericIndexCommand(ClassCode elementClass, int elementId)
        : base(elementClass, elementId)
    {
    }

    /// <summary>Gets or sets the index; what it counts from 1 is told by the element. Negative ones are
    /// private.</summary>
    public int Index { get; set; } = 1;

    internal override void Exchange(ParameterExchange x) => Index = x.Index(Index);
}
