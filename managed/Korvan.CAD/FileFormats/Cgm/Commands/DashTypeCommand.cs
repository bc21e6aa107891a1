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

    /// <summary>Gets or sets the dashes; negative numbers are private or defined by the picture.</summary>
    public DashType Type { get; set; } = DashType.Solid;

    internal override void Exchange(ParameterExchange x) => Type = x.Index(Type);
}
