namespace Korvan.CAD.ImageOptions;

/// <summary>Options of a PDF document as a whole.</summary>
public class PdfDocumentOptions
{
    /// <summary>Creates options with default values.</summary>
    public PdfDocumentOptions()
    {
    }

    /// <summary>Gets or sets the version or conformance level. PDF 1.5 by default.</summary>
    public PdfCompliance Compliance { get; set; } = PdfCompliance.Pdf15;

    /// <summary>Gets or sets the digital signature; <see langword="null"/> for none.</summary>
    public PdfDigitalSignatureDetailsCore? DigitalSignatureDetails { get; set; }
}
