namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>How a model is stored in a file.</summary>
internal enum IfcFileForm
{
    /// <summary>As clear text of ISO 10303-21.</summary>
    Plain,

    /// <summary>As clear text of ISO 10303-21 in a ZIP archive.</summary>
    Packed,

    /// <summary>As XML.</summary>
    Xml,
}
