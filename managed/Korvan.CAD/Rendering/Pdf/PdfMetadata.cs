using System;
using System.Globalization;
using System.Security;
using System.Text;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>What a document says of itself, in its information dictionary and as XMP (ISO 16684-1); both say the same
/// (ISO 19005-1, 6.7.3). Dates are those of the drawing, so that the same drawing makes the same file.</summary>
internal static class PdfMetadata
{
    /// <summary>The information dictionary.</summary>
    internal static PdfBuffer Info(in DocumentInfo info)
    {
        var body = new PdfBuffer();
        body.Raw("<<"u8);
        Add("Title", info.Title);
        Add("Author", info.Author);
        Add("Subject", info.Subject);
        Add("Keywords", info.Keywords);
        Add("Creator", DocumentInfo.Creator);
        Add("Producer", DocumentInfo.Creator);
        AddDate("CreationDate", info.Created);
        AddDate("ModDate", info.Modified);
        return body.Raw(">>"u8);

        void Add(string key, string? value)
        {
            if (!string.IsNullOrEmpty(value))
            {
                body.Name(key).Text(value);
            }
        }

        void AddDate(string key, DateTime? date)
        {
            if (date is { } time)
            {
                body.Name(key).Text(time.ToString("'D:'yyyyMMddHHmmss'Z'", CultureInfo.InvariantCulture));
            }
        }
    }

    /// <summary>The metadata packet.</summary>
    internal static byte[] Packet(PdfSettings settings)
    {
        DocumentInfo info = settings.Info;
        var text = new StringBuilder();
        text.Append("<?xpacket begin=\"\uFEFF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n");
        text.Append("<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">");
        text.Append("<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">");
        text.Append("<rdf:Description rdf:about=\"\"");
        text.Append(" xmlns:dc=\"http://purl.org/dc/elements/1.1/\" xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\"");
        text.Append(" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" xmlns:pdfaid=\"http://www.aiim.org/pdfa/ns/id/\">\n");
        Add("dc:format", "application/pdf");
        Add("dc:title", info.Title, "Alt", " xml:lang=\"x-default\"");
        Add("dc:creator", info.Author, "Seq");
        Add("dc:description", info.Subject, "Alt", " xml:lang=\"x-default\"");
        Add("pdf:Keywords", info.Keywords);
        Add("pdf:Producer", DocumentInfo.Creator);
        Add("xmp:CreatorTool", DocumentInfo.Creator);
        Add("xmp:CreateDate", Date(info.Created));
        Add("xmp:ModifyDate", Date(info.Modified));
        if (settings.Compliance != PdfCompliance.Pdf15)
        {
            Add("pdfaid:part", "1");
            Add("pdfaid:conformance", settings.Compliance == PdfCompliance.PdfA1a ? "A" : "B");
        }

        text.Append("</rdf:Description></rdf:RDF></x:xmpmeta>\n<?xpacket end=\"r\"?>");
        return Encoding.UTF8.GetBytes(text.ToString());

        void Add(string name, string? value, string? list = null, string language = "")
        {
            if (string.IsNullOrEmpty(value))
            {
                return;
            }

            string plain = SecurityElement.Escape(Clean(value));
            text.Append(list is null
                ? $"<{name}>{plain}</{name}>\n"
                : $"<{name}><rdf:{list}><rdf:li{language}>{plain}</rdf:li></rdf:{list}></{name}>\n");
        }
    }

    private static string? Date(DateTime? date) =>
        date?.ToString("yyyy-MM-dd'T'HH:mm:ss'Z'", CultureInfo.InvariantCulture);

    /// <summary>A text without characters that XML excludes.</summary>
    private static string Clean(string text)
    {
        var clean = new StringBuilder(text.Length);
        foreach (Rune rune in text.EnumerateRunes())
        {
            bool allowed = rune.Value is '\t' or '\n' or '\r' or >= 0x20 and not (0xFFFE or 0xFFFF);
            clean.Append(allowed ? rune.ToString() : "\uFFFD");
        }

        return clean.ToString();
    }
}
