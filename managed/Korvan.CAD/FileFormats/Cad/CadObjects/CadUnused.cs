using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A place of an object that is no longer used. Its handle stays taken.</summary>
[CadSequence]
[CadObject("UNUSED", Subclass = "AcDbUnused")]
public partial class CadUnused : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadUnused()
    {
    }

    /// <summary>Returns the tags that are left of the object.</summary>
    /// <returns>The tags in the order of the file.</returns>
    public CadCodeValue[] GetData() => [.. Data];

    /// <summary>Gets the tags that are left of the object.</summary>
    internal List<CadCodeValue> Data { get; } = [];

    partial void OnExchange(ObjectExchange fields) => fields.Tags(Data);
}
