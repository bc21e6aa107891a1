using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Ifc.Header;

/// <summary>FILE_DESCRIPTION: the description of the file (ISO 10303-21, 8.2.1).</summary>
public sealed class IfcFileDescription : IIfcHeaderItem
{
    internal IfcFileDescription(object?[] values)
    {
        Description = HeaderText.Texts(values, 0);
        ImplementationLevel = HeaderText.Text(values, 1);
    }

    /// <inheritdoc/>
    public string RecordName => "FILE_DESCRIPTION";

    /// <summary>Gets the lines of the description; the model view is among them, as ViewDefinition [...].</summary>
    public List<string> Description { get; }

    /// <summary>Gets or sets the implementation level: version and conformance class of the encoding, such as
    /// 2;1.</summary>
    public string ImplementationLevel { get; set; }

    /// <inheritdoc/>
    public string ToText() => HeaderText.Record(RecordName, Description, ImplementationLevel);
}
