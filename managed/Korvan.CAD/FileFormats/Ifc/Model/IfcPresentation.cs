using System;
using System.Linq;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Korvan.CAD.FileFormats.StepText;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>Converts parsed values to values of the types that the schema states.</summary>
internal static class IfcPresentation
{
    /// <summary>Returns the value of an attribute. An object that is created for it replaces the parsed
    /// value.</summary>
    internal static object? Present(IfcEntityBase owner, int attribute)
    {
        object?[] values = owner.Values;
        (object? kept, object? shown) = Present(owner, IfcSlot.Of(owner.Class, attribute), values[attribute]);
        values[attribute] = kept;
        return shown;
    }

    /// <summary>Returns a value as it is to be stored and as it is shown.</summary>
    /// <param name="owner">The instance that the value belongs to; <see langword="null"/> for a value outside of all
    /// instances.</param>
    /// <param name="slot">The type of the value.</param>
    /// <param name="raw">The value as it was read or stored.</param>
    /// <exception cref="IfcImageException">It is not of that type.</exception>
    internal static (object? Kept, object? Shown) Present(IfcEntityBase? owner, in IfcSlot slot, object? raw)
    {
        if (raw is null or StepOmitted)
        {
            return (raw, null);
        }

        switch (slot.Shape)
        {
            case SchemaShape.Text when raw is string:
            case SchemaShape.Integer when raw is long:
            case SchemaShape.Real when raw is double:
                return (raw, raw);
            case SchemaShape.Real when raw is long whole:
                return (raw, (double)whole);
            case SchemaShape.Boolean or SchemaShape.Logical when raw is StepEnum truth:
                return (raw, Truth(owner, slot, truth));
            case SchemaShape.Binary when raw is StepBinary binary:
                return (raw, binary.Bytes.Clone());
            case SchemaShape.Enumeration when raw is StepEnum item:
                return (raw, Item(owner, slot, item));
            case SchemaShape.Entity:
                return Same(Entity(owner, slot, raw));
            case SchemaShape.Select:
                return Same(Select(owner, slot, raw));
            case SchemaShape.Aggregate when raw is IfcCollection:
                return (raw, raw);
            case SchemaShape.Aggregate when raw is object?[] items:
                return Same(new IfcCollection(owner, slot.Element, items));
            default:
                throw Wrong(owner, slot, raw);
        }
    }

    /// <summary>Describes an unexpected value for a message.</summary>
    internal static string Excerpt(object? raw) => raw switch
    {
        null => "None",
        StepOmitted => "an asterisk",
        string text => $"the string '{(text.Length > 40 ? text[..40] + "..." : text)}'",
        StepEnum item => $".{item.Name}.",
        StepRef reference => $"#{reference.Id}",
        StepTyped typed => $"{typed.Keyword}(...)",
        StepBinary => "a binary value",
        IfcEntityBase entity => $"an {entity.EntityName}",
        object?[] or IfcCollection => "a list",
        IFormattable number => number.ToString(null, System.Globalization.CultureInfo.InvariantCulture),
        _ => raw.GetType().Name,
    };

    private static (object? Kept, object? Shown) Same(object value) => (value, value);

    private static object? Truth(IfcEntityBase? owner, in IfcSlot slot, StepEnum value) => value.Name switch
    {
        "T" => true,
        "F" => false,
        "U" when slot.Shape == SchemaShape.Logical => null,
        _ => throw Wrong(owner, slot, value),
    };

    private static string Item(IfcEntityBase? owner, in IfcSlot slot, StepEnum value)
    {
        string enumeration = slot.EnumerationName();
        return Array.Find(slot.Schema.ItemsOf(enumeration), item => item == value.Name)
            ?? throw Wrong(owner, slot, value);
    }

    private static IfcEntityBase Entity(IfcEntityBase? owner, in IfcSlot slot, object raw)
    {
        IfcEntityBase? found = Resolve(owner, raw);
        return found is not null && found.Class.IsA(slot.Schema.FindClass(slot.Form.Name)!)
            ? found
            : throw Wrong(owner, slot, found ?? raw);
    }

    private static IfcEntityBase? Resolve(IfcEntityBase? owner, object raw) => raw switch
    {
        IfcEntityBase entity => entity,
        StepRef reference => owner?.Model?.Find(reference.Id)
            ?? throw new IfcImageException($"{owner?.DescribePlace()}#{reference.Id} does not exist."),
        _ => null,
    };

    private static IfcSelect Select(IfcEntityBase? owner, IfcSlot slot, object raw)
    {
        if (raw is IfcSelect made)
        {
            return made;
        }

        Type type = slot.Schema.TypeOf(slot.Form.Name);
        if (raw is StepTyped typed && slot.Schema.TypeNameOf(typed.Keyword) is { } name
            && slot.Schema.Admits(slot.Form.Name, name))
        {
            return IfcSelect.Make(type, name, Inner(owner, slot, name, typed.Value), typed);
        }

        return Resolve(owner, raw) is { } entity && slot.Schema.Admits(slot.Form.Name, entity.Class.Name)
            ? IfcSelect.Make(type, entity.Class.Name, entity, null)
            : throw Wrong(owner, slot, raw);
    }

    // The collection of a typed value has no owner, as select values are immutable.
    private static object? Inner(IfcEntityBase? owner, in IfcSlot slot, string typeName, object? raw)
    {
        IfcSlot inner = IfcSlot.Of(slot.Schema, typeName, slot.Attribute);
        if (inner.Shape != SchemaShape.Aggregate || raw is not object?[] items)
        {
            return Present(owner, inner, raw).Shown;
        }

        IfcSlot element = inner.Element;
        return new IfcCollection(null, element, items.Select(item => Present(owner, element, item).Shown));
    }

    private static IfcImageException Wrong(IfcEntityBase? owner, in IfcSlot slot, object? raw)
    {
        string place = owner is null ? string.Empty
            : slot.Attribute >= 0 ? owner.Describe(slot.Attribute) + ": "
            : owner.DescribePlace();
        return new IfcImageException($"{place}{slot.Form.Describe()} was expected, but the value is {Excerpt(raw)}.");
    }
}
