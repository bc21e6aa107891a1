namespace Korvan.CAD.ImageOptions;

/// <summary>Options of a portable document as a whole.</summary>
public class PdfDocumentOptions
{
    /// <summary>Creates options with their defaults.</summary>
    public PdfDocumentOptions()
    {
    }

    /// <summary>Gets or sets the edition that is written. PDF 1.5 by default.</summary>
    public PdfCompliance Compliance { get; set; } = PdfCompliance.Pdf15;

    /// <summary>Gets or sets how the document is signed; nothing to leave it unsigned.</summary>
    public PdfDigitalSignatureDetailsCore? DigitalSignatureDetails { get; set; }
}
