using System.Collections.Generic;
using Korvan.CAD.FileFormats.StepText;

namespace Korvan.CAD.FileFormats.Ifc.Header;

/// <summary>The header of a file. Records that are not changed are written back as they were read.</summary>
public sealed class IfcHeader
{
    private readonly List<(IIfcHeaderItem Item, StepHeaderRecord Record, string Original)> _known = [];

    internal IfcHeader(IEnumerable<StepHeaderRecord> records)
    {
        FileDescription = new IfcFileDescription([]);
        FileName = new IfcFileName([]);
        FileSchema = new IfcFileSchema([]);
        foreach (StepHeaderRecord record in records)
        {
            IIfcHeaderItem? item = record.Keyword switch
            {
                "FILE_DESCRIPTION" => FileDescription = new IfcFileDescription(record.Values),
                "FILE_NAME" => FileName = new IfcFileName(record.Values),
                "FILE_SCHEMA" => FileSchema = new IfcFileSchema(record.Values),
                _ => null,
            };
            if (item is not null)
            {
                _known.Add((item, record, item.ToText()));
            }
        }
    }

    /// <summary>Gets what the file is about.</summary>
    public IfcFileDescription FileDescription { get; }

    /// <summary>Gets who wrote the file, when and with what.</summary>
    public IfcFileName FileName { get; }

    /// <summary>Gets the edition of the schema.</summary>
    public IfcFileSchema FileSchema { get; }

    /// <summary>Gives the records that were changed, with what they were.</summary>
    internal IEnumerable<(StepHeaderRecord Record, string Text)> Changes()
    {
        foreach ((IIfcHeaderItem item, StepHeaderRecord record, string original) in _known)
        {
            if (item.ToText() is var text && text != original)
            {
                yield return (record, text);
            }
        }
    }
}
