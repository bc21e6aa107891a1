using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.CadParameters;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>What every object of a drawing has: a handle, extended data, and whatever else stood in the file.</summary>
public abstract partial class CadBaseObject : IKeyedObject
{
    // The containers, or what they are made of.
    private object? _xdata;
    private object? _applicationCodes;

    internal CadBaseObject()
    {
    }

    /// <summary>Gets or sets the handle, which names the object within its drawing, in hexadecimal; empty as long as
    /// there is none. New objects get one when the drawing is saved. Group code 5.</summary>
    /// <exception cref="FormatException">The text is not a hexadecimal number.</exception>
    public string ObjectHandle
    {
        get => Handle == 0 ? "" : Handle.ToString("X", CultureInfo.InvariantCulture);
        set => Handle = HandleText.Parse(value);
    }

    /// <summary>Gets what the object is found by among its like: its name in a table of named objects, otherwise its
    /// handle.</summary>
    public virtual string Key => ObjectHandle;

    /// <summary>Gets the extended data that programs attached, group codes from 1000 on.</summary>
    public CadXdataContainer XdataContainer =>
        XdataOrNull ?? (CadXdataContainer)(_xdata = new CadXdataContainer());

    /// <summary>Gets the groups that programs attached, between group codes 102.</summary>
    public CadApplicationCodesContainer ApplicationCodesContainer =>
        ApplicationCodesOrNull
        ?? (CadApplicationCodesContainer)(_applicationCodes = new CadApplicationCodesContainer());

    /// <summary>Gets the tags of this object that the library does not interpret, in the order of the file. They are
    /// written back unchanged.</summary>
    public CadCodeValue[] UnknownCodes => KeptTags?.Values ?? [];

    /// <summary>Gets the objects within this one, as the text of an attribute of several lines.</summary>
    public CadEmbeddedObjectContainer EmbeddedObjectContainer => new(Embedded ?? []);

    /// <summary>Gets or sets the handle as a number; 0 for none.</summary>
    internal ulong Handle { get; set; }

    /// <summary>Gets the name after group code 0.</summary>
    internal abstract string DxfName { get; }

    /// <summary>Gets or sets the data that its class does not interpret, in the form of the file that it came
    /// from.</summary>
    internal KeptData? Kept { get; set; }

    /// <summary>Gets the data that its class does not interpret of an object that came from a text file.</summary>
    internal KeptTags? KeptTags => Kept as KeptTags;

    /// <summary>Gets the embedded object: group code 101 and all tags after it up to extended data.</summary>
    internal List<CadCodeValue>? Embedded => KeptTags?.Embedded;

    internal CadXdataContainer? XdataOrNull => Deferred<CadXdataContainer>.Get(ref _xdata);

    internal CadApplicationCodesContainer? ApplicationCodesOrNull =>
        Deferred<CadApplicationCodesContainer>.Get(ref _applicationCodes);

    /// <summary>Returns the fields that the class declares, with their present values, in the order of files. Fields
    /// that files leave out at their defaults are left out.</summary>
    /// <returns>The fields.</returns>
    public CadParameter[] GetParameters()
    {
        ParameterCollector collector = new();
        Exchange(collector);
        return [.. collector.Parameters];
    }

    /// <summary>Sets extended data of which a container is made when it is asked for.</summary>
    internal void Defer(Deferred<CadXdataContainer> xdata) => _xdata = xdata;

    /// <summary>Sets groups of which a container is made when it is asked for.</summary>
    internal void Defer(Deferred<CadApplicationCodesContainer> groups) => _applicationCodes = groups;

    /// <summary>Takes the current field over.</summary>
    /// <returns>Whether the class has such a field.</returns>
    internal virtual bool ReadField(int code, FieldReader reader) => false;

    /// <summary>Determines whether the class knows the marker of a subclass. Classes that take fields in any order do
    /// not say, so that this holds for all.</summary>
    internal virtual bool HasSubclass(string? name) => true;

    /// <summary>Gets the marker of the subclass that the class itself declares, empty where it has none or takes its
    /// fields in order.</summary>
    internal virtual string OwnSubclass => "";

    /// <summary>Gets whether files have the fields in the order of their declaration.</summary>
    internal virtual bool HasOrderedFields => false;

    /// <summary>Gets whether the class states its fields in drawing databases.</summary>
    internal virtual bool HasBits => false;

    /// <summary>Gets whether these are all fields of a record, so that a record can be written.</summary>
    internal virtual bool HasAllBits => HasBits;

    /// <summary>Carries the marker of a subclass.</summary>
    internal virtual void BeginSubclass(ObjectExchange fields, string subclass) => fields.BeginSubclass(subclass);

    /// <summary>Carries the fields in the order of their declaration.</summary>
    internal virtual void Exchange(ObjectExchange fields)
    {
    }

    /// <summary>Carries the fields as drawing databases pack them.</summary>
    internal virtual void ExchangeBits(BitExchange fields)
    {
    }
}
