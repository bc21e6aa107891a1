using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.ObjectContextData;

/// <summary>The appearance of a multileader at one annotation scale.</summary>
[CadSequence]
[CadObject("ACDB_MLEADEROBJECTCONTEXTDATA_CLASS", Subclass = "AcDbMLeaderObjectContextData")]
public partial class CadAcDbMLeaderObjectContextData : CadAcDbObjectContextData
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbMLeaderObjectContextData()
    {
    }

    /// <summary>Gets the tags of the context, which are those of a multileader's context data.</summary>
    /// <returns>The tags in the order of the file.</returns>
    public CadCodeValue[] GetContextTags() => [.. Context];

    /// <summary>Gets the tags of the context.</summary>
    internal List<CadCodeValue> Context { get; } = [];

    partial void OnExchange(ObjectExchange fields) => fields.Tags(Context);
}
