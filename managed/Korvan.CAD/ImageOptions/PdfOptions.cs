using Korvan.CAD.FileFormats.Pdf;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for PDF documents with one page per layout.</summary>
public class PdfOptions : ImageOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public PdfOptions()
        : base(FileFormat.Pdf)
    {
    }

    /// <summary>Gets or sets title, author and other document properties; <see langword="null"/> for those of the
    /// drawing.</summary>
    public PdfDocumentInfo? PdfDocumentInfo { get; set; }

    /// <summary>Gets or sets the options of the document as a whole; <see langword="null"/> for the defaults.</summary>
    public PdfDocumentOptions? CorePdfOptions { get; set; }
}
