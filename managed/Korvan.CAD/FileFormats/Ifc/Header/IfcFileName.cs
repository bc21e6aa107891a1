using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Ifc.Header;

/// <summary>FILE_NAME: name, time, authors and software (ISO 10303-21, 8.2.2).</summary>
public sealed class IfcFileName : IIfcHeaderItem
{
    internal IfcFileName(object?[] values)
    {
        Name = HeaderText.Text(values, 0);
        TimeStamp = HeaderText.Text(values, 1);
        Author = HeaderText.Texts(values, 2);
        Organization = HeaderText.Texts(values, 3);
        PreprocessorVersion = HeaderText.Text(values, 4);
        OriginatingSystem = HeaderText.Text(values, 5);
        Authorization = HeaderText.Text(values, 6);
    }

    /// <inheritdoc/>
    public string RecordName => "FILE_NAME";

    /// <summary>Gets or sets the name of the file.</summary>
    public string Name { get; set; }

    /// <summary>Gets or sets the time at which the file was written, in ISO 8601 format such as
    /// 2025-03-01T12:00:00.</summary>
    public string TimeStamp { get; set; }

    /// <summary>Gets the names of the authors.</summary>
    public List<string> Author { get; }

    /// <summary>Gets the organizations of the authors.</summary>
    public List<string> Organization { get; }

    /// <summary>Gets or sets the preprocessor: the software that wrote the file.</summary>
    public string PreprocessorVersion { get; set; }

    /// <summary>Gets or sets the originating system: the software that the data comes from.</summary>
    public string OriginatingSystem { get; set; }

    /// <summary>Gets or sets the name of the person who authorized the file.</summary>
    public string Authorization { get; set; }

    /// <inheritdoc/>
    public string ToText() => HeaderText.Record(
        RecordName, Name, TimeStamp, Author, Organization, PreprocessorVersion, OriginatingSystem, Authorization);
}
