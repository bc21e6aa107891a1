using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A link of an object to a row of a database; the key of the row is in its extended data.</summary>
[CadSequence]
[CadObject("OBJECT_PTR", Subclass = "CAseDLPNTableRecord")]
[CadBits("if HasData: partial")]
public partial class CadObjectPtr : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadObjectPtr()
    {
    }

    /// <summary>Returns the tags of the link that precede the extended data.</summary>
    /// <returns>The tags in the order of the file.</returns>
    public CadCodeValue[] GetData() => [.. Data];

    /// <summary>Gets the tags of the link.</summary>
    internal List<CadCodeValue> Data { get; } = [];

    // Drawing databases have no fields of the link, but its extended data.
    private bool HasData => Data.Count > 0;

    partial void OnExchange(ObjectExchange fields) => fields.Tags(Data);
}
