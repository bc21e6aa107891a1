using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Security.Cryptography;
using System.Security.Cryptography.X509Certificates;
using System.Text;
using System.Text.RegularExpressions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>
/// Adds a signature to a document that is complete otherwise, as an incremental update (ISO 32000-1, 7.5.6 and 12.8):
/// the old bytes stay, and the signature covers all bytes but its own.
/// </summary>
internal sealed partial class PdfSigner
{
    /// <summary>Room for the signature, in hexadecimal digits: a certificate of an RSA key takes a few
    /// thousand.</summary>
    private const int ContentDigits = 24_000;
    private const int RangeDigits = 10;

    private readonly byte[] _document;
    private readonly string _text;
    private readonly PdfDigitalSignatureDetailsCore _details;
    private readonly Dictionary<int, int> _places;
    private readonly string _trailer;
    private readonly int _tableAt;

    private PdfSigner(byte[] document, PdfDigitalSignatureDetailsCore details)
    {
        _document = document;
        _details = details;
        _text = Encoding.Latin1.GetString(document);
        Match start = StartXref().Match(_text, Math.Max(0, _text.Length - 64));
        _tableAt = start.Success ? Number(start.Groups[1].Value) : -1;
        if (_tableAt < 0 || _tableAt >= _text.Length || string.CompareOrdinal(_text, _tableAt, "xref", 0, 4) != 0)
        {
            throw new RenderException(
                "The document has no plain table of its objects, so that no signature can be added to it.");
        }

        _places = ReadTable(out _trailer);
    }

    internal static void Write(byte[] document, PdfDigitalSignatureDetailsCore details, Stream output)
    {
        OpenSsl.Require();
        try
        {
            using X509Certificate2 certificate = Certificate(details);
            output.Write(new PdfSigner(document, details).Signed(certificate));
        }
        catch (CryptographicException e)
        {
            throw new RenderException($"The document could not be signed: {e.Message}");
        }
    }

    private static X509Certificate2 Certificate(PdfDigitalSignatureDetailsCore details)
    {
        return details.CertificateData.Length > 0
            ? X509CertificateLoader.LoadPkcs12(details.CertificateData, details.Password)
            : X509CertificateLoader.LoadPkcs12FromFile(details.CertificatePath, details.Password);
    }

    [GeneratedRegex(@"startxref\s+(\d+)\s+%%EOF")]
    private static partial Regex StartXref();

    [GeneratedRegex(@"/Root\s+(\d+)\s+0\s+R")]
    private static partial Regex Root();

    [GeneratedRegex(@"/Size\s+(\d+)")]
    private static partial Regex Size();

    [GeneratedRegex(@"/Pages\s+(\d+)\s+0\s+R")]
    private static partial Regex Pages();

    [GeneratedRegex(@"/Kids\s*\[\s*(\d+)\s+0\s+R")]
    private static partial Regex FirstKid();

    private static int Number(string digits) => int.Parse(digits, CultureInfo.InvariantCulture);

    private static int Find(Regex what, string where, string name)
    {
        Match match = what.Match(where);
        return match.Success ? Number(match.Groups[1].Value)
            : throw new RenderException($"The document states no {name}, so that it cannot be signed.");
    }

    private static string Literal(string text)
    {
        StringBuilder digits = new("<FEFF");
        foreach (char letter in text)
        {
            digits.Append(((int)letter).ToString("X4", CultureInfo.InvariantCulture));
        }

        return digits.Append('>').ToString();
    }

    private Dictionary<int, int> ReadTable(out string trailer)
    {
        Dictionary<int, int> places = [];
        int end = _text.IndexOf("trailer", _tableAt, StringComparison.Ordinal);
        string[] words = _text[(_tableAt + 4)..end].Split((char[]?)null, StringSplitOptions.RemoveEmptyEntries);
        for (int i = 0; i + 1 < words.Length;)
        {
            int first = Number(words[i]);
            int count = Number(words[i + 1]);
            i += 2;
            for (int k = 0; k < count && i + 2 < words.Length; k++, i += 3)
            {
                places[first + k] = Number(words[i]);
            }
        }

        trailer = _text[end..];
        return places;
    }

    /// <summary>The dictionary of an object, without the marks around it.</summary>
    private string Dictionary(int number)
    {
        int start = _places.TryGetValue(number, out int place) ? _text.IndexOf("<<", place, StringComparison.Ordinal)
            : -1;
        int end = start < 0 ? -1 : _text.IndexOf("endobj", start, StringComparison.Ordinal);
        int close = end < 0 ? -1 : _text.LastIndexOf(">>", end, StringComparison.Ordinal);
        return close > start ? _text[(start + 2)..close]
            : throw new RenderException($"The object {number} of the document is no dictionary.");
    }

    private byte[] Signed(X509Certificate2 certificate)
    {
        HashAlgorithmName hash = _details.HashAlgorithm switch
        {
            PdfDigitalSignatureHashAlgorithmCore.Sha384 => HashAlgorithmName.SHA384,
            PdfDigitalSignatureHashAlgorithmCore.Sha512 => HashAlgorithmName.SHA512,
            _ => HashAlgorithmName.SHA256,
        };
        DateTimeOffset time = _details.SigningTime is { } stated ? new DateTimeOffset(stated) : DateTimeOffset.UtcNow;
        string update = Update(time, out int rangeAt, out int contentAt);
        byte[] all = [.. _document, .. Encoding.Latin1.GetBytes(update)];
        int[] range = [0, contentAt, contentAt + ContentDigits + 2, all.Length - contentAt - ContentDigits - 2];
        string words = string.Join(' ',
            Array.ConvertAll(range, n => n.ToString(CultureInfo.InvariantCulture).PadLeft(RangeDigits)));
        Encoding.Latin1.GetBytes(words).CopyTo(all, rangeAt);

        using IncrementalHash digest = IncrementalHash.CreateHash(hash);
        digest.AppendData(all, range[0], range[1]);
        digest.AppendData(all, range[2], range[3]);
        string signature = Convert.ToHexString(CmsSignature.Sign(digest.GetHashAndReset(), hash, certificate, time));
        if (signature.Length > ContentDigits)
        {
            throw new RenderException(
                $"The signature takes {signature.Length / 2} bytes; there is room for {ContentDigits / 2}.");
        }

        Encoding.Latin1.GetBytes(signature).CopyTo(all, contentAt + 1);
        return all;
    }

    /// <summary>The new objects with a table of them, and where range and content of the signature stand in
    /// all.</summary>
    private string Update(DateTimeOffset time, out int rangeAt, out int contentAt)
    {
        int root = Find(Root(), _trailer, "catalogue");
        int size = Find(Size(), _trailer, "number of objects");
        int page = Find(FirstKid(), Dictionary(Find(Pages(), Dictionary(root), "tree of pages")), "page");
        (int signature, int field) = (size, size + 1);
        SortedDictionary<int, int> places = [];
        StringBuilder text = new("\n");
        void Begin(int number)
        {
            places[number] = _document.Length + text.Length;
            text.Append(CultureInfo.InvariantCulture, $"{number} 0 obj\n<<");
        }

        Begin(signature);
        text.Append(" /Type /Sig /Filter /Adobe.PPKLite /SubFilter /adbe.pkcs7.detached /ByteRange [");
        rangeAt = _document.Length + text.Length;
        text.Append(' ', (4 * RangeDigits) + 3).Append("] /Contents ");
        contentAt = _document.Length + text.Length;
        text.Append('<').Append('0', ContentDigits).Append('>').Append(Particulars(time)).Append(" >>\nendobj\n");
        Begin(field);
        text.Append(CultureInfo.InvariantCulture,
            $" /Type /Annot /Subtype /Widget /FT /Sig /T (Signature) /V {signature} 0 R /F 132 ");
        text.Append(CultureInfo.InvariantCulture, $"/Rect [0 0 0 0] /P {page} 0 R >>\nendobj\n");
        Begin(root);
        text.Append(Dictionary(root)).Append(CultureInfo.InvariantCulture,
            $" /AcroForm << /Fields [{field} 0 R] /SigFlags 3 >> >>\nendobj\n");
        Begin(page);
        text.Append(Dictionary(page)).Append(CultureInfo.InvariantCulture, $" /Annots [{field} 0 R] >>\nendobj\n");
        AppendTable(text, places, root, size + 2);
        return text.ToString();
    }

    private string Particulars(DateTimeOffset time)
    {
        StringBuilder text = new(string.Create(CultureInfo.InvariantCulture,
            $" /M (D:{time.UtcDateTime:yyyyMMddHHmmss}Z)"));
        foreach ((string key, string value) in (ReadOnlySpan<(string, string)>)[("Reason", _details.Reason),
            ("Location", _details.Location), ("ContactInfo", _details.ContactInfo)])
        {
            text.Append(value.Length > 0 ? $" /{key} {Literal(value)}" : "");
        }

        return text.ToString();
    }

    private void AppendTable(StringBuilder text, SortedDictionary<int, int> places, int root, int size)
    {
        int at = _document.Length + text.Length;
        text.Append("xref\n");
        foreach ((int number, int place) in places)
        {
            text.Append(CultureInfo.InvariantCulture, $"{number} 1\n{place:D10} 00000 n \n");
        }

        Match info = InfoReference().Match(_trailer);
        text.Append(CultureInfo.InvariantCulture,
            $"trailer\n<< /Size {size} /Root {root} 0 R /Prev {_tableAt} {(info.Success ? info.Value : "")} >>\n");
        text.Append(CultureInfo.InvariantCulture, $"startxref\n{at}\n%%EOF\n");
    }

    [GeneratedRegex(@"/Info\s+\d+\s+0\s+R")]
    private static partial Regex InfoReference();
}
