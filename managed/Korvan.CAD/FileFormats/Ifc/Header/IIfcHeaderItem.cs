namespace Korvan.CAD.FileFormats.Ifc.Header;

/// <summary>A record of the header of a file.</summary>
public interface IIfcHeaderItem
{
    /// <summary>Gets the name of the record, such as FILE_NAME.</summary>
    string RecordName { get; }

    /// <summary>Returns the record in the syntax of ISO 10303-21.</summary>
    string ToText();
}
