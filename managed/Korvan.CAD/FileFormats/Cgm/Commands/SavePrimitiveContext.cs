using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Keeps all attributes under a name.</summary>
public sealed class SavePrimitiveContext : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public SavePrimitiveContext()
        : base(ClassCode.ControlElement, (int)ControlElement.SavePrimitiveContext)
    {
    }

    /// <summary>Gets or sets the name, a number.</summary>
    public int ContextName { get; set; }

    internal override void Exchange(ParameterExchange x) => ContextName = x.Name(ContextName);
}
