using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>The edition of the portable document format that is written.</summary>
[PythonEnum(EnumKind.Flag)]
public enum PdfCompliance
{
    /// <summary>PDF 1.5.</summary>
    Pdf15 = 0,

    /// <summary>PDF/A-1a: archiving, with structure.</summary>
    PdfA1a = 1,

    /// <summary>PDF/A-1b: archiving, visual appearance.</summary>
    PdfA1b = 2,
}
