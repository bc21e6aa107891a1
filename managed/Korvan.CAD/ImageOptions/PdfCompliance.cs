using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>The version of PDF, or the PDF/A conformance level, that is written.</summary>
[PythonEnum(EnumKind.Flag)]
public enum PdfCompliance
{
    /// <summary>PDF 1.5.</summary>
    Pdf15 = 0,

    /// <summary>PDF/A-1a: archiving, with document structure (ISO 19005-1).</summary>
    PdfA1a = 1,

    /// <summary>PDF/A-1b: archiving, visual appearance only (ISO 19005-1).</summary>
    PdfA1b = 2,
}
