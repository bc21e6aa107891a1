using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Finds the objects that entities, records and objects keep in dictionaries of their own.</summary>
internal sealed class ExtensionDictionaries
{
    private const string GroupName = "ACAD_XDICTIONARY";

    private readonly Dictionary<ulong, CadObjectBase> _objects = [];

    internal ExtensionDictionaries(CadDrawing drawing)
    {
        foreach (CadObjectBase item in drawing.Objects)
        {
            _objects.TryAdd(item.Handle, item);
        }
    }

    /// <summary>Returns the extension dictionary of an owner; null for none.</summary>
    internal CadDictionaryBase? Of(CadBaseObject? owner)
    {
        string? handle = owner?.ApplicationCodesOrNull?.ApplicationCodes
            .Find(static group => group.ApplicationName == GroupName)?.Codes.Find(static _ => true)?.Value;
        return handle is null ? null : Find(handle) as CadDictionaryBase;
    }

    /// <summary>Returns the object under a name; null for none.</summary>
    internal CadObjectBase? Entry(CadDictionaryBase? dictionary, string name) =>
        dictionary is not null && dictionary.TryGet(name, out ulong handle) ? _objects.GetValueOrDefault(handle) : null;

    /// <summary>Returns the object of a handle in hexadecimal; null for none.</summary>
    internal CadObjectBase? Find(string handle) =>
        HandleText.TryParse(handle, out ulong number) ? _objects.GetValueOrDefault(number) : null;
}
