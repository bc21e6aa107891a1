using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Ifc.Header;

/// <summary>FILE_SCHEMA: the schema of the data (ISO 10303-21, 8.2.3). It is read-only, as entities of one schema are
/// not those of another.</summary>
public sealed class IfcFileSchema : IIfcHeaderItem
{
    internal IfcFileSchema(object?[] values)
    {
        Schemas = HeaderText.Texts(values, 0);
    }

    /// <inheritdoc/>
    public string RecordName => "FILE_SCHEMA";

    /// <summary>Gets the names of the schemas; building models have one, such as IFC4.</summary>
    public IReadOnlyList<string> Schemas { get; }

    /// <inheritdoc/>
    public string ToText() => HeaderText.Record(RecordName, Schemas);
}
