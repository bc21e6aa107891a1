using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The dashes of lines or edges.</summary>
public abstract class DashTypeCommand : Command
{
    private protected DashTypeCommand(ClassCode elementClass, int elementId)
        : base(elementClass, elementId)
    {
    }

    /// <summary>Gets or sets the number of the dashes; negative ones are private or defined by the picture.</summary>
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public DashType Type
    {
        get => (DashType)Index;
        set => Index = (int)value;
    }

    internal override void Exchange(ParameterExchange x) => Index = x.Index(Index);
}
