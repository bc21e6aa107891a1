using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;

/// <summary>Objects by names.</summary>
public abstract partial class CadDictionaryBase : CadObjectBase, ICadObjectContainer
{
    internal CadDictionaryBase()
    {
    }

    private const int SoftOwnerCode = 350;
    private const int HardOwnerCode = 360;

    private readonly List<string> _names = [];
    private readonly List<ulong> _handles = [];

    /// <summary>Gets or sets whether the dictionary owns its objects: 0 no, 1 yes. Group code 280.</summary>
    public short HardOwnerFlag { get; set; }

    /// <summary>Gets or sets what happens to entries that exist when drawings are merged. Group code 281.</summary>
    public short DuplicateRecordCloning { get; set; } = 1;

    /// <summary>Gets how many entries there are.</summary>
    public int Count => _names.Count;

    /// <summary>Gets the names of the entries, in order. Group code 3.</summary>
    public string[] Names => [.. _names];

    /// <summary>Gets the codes of the entries' handles as they stood in the file: 350 or 360.</summary>
    internal int HandleCode { get; set; } = SoftOwnerCode;

    /// <summary>Returns the handle of an entry in hexadecimal, or an empty text where there is none of this
    /// name.</summary>
    /// <param name="name">The name; upper and lower case are the same.</param>
    /// <returns>The handle of an entry in hexadecimal, or an empty text where there is none of this name.</returns>
    public string GetHandle(string name) => TryGet(name, out ulong handle) ? HandleText.Format(handle) : "";

    /// <inheritdoc/>
    public string[] GetObjectHandles() => [.. _handles.ConvertAll(HandleText.Format)];

    /// <summary>Adds an entry or changes the one of this name.</summary>
    /// <param name="name">The name.</param>
    /// <param name="handle">The handle of the object in hexadecimal.</param>
    public void Set(string name, string handle) => Set(name, HandleText.Parse(handle));

    /// <summary>Removes an entry.</summary>
    /// <param name="name">The name; upper and lower case are the same.</param>
    /// <returns>Whether there was one.</returns>
    public bool Remove(string name)
    {
        int index = IndexOf(name);
        if (index >= 0)
        {
            _names.RemoveAt(index);
            _handles.RemoveAt(index);
        }

        return index >= 0;
    }

    internal bool TryGet(string name, out ulong handle)
    {
        int index = IndexOf(name);
        handle = index >= 0 ? _handles[index] : 0;
        return index >= 0;
    }

    internal void Set(string name, ulong handle)
    {
        int index = IndexOf(name);
        if (index >= 0)
        {
            _handles[index] = handle;
            return;
        }

        _names.Add(name);
        _handles.Add(handle);
    }

    /// <summary>Renames the entry of an object.</summary>
    internal void Rename(ulong handle, string name)
    {
        int index = handle == 0 ? -1 : _handles.IndexOf(handle);
        if (index >= 0)
        {
            _names[index] = name;
        }
    }

    internal void RemoveHandle(ulong handle)
    {
        int index = handle == 0 ? -1 : _handles.IndexOf(handle);
        if (index >= 0)
        {
            Remove(_names[index]);
        }
    }

    /// <summary>Removes the entries whose handles no object has.</summary>
    internal void RemoveDangling(HashSet<ulong> present)
    {
        for (int i = _handles.Count - 1; i >= 0; i--)
        {
            if (!present.Contains(_handles[i]))
            {
                _names.RemoveAt(i);
                _handles.RemoveAt(i);
            }
        }
    }

    internal bool ReadEntry(int code, FieldReader reader)
    {
        switch (code)
        {
            case 3:
                _names.Add(reader.GetString());
                _handles.Add(0);
                return true;
            case SoftOwnerCode or HardOwnerCode when _names.Count > 0:
                HandleCode = code;
                _handles[^1] = reader.GetHandle();
                return true;
            case 280:
                HardOwnerFlag = reader.GetShort();
                return true;
            case 281:
                DuplicateRecordCloning = reader.GetShort();
                return true;
            default:
                return false;
        }
    }

    internal void ExchangeEntries(ObjectExchange fields)
    {
        if (fields.Includes(0, HardOwnerFlag != 0))
        {
            HardOwnerFlag = fields.Int16(280, HardOwnerFlag);
        }

        if (fields.Includes(2000, true))
        {
            DuplicateRecordCloning = fields.Int16(281, DuplicateRecordCloning);
        }

        int count = fields.Count(0, _names.Count);
        HandleRole role = HandleCode == HardOwnerCode ? HandleRole.HardOwner : HandleRole.SoftOwner;
        for (int i = 0; i < count; i++)
        {
            string name = fields.Text(3, i < _names.Count ? _names[i] : "");
            ulong handle = fields.Handle(HandleCode, role, i < _handles.Count ? _handles[i] : 0);
            if (fields.IsReading)
            {
                _names.Add(name);
                _handles.Add(handle);
            }
        }
    }

    /// <summary>Carries the entries as drawing databases have them: names, and apart from them references.</summary>
    private protected void ExchangeEntryBits(BitExchange fields, bool hasAllFlags)
    {
        List<int> present = [];
        for (int i = 0; i < _names.Count; i++)
        {
            present.AddRange(fields.IsPresent(_handles[i]) ? [i] : Array.Empty<int>());
        }

        int count = fields.CountLong(present.Count);
        if (fields.Release == 1997 && !hasAllFlags)
        {
            fields.RawByte(0);
        }

        if (fields.Release >= 2000 || hasAllFlags)
        {
            DuplicateRecordCloning = (short)fields.BitShort(DuplicateRecordCloning);
            HardOwnerFlag = (short)fields.RawByte(HardOwnerFlag);
        }

        HandleRole role = HandleCode == HardOwnerCode ? HandleRole.HardOwner : HandleRole.SoftOwner;
        for (int i = 0; i < count; i++)
        {
            if (fields.IsReading)
            {
                AddEntry(fields.Text(""), fields.Handle(role, 0));
                continue;
            }

            fields.Text(_names[present[i]]);
            fields.Handle(role, _handles[present[i]]);
        }

        HandleCode = fields.IsReading && HardOwnerFlag != 0 ? HardOwnerCode : HandleCode;
    }

    // What was removed from a dictionary may leave an entry without name and object.
    private void AddEntry(string name, ulong handle)
    {
        if (name.Length > 0 || handle != 0)
        {
            _names.Add(name);
            _handles.Add(handle);
        }
    }

    private int IndexOf(string name)
    {
        return _names.FindIndex(known => string.Equals(known, name, System.StringComparison.OrdinalIgnoreCase));
    }
}
