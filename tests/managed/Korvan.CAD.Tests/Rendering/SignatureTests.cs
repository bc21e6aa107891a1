using System;
using System.IO;
using System.Security.Cryptography;
using System.Security.Cryptography.X509Certificates;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Signed documents, judged by another program.</summary>
public class SignatureTests
{
    private const string Password = "open";

    [Theory]
    [InlineData(false, PdfDigitalSignatureHashAlgorithmCore.Sha256, "SHA-256")]
    [InlineData(false, PdfDigitalSignatureHashAlgorithmCore.Sha512, "SHA-512")]
    [InlineData(true, PdfDigitalSignatureHashAlgorithmCore.Sha384, "SHA-384")]
    public void A_signature_is_valid_and_covers_the_document(bool curve, PdfDigitalSignatureHashAlgorithmCore hash,
        string name)
    {
        var details = new PdfDigitalSignatureDetailsCore(Certificate(curve), Password)
        {
            HashAlgorithm = hash,
            Reason = "Geprüft",
            Location = "Köln"
        };
        string file = Write(details);
        try
        {
            string report = Tools.Run("pdfsig", "-nocert", file);
            Assert.Contains("Signature Validation: Signature is Valid.", report, StringComparison.Ordinal);
            Assert.Contains("Total document signed", report, StringComparison.Ordinal);
            Assert.Contains(name, report, StringComparison.Ordinal);
            Assert.Contains("Signer Certificate Common Name: Drawing office", report, StringComparison.Ordinal);
            Assert.Contains("/Reason <FEFF00470065007000720", File.ReadAllText(file, Encoding.Latin1),
                StringComparison.Ordinal);
            Assert.Contains("Pages:           1", Tools.Run("pdfinfo", file), StringComparison.Ordinal);
        }
        finally
        {
            File.Delete(file);
        }
    }

    [Fact]
    public void A_document_that_was_changed_is_noticed()
    {
        string file = Write(new PdfDigitalSignatureDetailsCore(Certificate(false), Password));
        try
        {
            byte[] bytes = File.ReadAllBytes(file);
            bytes[bytes.AsSpan().IndexOf("korvan.cad"u8)] ^= 1;
            File.WriteAllBytes(file, bytes);
            Assert.DoesNotContain("Signature is Valid", Tools.Run("pdfsig", "-nocert", file), StringComparison.Ordinal);
        }
        finally
        {
            File.Delete(file);
        }
    }

    [Fact]
    public void A_certificate_that_cannot_be_opened_is_an_error_and_leaves_no_file()
    {
        string file = Tools.TempFile(".pdf");
        var options = new PdfOptions
        {
            CorePdfOptions = new()
            {
                DigitalSignatureDetails = new(Certificate(false),
            "wrong")
            }
        };
        ImageSaveException error = Assert.Throws<ImageSaveException>(() => new CadImage().Save(file, options));
        Assert.Contains("could not be signed", error.Message, StringComparison.Ordinal);
        Assert.False(File.Exists(file));
    }

    private static string Write(PdfDigitalSignatureDetailsCore details)
    {
        string file = Tools.TempFile(".pdf");
        CadImage drawing = TestPage.Drawing(TestPage.Square(0, 0, 10));
        drawing.Save(file, new PdfOptions { CorePdfOptions = new() { DigitalSignatureDetails = details } });
        return file;
    }

    private static byte[] Certificate(bool curve)
    {
        using RSA rsa = RSA.Create(2048);
        using ECDsa elliptic = ECDsa.Create(ECCurve.NamedCurves.nistP256);
        CertificateRequest request = curve
            ? new CertificateRequest("CN=Drawing office", elliptic, HashAlgorithmName.SHA256)
            : new CertificateRequest("CN=Drawing office", rsa, HashAlgorithmName.SHA256, RSASignaturePadding.Pkcs1);
        DateTimeOffset now = DateTimeOffset.UtcNow;
        using X509Certificate2 certificate = request.CreateSelfSigned(now.AddDays(-1), now.AddDays(30));
        return certificate.Export(X509ContentType.Pfx, Password);
    }
}
