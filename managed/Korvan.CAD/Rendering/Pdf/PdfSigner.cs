using System;
using System.Globalization;
using System.Security.Cryptography;
using System.Security.Cryptography.X509Certificates;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>Signs a document (ISO 32000-1, 12.8). It is written with room for the signature, which covers all bytes but
/// its own.</summary>
internal sealed class PdfSigner : IDisposable
{
    /// <summary>Room for the signature, in hexadecimal digits: a certificate of an RSA key takes a few
    /// thousand.</summary>
    private const int ContentDigits = 24_000;
    private const int RangeDigits = 10;

    private readonly PdfDigitalSignatureDetailsCore _details;
    private readonly X509Certificate2 _certificate;
    private readonly DateTimeOffset _time;
    private int _field;
    private long _rangeAt;
    private long _contentAt;

    /// <summary>Opens the certificate.</summary>
    internal PdfSigner(PdfDigitalSignatureDetailsCore details)
    {
        OpenSsl.Require();
        _details = details;
        _time = details.SigningTime is { } stated ? new DateTimeOffset(stated) : DateTimeOffset.UtcNow;
        try
        {
            _certificate = details.CertificateData.Length > 0
                ? X509CertificateLoader.LoadPkcs12(details.CertificateData, details.Password)
                : X509CertificateLoader.LoadPkcs12FromFile(details.CertificatePath, details.Password);
        }
        catch (CryptographicException e)
        {
            throw new RenderException($"The document could not be signed: {e.Message}");
        }
    }

    /// <summary>Writes the signature and its field on a page, and returns the number of the field.</summary>
    internal int AddTo(PdfFile file, int page)
    {
        int signature = file.New();
        int appearance = file.New();
        _field = file.New();
        var body = new PdfBuffer();
        body.Raw("<</Type/Sig/Filter/Adobe.PPKLite/SubFilter/adbe.pkcs7.detached/ByteRange["u8);
        int range = body.Reserve((4 * RangeDigits) + 3, (byte)' ');
        body.Raw("]/Contents"u8);
        int content = body.Count;
        body.Raw((byte)'<').Reserve(ContentDigits, (byte)'0');
        body.Raw(">/M"u8).Text(_time.UtcDateTime.ToString("'D:'yyyyMMddHHmmss'Z'", CultureInfo.InvariantCulture));
        foreach ((string key, string value) in (ReadOnlySpan<(string, string)>)[("Reason", _details.Reason),
            ("Location", _details.Location), ("ContactInfo", _details.ContactInfo)])
        {
            _ = value.Length > 0 ? body.Name(key).Raw((byte)' ').HexText(value) : body;
        }

        long start = file.AddPlain(signature, body.Raw(">>"u8));
        (_rangeAt, _contentAt) = (start + range, start + content);
        file.AddStream(appearance, body.Cleared().Raw("/Type/XObject/Subtype/Form/BBox[0 0 0 0]"u8), default);
        file.Add(_field, body.Cleared().Raw("<</Type/Annot/Subtype/Widget/FT/Sig/T(Signature)/F 132/Rect[0 0 0 0]"u8)
            .Raw("/V "u8).Ref(signature).Raw("/P "u8).Ref(page).Raw("/AP<</N "u8).Ref(appearance).Raw(">>>>"u8));
        return _field;
    }

    /// <summary>Adds the form with the field to the catalog.</summary>
    internal void AppendForm(PdfBuffer catalog) =>
        catalog.Raw("/AcroForm<</Fields["u8).Ref(_field).Raw("]/SigFlags 3>>"u8);

    /// <summary>Puts the signature of a complete document into it.</summary>
    internal void Sign(byte[] document)
    {
        HashAlgorithmName hash = _details.HashAlgorithm switch
        {
            PdfDigitalSignatureHashAlgorithmCore.Sha384 => HashAlgorithmName.SHA384,
            PdfDigitalSignatureHashAlgorithmCore.Sha512 => HashAlgorithmName.SHA512,
            _ => HashAlgorithmName.SHA256,
        };
        var contentAt = (int)_contentAt;
        int after = contentAt + ContentDigits + 2;
        int[] range = [0, contentAt, after, document.Length - after];
        string numbers = string.Join(' ',
            Array.ConvertAll(range, n => n.ToString(CultureInfo.InvariantCulture).PadLeft(RangeDigits)));
        Encoding.ASCII.GetBytes(numbers).CopyTo(document, (int)_rangeAt);
        Encoding.ASCII.GetBytes(Signature(document, range, hash)).CopyTo(document, contentAt + 1);
    }

    public void Dispose() => _certificate.Dispose();

    private string Signature(byte[] document, int[] range, HashAlgorithmName hash)
    {
        try
        {
            using IncrementalHash digest = IncrementalHash.CreateHash(hash);
            digest.AppendData(document, range[0], range[1]);
            digest.AppendData(document, range[2], range[3]);
            string signature =
                Convert.ToHexString(CmsSignature.Sign(digest.GetHashAndReset(), hash, _certificate, _time));
            return signature.Length <= ContentDigits
                ? signature
                : throw new RenderException(
                    $"The signature takes {signature.Length / 2} bytes; there is room for {ContentDigits / 2}.");
        }
        catch (CryptographicException e)
        {
            throw new RenderException($"The document could not be signed: {e.Message}");
        }
    }
}
