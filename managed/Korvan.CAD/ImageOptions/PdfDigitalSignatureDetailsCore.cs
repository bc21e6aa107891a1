using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>The digital signature of a PDF document: a certificate with its private key, and the details of the
/// signature.</summary>
public class PdfDigitalSignatureDetailsCore
{
    /// <summary>Creates the details of a signature.</summary>
    /// <param name="certificatePath">The path of a PKCS #12 file (.pfx, .p12).</param>
    /// <param name="password">The password of the file; empty for none.</param>
    public PdfDigitalSignatureDetailsCore(string certificatePath, string password)
    {
        Verify.NotBlank(certificatePath);
        Verify.NotNull(password);
        CertificatePath = certificatePath;
        Password = password;
    }

    /// <summary>Creates the details of a signature.</summary>
    /// <param name="certificateData">The content of a PKCS #12 file.</param>
    /// <param name="password">The password of the content; empty for none.</param>
    public PdfDigitalSignatureDetailsCore(byte[] certificateData, string password)
    {
        Verify.NotNull(certificateData);
        Verify.NotNull(password);
        CertificateData = certificateData;
        Password = password;
    }

    /// <summary>Gets the path of the file with certificate and private key; empty if its content was passed.</summary>
    public string CertificatePath { get; } = "";

    /// <summary>Gets or sets the hash algorithm of the signature. SHA-256 by default.</summary>
    public PdfDigitalSignatureHashAlgorithmCore HashAlgorithm { get; set; } =
        PdfDigitalSignatureHashAlgorithmCore.Sha256;

    /// <summary>Gets or sets the reason for signing; empty for none.</summary>
    public string Reason { get; set; } = "";

    /// <summary>Gets or sets the location of signing; empty for none.</summary>
    public string Location { get; set; } = "";

    /// <summary>Gets or sets the contact information of the signer; empty for none.</summary>
    public string ContactInfo { get; set; } = "";

    /// <summary>Gets or sets the time of signing; <see langword="null"/> for the time at which the document is
    /// written.</summary>
    public DateTime? SigningTime { get; set; }

    internal byte[] CertificateData { get; } = [];

    internal string Password { get; }
}
