using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>A form XObject (ISO 32000-1, 8.10): content that a page paints in several places.</summary>
/// <param name="Content">The operators.</param>
/// <param name="Resources">What they refer to.</param>
/// <param name="ToSymbol">From the space of the form to that of the symbol.</param>
/// <param name="Box">What the content covers, in the space of the form.</param>
internal sealed record PdfForm(PdfBuffer Content, PdfResources Resources, Affine2 ToSymbol, Bounds2 Box)
{
    /// <summary>Gets or sets the number of the object; 0 for a form that no page paints.</summary>
    internal int Number { get; set; }

    /// <summary>Writes the object.</summary>
    internal void Write(PdfFile file)
    {
        var entries = new PdfBuffer();
        entries.Raw("/Type/XObject/Subtype/Form/BBox["u8).Real(Box.MinX).Raw((byte)' ').Real(Box.MinY)
            .Raw((byte)' ').Real(Box.MaxX).Raw((byte)' ').Real(Box.MaxY).Raw("]/Resources"u8);
        Resources.Append(entries);
        file.AddStream(Number, entries, Content.Bytes, compress: Content.Count > 1000);
    }
}
