using System;
using System.Collections.Generic;
using System.Globalization;
using System.Text;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Korvan.CAD.FileFormats.StepText;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>Writes the record of an instance. Attributes that were not changed are copied from the file.</summary>
internal static class IfcRecordWriter
{
    /// <summary>Writes a record.</summary>
    /// <param name="entity">The instance.</param>
    /// <param name="target">Where to write.</param>
    /// <param name="isDraft">Whether mandatory attributes may be missing.</param>
    /// <exception cref="IfcImageException">An attribute that is mandatory is not set.</exception>
    internal static void Write(IfcEntityBase entity, StringBuilder target, bool isDraft)
    {
        string[]? original = entity.Record >= 0 ? Originals(entity) : null;
        target.Append('#').Append(entity.InstanceId).Append('=').Append(entity.Class.Keyword).Append('(');
        for (int i = 0; i < entity.Class.Attributes.Length; i++)
        {
            target.Append(i > 0 ? "," : string.Empty);
            if (original is not null && (entity.Changed >> i & 1) == 0)
            {
                target.Append(original[i]);
                continue;
            }

            WriteAttribute(entity, i, target, isDraft);
        }

        target.Append(");");
    }

    private static void WriteAttribute(IfcEntityBase entity, int attribute, StringBuilder target, bool isDraft)
    {
        IfcAttributeInfo info = entity.Class.Attributes[attribute];
        object? value = entity.Values[attribute];
        if (info.IsDerived)
        {
            target.Append('*');
        }
        else if (value is null && !info.IsOptional && !isDraft)
        {
            throw new IfcImageException($"{entity.Describe(attribute)} is mandatory and not set.");
        }
        else
        {
            Write(entity, IfcSlot.Of(entity.Class, attribute), value, target);
        }
    }

    private static void Write(IfcEntityBase owner, in IfcSlot slot, object? value, StringBuilder target)
    {
        switch (value)
        {
            case null:
                target.Append('$');
                break;
            case StepOmitted:
                target.Append('*');
                break;
            case string text:
                StepStrings.Encode(text, target);
                break;
            case double real:
                StepNumbers.WriteReal(real, target);
                break;
            case long whole when slot.Shape == SchemaShape.Real:
                StepNumbers.WriteReal(whole, target);
                break;
            case long whole:
                target.Append(whole.ToString(CultureInfo.InvariantCulture));
                break;
            case StepEnum item:
                target.Append('.').Append(item.Name).Append('.');
                break;
            case StepBinary binary:
                StepNumbers.WriteBinary(binary, target);
                break;
            case StepRef reference:
                target.Append('#').Append(reference.Id);
                break;
            case IfcEntityBase entity:
                target.Append('#').Append(entity.InstanceId);
                break;
            case StepTyped typed:
                IfcSlot inner = IfcSlot.Of(slot.Schema, slot.Schema.TypeNameOf(typed.Keyword)!, slot.Attribute);
                target.Append(typed.Keyword).Append('(');
                Write(owner, inner, typed.Value, target);
                target.Append(')');
                break;
            case IfcSelect select:
                WriteSelect(owner, slot, select, target);
                break;
            case object?[] items:
                WriteList(owner, slot.Element, items, target);
                break;
            case IfcCollection collection:
                WriteList(owner, slot.Element, collection.Raw, target);
                break;
            default:
                throw new InvalidOperationException($"A {value.GetType().Name} is not kept in models.");
        }
    }

    private static void WriteSelect(IfcEntityBase owner, in IfcSlot slot, IfcSelect select, StringBuilder target)
    {
        if (select.Value is IfcEntityBase entity)
        {
            target.Append('#').Append(entity.InstanceId);
            return;
        }

        if (select.Raw is { } raw)
        {
            Write(owner, slot, raw, target);
            return;
        }

        IfcSlot inner = IfcSlot.Of(slot.Schema, select.TypeName, slot.Attribute);
        target.Append(select.TypeName.ToUpperInvariant()).Append('(');
        Write(owner, inner, IfcAdmission.Admit(owner, inner, select.Value), target);
        target.Append(')');
    }

    private static void WriteList(
        IfcEntityBase owner, in IfcSlot element, IReadOnlyList<object?> items, StringBuilder target)
    {
        target.Append('(');
        for (int i = 0; i < items.Count; i++)
        {
            target.Append(i > 0 ? "," : string.Empty);
            Write(owner, element, items[i], target);
        }

        target.Append(')');
    }

    // The attributes as they are in the file.
    private static string[] Originals(IfcEntityBase entity)
    {
        ReadOnlySpan<byte> bytes = entity.Model!.Bytes(entity.Record);
        string[] all = new string[entity.Class.Attributes.Length];
        int at = entity.Model!.FirstAttribute(entity.Record);
        for (int i = 0; i < all.Length; i++)
        {
            at = StepCharacters.Skip(bytes, at);
            StepParser parser = new(bytes, at);
            parser.Value();
            all[i] = Encoding.Latin1.GetString(bytes[at..parser.At]);
            at = StepCharacters.Skip(bytes, parser.At) + 1;
        }

        return all;
    }
}
