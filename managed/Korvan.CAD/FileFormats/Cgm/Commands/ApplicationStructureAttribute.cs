using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An attribute of the application structure that was begun last.</summary>
public sealed class ApplicationStructureAttribute : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public ApplicationStructureAttribute()
        : base(
            ClassCode.ApplicationStructureDescriptorElement,
            (int)ApplicationStructureDescriptorElement.ApplicationStructureAttribute)
    {
    }

    /// <summary>Gets or sets what kind of attribute it is.</summary>
    public string AttributeType { get; set; } = "";

    /// <summary>Gets or sets its values.</summary>
    public StructuredDataRecord Value { get; set; } = new();

    internal override void Exchange(ParameterExchange x)
    {
        AttributeType = x.String(AttributeType);
        Value = x.Record(Value);
    }
}
