using Korvan.CAD.FileFormats.Pdf;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes a portable document, one page for each layout.</summary>
public class PdfOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public PdfOptions()
        : base(FileFormat.Pdf)
    {
    }

    /// <summary>Gets or sets title, author and other particulars; nothing for those of the drawing.</summary>
    public PdfDocumentInfo? PdfDocumentInfo { get; set; }

    /// <summary>Gets or sets the options of the document as a whole; nothing for the defaults.</summary>
    public PdfDocumentOptions? CorePdfOptions { get; set; }
}
