using System;
using System.Collections;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc.Model;
using Korvan.CAD.FileFormats.Ifc.Schema;

namespace Korvan.CAD.FileFormats.Ifc;

/// <content>Access of the generated properties to attributes by their index in the record.</content>
public abstract partial class IfcEntityBase
{
    private object?[]? _values;

    /// <summary>Gets or sets which attributes differ from the file, as one bit each.</summary>
    internal ulong Changed { get; set; }

    /// <summary>Gets the values as they are stored: as parsed, or as converted later.</summary>
    internal object?[] Values => _values ??= Model is { } model && Record >= 0
        ? model.ReadValues(this)
        : new object?[Class.Attributes.Length];

    /// <summary>Marks the attribute of a changed collection as changed.</summary>
    internal void NoteChange(int at)
    {
        Changed |= 1UL << at;
        Model?.NoteChange(this);
    }

    /// <summary>Returns a string.</summary>
    /// <param name="at">The index of the attribute.</param>
    protected string? TextAt(int at) => Present(at) as string;

    /// <summary>Returns a real number.</summary>
    /// <param name="at">The index of the attribute.</param>
    protected double? RealAt(int at) => Present(at) as double?;

    /// <summary>Returns an integer.</summary>
    /// <param name="at">The index of the attribute.</param>
    protected long? IntegerAt(int at) => Present(at) as long?;

    /// <summary>Returns a Boolean or logical value; <see langword="null"/> if it is unknown.</summary>
    /// <param name="at">The index of the attribute.</param>
    protected bool? BooleanAt(int at) => Present(at) as bool?;

    /// <summary>Returns a binary value in whole bytes.</summary>
    /// <param name="at">The index of the attribute.</param>
    protected byte[]? BinaryAt(int at) => Present(at) as byte[];

    /// <summary>Returns the value of an enumeration item, counted from 1.</summary>
    /// <param name="at">The index of the attribute.</param>
    protected int? EnumerationAt(int at)
    {
        return Present(at) is string item
            ? 1 + Array.IndexOf(Class.Schema.ItemsOf(EnumerationName(at)), item)
            : null;
    }

    /// <summary>Returns an entity.</summary>
    /// <param name="at">The index of the attribute.</param>
    protected IfcEntityBase? EntityAt(int at) => Present(at) as IfcEntityBase;

    /// <summary>Returns a value of a select type.</summary>
    /// <param name="at">The index of the attribute.</param>
    protected IfcSelect? SelectAt(int at) => Present(at) as IfcSelect;

    /// <summary>Returns a collection. Changes of it are changes of the attribute.</summary>
    /// <param name="at">The index of the attribute.</param>
    protected IList? ListAt(int at) => Present(at) as IfcCollection;

    /// <summary>Sets an attribute.</summary>
    /// <param name="at">The index of the attribute.</param>
    /// <param name="value">A value of its type, or <see langword="null"/>. A list is copied.</param>
    protected void Put(int at, object? value)
    {
        object? admitted = IfcAdmission.Admit(this, at, value);
        Model?.NoteReferences(this, admitted); // may refuse what the value refers to
        Values[at] = admitted;
        NoteChange(at);
    }

    /// <summary>Sets an attribute to an enumeration item.</summary>
    /// <param name="at">The index of the attribute.</param>
    /// <param name="value">The value of the item, or <see langword="null"/>.</param>
    protected void PutEnumeration(int at, int? value)
    {
        if (value is not { } number)
        {
            Put(at, null);
            return;
        }

        string[] items = Class.Schema.ItemsOf(EnumerationName(at));
        Put(at, number >= 1 && number <= items.Length
            ? items[number - 1]
            : throw new IfcImageException($"{Describe(at)}: {number} is none of its {items.Length} items."));
    }

    /// <summary>Returns the instances that refer to this one through an attribute.</summary>
    /// <param name="at">The index of the inverse attribute.</param>
    protected IReadOnlyList<IIfcEntity> InverseAt(int at)
    {
        IfcInverseInfo info = Class.Inverses[at];
        return Model?.References.Inverse(this, info) ?? [];
    }

    /// <summary>Returns the one instance that refers to this one through an attribute.</summary>
    /// <param name="at">The index of the inverse attribute.</param>
    protected IfcEntityBase? SingleInverseAt(int at) =>
        InverseAt(at) is { Count: > 0 } all ? (IfcEntityBase)all[0] : null;

    private object? Present(int at) => IfcPresentation.Present(this, at);

    private string EnumerationName(int at) => IfcSlot.Of(Class, at).EnumerationName();
}
