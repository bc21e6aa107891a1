using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>What every object of a drawing has: a handle, extended data, and whatever else stood in the file.</summary>
public abstract partial class CadBaseObject : IKeyedObject
{
    private CadXdataContainer? _xdata;
    private CadApplicationCodesContainer? _applicationCodes;

    internal CadBaseObject()
    {
    }

    /// <summary>Gets or sets the handle, which names the object within its drawing, in hexadecimal; empty as long as
    /// there is none. New objects get one when the drawing is saved. Group code 5.</summary>
    /// <exception cref="FormatException">The text is no hexadecimal number.</exception>
    public string ObjectHandle
    {
        get => Handle == 0 ? "" : Handle.ToString("X", CultureInfo.InvariantCulture);
        set => Handle = HandleText.Parse(value);
    }

    /// <summary>Gets what the object is found by among its like: its name in a table of named objects, otherwise its
    /// handle.</summary>
    public virtual string Key => ObjectHandle;

    /// <summary>Gets the extended data that programs attached, group codes from 1000 on.</summary>
    public CadXdataContainer XdataContainer => _xdata ??= new CadXdataContainer();

    /// <summary>Gets the groups that programs attached, between group codes 102.</summary>
    public CadApplicationCodesContainer ApplicationCodesContainer => _applicationCodes ??= new();

    /// <summary>Gets the codes of this object that the library does not interpret, in the order of the file. They
    /// are written back as they are.</summary>
    public CadCodeValue[] UnknownCodes
    {
        get
        {
            List<CadCodeValue> values = [];
            foreach (KeptTag tag in Kept ?? [])
            {
                values.Add(tag.Value);
            }

            return [.. values];
        }
    }

    /// <summary>Gets or sets the handle as a number; 0 for none.</summary>
    internal ulong Handle { get; set; }

    /// <summary>Gets the name after group code 0.</summary>
    internal abstract string DxfName { get; }

    /// <summary>Gets the codes that nobody interprets, with the marker that they stood behind.</summary>
    internal List<KeptTag>? Kept { get; private set; }

    /// <summary>Gets the embedded object, verbatim: group code 101 and everything behind it up to extended
    /// data.</summary>
    internal List<CadCodeValue>? Embedded { get; set; }

    internal CadXdataContainer? XdataOrNull => _xdata;

    internal CadApplicationCodesContainer? ApplicationCodesOrNull => _applicationCodes;

    /// <summary>Takes over the current tag.</summary>
    /// <returns>Whether the tag means something to the class.</returns>
    internal virtual bool ReadCode(int code, DxfTagReader tags) => false;

    /// <summary>Writes what stands before the codes of a class.</summary>
    internal virtual void WriteMarker(DxfTagWriter writer, string subclass) => writer.WriteSubclass(subclass);

    internal virtual void WriteCodes(DxfTagWriter writer)
    {
    }

    internal void Keep(string? subclass, CadCodeValue value)
    {
        (Kept ??= []).Add(new KeptTag(subclass, value));
    }
}
