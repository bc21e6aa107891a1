using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The values of an XRECORD as they are in the file.</summary>
/// <param name="data">The values, which were verified.</param>
/// <param name="first">A tag that precedes them; null for none.</param>
/// <param name="format">What the strings of the file are.</param>
internal sealed class StoredTags(byte[] data, CadCodeValue? first, RecordFormat format)
    : Deferred<IList<CadCodeValue>>
{
    internal override IList<CadCodeValue> Create()
    {
        IList<CadCodeValue> tags = CadXRecord.NewList();
        if (first is not null)
        {
            tags.Add(first);
        }

        RecordTags.Read(data, tags, format);
        return tags;
    }
}
