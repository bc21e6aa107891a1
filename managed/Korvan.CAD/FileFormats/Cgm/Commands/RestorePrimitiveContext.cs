using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Brings back attributes that were kept.</summary>
public sealed class RestorePrimitiveContext : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public RestorePrimitiveContext()
        : base(ClassCode.ControlElement, (int)ControlElement.RestorePrimitiveContext)
    {
    }

    /// <summary>Gets or sets the name that they were kept under.</summary>
    public int ContextName { get; set; }

    internal override void Exchange(ParameterExchange x) => ContextName = x.Name(ContextName);
}
