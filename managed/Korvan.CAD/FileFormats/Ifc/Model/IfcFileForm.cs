namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>How a file holds a model.</summary>
internal enum IfcFileForm
{
    /// <summary>In the notation of ISO 10303-21.</summary>
    Plain,

    /// <summary>The same in a ZIP file.</summary>
    Packed,

    /// <summary>As XML.</summary>
    Xml,
}
