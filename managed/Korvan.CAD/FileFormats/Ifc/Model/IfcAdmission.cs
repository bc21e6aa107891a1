using System;
using System.Collections;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Korvan.CAD.FileFormats.StepText;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>Checks values that a program assigns against the schema, and converts them to the form that is
/// stored.</summary>
internal static class IfcAdmission
{
    /// <summary>Converts the value of an attribute.</summary>
    /// <exception cref="IfcImageException">It is not of the attribute's type, or the attribute is derived.</exception>
    internal static object? Admit(IfcEntityBase owner, int attribute, object? value)
    {
        IfcAttributeInfo info = owner.Class.Attributes[attribute];
        if (info.IsDerived)
        {
            throw new IfcImageException(
                $"{owner.Describe(attribute)} is derived from other attributes and cannot be set.");
        }

        if (value is null)
        {
            return info is { Shape: SchemaShape.Logical, IsOptional: false } ? StepEnum.Unknown : null;
        }

        return Admit(owner, IfcSlot.Of(owner.Class, attribute), value);
    }

    /// <summary>Converts a value of a slot.</summary>
    /// <exception cref="IfcImageException">It is not of the slot's type.</exception>
    internal static object? Admit(IfcEntityBase owner, in IfcSlot slot, object? value) => slot.Shape switch
    {
        SchemaShape.Text when value is string => value,
        SchemaShape.Real when Real(value) is { } number => number,
        SchemaShape.Integer when Whole(value) is { } number => number,
        SchemaShape.Boolean or SchemaShape.Logical when value is bool truth => truth ? StepEnum.True : StepEnum.False,
        SchemaShape.Logical when value is null => StepEnum.Unknown,
        SchemaShape.Binary when value is byte[] bytes => new StepBinary((byte[])bytes.Clone(), bytes.Length * 8),
        SchemaShape.Enumeration when value is string item => Item(owner, slot, item),
        SchemaShape.Entity when value is IfcEntityBase entity => Entity(owner, slot, entity),
        SchemaShape.Select when value is IfcSelect or IIfcType => Select(owner, slot, value),
        SchemaShape.Aggregate when value is IEnumerable items and not string => List(owner, slot, items),
        _ => throw Wrong(owner, slot, value),
    };

    private static double? Real(object? value)
    {
        double? number = value switch
        {
            double real => real,
            float real => real,
            _ => Whole(value),
        };
        return number is { } finite && double.IsFinite(finite) ? finite : null;
    }

    private static long? Whole(object? value) => value switch
    {
        long whole => whole,
        int whole => whole,
        short whole => whole,
        byte whole => whole,
        uint whole => whole,
        _ => null,
    };

    private static StepEnum Item(IfcEntityBase owner, in IfcSlot slot, string item)
    {
        string[] items = slot.Schema.ItemsOf(slot.EnumerationName());
        return Array.IndexOf(items, item.ToUpperInvariant()) >= 0
            ? new StepEnum(item.ToUpperInvariant())
            : throw new IfcImageException(
                $"{owner.Describe(slot.Attribute)}: '{item}' is none of {string.Join(", ", items)}.");
    }

    private static IfcEntityBase Entity(IfcEntityBase owner, in IfcSlot slot, IfcEntityBase entity)
    {
        if (entity.Class.Schema != slot.Schema || !entity.Class.IsA(slot.Schema.FindClass(slot.Form.Name)!))
        {
            throw Wrong(owner, slot, entity);
        }

        VerifyModel(owner, entity);
        return entity;
    }

    private static IfcSelect Select(IfcEntityBase owner, in IfcSlot slot, object value)
    {
        Type type = slot.Schema.TypeOf(slot.Form.Name);
        (string name, object? content) = value is IfcSelect select
            ? (select.TypeName, select.Value)
            : (((IIfcType)value).TypeName, ((IIfcType)value).PlainValue);
        if (IfcSchema.Of(value.GetType()) != slot.Schema || !slot.Schema.Admits(slot.Form.Name, name))
        {
            throw Wrong(owner, slot, value);
        }

        if (content is IfcEntityBase entity)
        {
            VerifyModel(owner, entity);
        }

        return value.GetType() == type
            ? (IfcSelect)value
            : IfcSelect.Make(type, name, content, (value as IfcSelect)?.Raw);
    }

    private static IfcCollection List(IfcEntityBase owner, in IfcSlot slot, IEnumerable items)
    {
        IfcSlot element = slot.Element;
        List<object?> admitted = [];
        foreach (object? item in items)
        {
            admitted.Add(Admit(owner, element, item));
        }

        return new IfcCollection(owner, element, admitted);
    }

    private static void VerifyModel(IfcEntityBase owner, IfcEntityBase entity)
    {
        if (entity.Model is { } model && owner.Model is { } own && model != own)
        {
            throw new IfcImageException(
                $"{owner.DescribePlace()}{entity.EntityName} #{entity.InstanceId} belongs to another model.");
        }
    }

    private static IfcImageException Wrong(IfcEntityBase owner, in IfcSlot slot, object? value)
    {
        return new IfcImageException(
            $"{owner.Describe(slot.Attribute)}: {slot.Form.Describe()} was expected, not "
            + $"{IfcPresentation.Excerpt(value)}.");
    }
}
