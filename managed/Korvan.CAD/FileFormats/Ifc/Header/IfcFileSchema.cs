using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Ifc.Header;

/// <summary>FILE_SCHEMA: the edition of the schema (ISO 10303-21, 8.2.3). It does not change: entities of one edition
/// are not those of another.</summary>
public sealed class IfcFileSchema : IIfcHeaderItem
{
    internal IfcFileSchema(object?[] values)
    {
        Schemas = HeaderText.Texts(values, 0);
    }

    /// <inheritdoc/>
    public string RecordName => "FILE_SCHEMA";

    /// <summary>Gets the names of the schemas; models of buildings have one, such as IFC4.</summary>
    public IReadOnlyList<string> Schemas { get; }

    /// <inheritdoc/>
    public string ToText() => HeaderText.Record(RecordName, Schemas);
}
