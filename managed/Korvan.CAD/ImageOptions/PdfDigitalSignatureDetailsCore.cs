using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>How a portable document is signed: with a certificate that has its private key, and what the signature says
/// of itself.</summary>
public class PdfDigitalSignatureDetailsCore
{
    /// <summary>Creates particulars of a signature.</summary>
    /// <param name="certificatePath">The path of a PKCS #12 file (.pfx, .p12).</param>
    /// <param name="password">The password of the file; empty for none.</param>
    public PdfDigitalSignatureDetailsCore(string certificatePath, string password)
    {
        Verify.NotBlank(certificatePath);
        Verify.NotNull(password);
        CertificatePath = certificatePath;
        Password = password;
    }

    /// <summary>Creates particulars of a signature.</summary>
    /// <param name="certificateData">The content of a PKCS #12 file.</param>
    /// <param name="password">The password of the content; empty for none.</param>
    public PdfDigitalSignatureDetailsCore(byte[] certificateData, string password)
    {
        Verify.NotNull(certificateData);
        Verify.NotNull(password);
        CertificateData = certificateData;
        Password = password;
    }

    /// <summary>Gets the path of the file with certificate and key; empty where its content was given.</summary>
    public string CertificatePath { get; } = "";

    /// <summary>Gets or sets how the digest of the document is made. SHA-256 by default.</summary>
    public PdfDigitalSignatureHashAlgorithmCore HashAlgorithm { get; set; } = PdfDigitalSignatureHashAlgorithmCore.Sha256;

    /// <summary>Gets or sets why the document is signed; empty to say nothing.</summary>
    public string Reason { get; set; } = "";

    /// <summary>Gets or sets where the document is signed; empty to say nothing.</summary>
    public string Location { get; set; } = "";

    /// <summary>Gets or sets how the signer is reached; empty to say nothing.</summary>
    public string ContactInfo { get; set; } = "";

    /// <summary>Gets or sets when the document was signed; nothing for the moment that it is written.</summary>
    public DateTime? SigningTime { get; set; }

    internal byte[] CertificateData { get; } = [];

    internal string Password { get; }
}
