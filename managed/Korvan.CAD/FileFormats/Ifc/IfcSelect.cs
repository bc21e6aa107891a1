using System;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Korvan.CAD.FileFormats.StepText;

namespace Korvan.CAD.FileFormats.Ifc;

/// <summary>The base of the select types of all schema versions: a value of one of several types. It is immutable; to
/// change an attribute, assign another select value.</summary>
public abstract class IfcSelect : IIfcSelect
{
    /// <summary>Creates a select value.</summary>
    /// <param name="value">An entity or a value of a defined type that the select type admits.</param>
    /// <exception cref="IfcImageException">The select type does not admit it.</exception>
    protected IfcSelect(IIfcType value)
    {
        Verify.NotNull(value);
        VerifyMember(value.TypeName);
        if (IfcSchema.Of(value.GetType()) != IfcSchema.Of(GetType()))
        {
            throw new IfcImageException(
                $"{GetType().Name} and {value.GetType().Name} are of different schema versions.");
        }

        TypeName = value.TypeName;
        Value = value.PlainValue;
    }

    /// <summary>Creates a select value for an enumeration item.</summary>
    /// <param name="enumeration">The name of the enumeration.</param>
    /// <param name="item">The value of the item, counted from 1.</param>
    /// <exception cref="IfcImageException">There is no such item.</exception>
    protected IfcSelect(string enumeration, int item)
    {
        string[] items = IfcSchema.Of(GetType()).ItemsOf(enumeration);
        TypeName = enumeration;
        Value = item >= 1 && item <= items.Length
            ? items[item - 1]
            : throw new IfcImageException($"{enumeration} has no item of the value {item}.");
    }

    /// <inheritdoc/>
    public string TypeName { get; private set; } = string.Empty;

    /// <inheritdoc/>
    public object? Value { get; private set; }

    /// <inheritdoc/>
    public IIfcEntity? Entity => Value as IIfcEntity;

    /// <inheritdoc/>
    public override string ToString() => Entity is null ? $"{TypeName}({Value})" : Entity.ToString()!;

    /// <summary>Gets the value as it was read, which is more exact than what is shown: binary values keep their
    /// bits.</summary>
    internal StepTyped? Raw { get; private set; }

    /// <summary>Creates a select value from what was read.</summary>
    internal static IfcSelect Make(Type type, string typeName, object? value, StepTyped? raw)
    {
        var made = (IfcSelect)System.Runtime.CompilerServices.RuntimeHelpers.GetUninitializedObject(type);
        made.TypeName = typeName;
        made.Value = value;
        made.Raw = raw;
        return made;
    }

    private void VerifyMember(string typeName)
    {
        IfcSchema schema = IfcSchema.Of(GetType());
        string name = schema.Strip(GetType().Name);
        if (!schema.Admits(name, typeName))
        {
            throw new IfcImageException(
                $"{name} does not admit {typeName}, but {string.Join(", ", schema.Table.Selects[name].Members)}.");
        }
    }
}
