namespace Korvan.CAD.FileFormats.Pdf;

/// <summary>Particulars of a portable document.</summary>
public class PdfDocumentInfo
{
    /// <summary>Creates particulars that are empty.</summary>
    public PdfDocumentInfo()
    {
    }

    /// <summary>Gets or sets the title.</summary>
    public string Title { get; set; } = "";

    /// <summary>Gets or sets who wrote it.</summary>
    public string Author { get; set; } = "";

    /// <summary>Gets or sets what it is about.</summary>
    public string Subject { get; set; } = "";

    /// <summary>Gets or sets words to find it by.</summary>
    public string Keywords { get; set; } = "";
}
