using System.Collections.Generic;
using Korvan.CAD.FileFormats.StepText;

namespace Korvan.CAD.FileFormats.Ifc.Header;

/// <summary>The header of a file. Unchanged records are written back as they were read.</summary>
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

    /// <summary>Gets the description of the file.</summary>
    public IfcFileDescription FileDescription { get; }

    /// <summary>Gets name, time, authors and software of the file.</summary>
    public IfcFileName FileName { get; }

    /// <summary>Gets the schema.</summary>
    public IfcFileSchema FileSchema { get; }

    /// <summary>Returns the changed records: those that were read, with their new text.</summary>
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
