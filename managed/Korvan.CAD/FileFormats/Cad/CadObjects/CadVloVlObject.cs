using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An object in which a programming environment of the drawing keeps its settings.</summary>
[CadSequence]
[CadObject("VLO-VL", Subclass = "AcDbVlo")]
public partial class CadVloVlObject : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadVloVlObject()
    {
    }

    /// <summary>Returns the tags of the object.</summary>
    /// <returns>The tags in the order of the file.</returns>
    public CadCodeValue[] GetData() => [.. Data];

    /// <summary>Gets the tags of the object.</summary>
    internal List<CadCodeValue> Data { get; } = [];

    partial void OnExchange(ObjectExchange fields) => fields.Tags(Data);
}
