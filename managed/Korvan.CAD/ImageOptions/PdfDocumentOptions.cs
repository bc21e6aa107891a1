using System;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options of a portable document as a whole.</summary>
public class PdfDocumentOptions
{
    private int _jpegQuality = 90;

    /// <summary>Creates options with their defaults.</summary>
    public PdfDocumentOptions()
    {
    }

    /// <summary>Gets or sets the edition that is written. PDF 1.5 by default.</summary>
    public PdfCompliance Compliance { get; set; } = PdfCompliance.Pdf15;

    /// <summary>Gets or sets the quality of photographs in the document, 1 (small) to 100 (exact). 90 by
    /// default.</summary>
    public int JpegQuality
    {
        get => _jpegQuality;
        set
        {
            ArgumentOutOfRangeException.ThrowIfLessThan(value, 1);
            ArgumentOutOfRangeException.ThrowIfGreaterThan(value, 100);
            _jpegQuality = value;
        }
    }
}
