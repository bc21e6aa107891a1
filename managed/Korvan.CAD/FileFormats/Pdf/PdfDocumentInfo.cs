namespace Korvan.CAD.FileFormats.Pdf;

/// <summary>The document properties of a PDF document.</summary>
public class PdfDocumentInfo
{
    /// <summary>Creates empty properties.</summary>
    public PdfDocumentInfo()
    {
    }

    /// <summary>Gets or sets the title.</summary>
    public string Title { get; set; } = "";

    /// <summary>Gets or sets the author.</summary>
    public string Author { get; set; } = "";

    /// <summary>Gets or sets the subject.</summary>
    public string Subject { get; set; } = "";

    /// <summary>Gets or sets the keywords.</summary>
    public string Keywords { get; set; } = "";
}
