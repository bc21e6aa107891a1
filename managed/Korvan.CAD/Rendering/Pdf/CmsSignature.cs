using System;
using System.Formats.Asn1;
using System.Security.Cryptography;
using System.Security.Cryptography.X509Certificates;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>A detached signature as cryptographic message syntax (RFC 5652): the certificate, and signed attributes
/// that
/// carry the digest of the content and the time.</summary>
internal static class CmsSignature
{
    private const string SignedData = "1.2.840.113549.1.7.2";
    private const string Data = "1.2.840.113549.1.7.1";
    private const string ContentType = "1.2.840.113549.1.9.3";
    private const string MessageDigest = "1.2.840.113549.1.9.4";
    private const string SigningTime = "1.2.840.113549.1.9.5";
    private const string RsaEncryption = "1.2.840.113549.1.1.1";

    private static readonly Asn1Tag Context0 = new(TagClass.ContextSpecific, 0, true);

    /// <summary>Signs a digest with the private key of a certificate.</summary>
    internal static byte[] Sign(byte[] digest, HashAlgorithmName hash, X509Certificate2 certificate,
        DateTimeOffset time)
    {
        byte[] attributes = Attributes(digest, time);
        (string algorithm, byte[] signature) = Signature(attributes, hash, certificate);
        AsnWriter writer = new(AsnEncodingRules.DER);
        using (writer.PushSequence())
        {
            writer.WriteObjectIdentifier(SignedData);
            using (writer.PushSequence(Context0))
            using (writer.PushSequence())
            {
                writer.WriteInteger(1);
                using (writer.PushSetOf())
                {
                    Algorithm(writer, HashOid(hash));
                }

                using (writer.PushSequence())
                {
                    writer.WriteObjectIdentifier(Data);
                }

                using (writer.PushSetOf(Context0))
                {
                    writer.WriteEncodedValue(certificate.RawData);
                }

                using (writer.PushSetOf())
                {
                    Signer(writer, certificate, hash, attributes, algorithm, signature);
                }
            }
        }

        return writer.Encode();
    }

    private static void Signer(
        AsnWriter writer, X509Certificate2 certificate, HashAlgorithmName hash, byte[] attributes, string algorithm,
            byte[] signature)
    {
        using (writer.PushSequence())
        {
            writer.WriteInteger(1);
            using (writer.PushSequence())
            {
                writer.WriteEncodedValue(certificate.IssuerName.RawData);
                writer.WriteInteger(certificate.SerialNumberBytes.Span);
            }

            Algorithm(writer, HashOid(hash));

            // What is signed is a set; what stands here has a tag of its own in its place.
            byte[] tagged = [.. attributes];
            tagged[0] = 0xA0;
            writer.WriteEncodedValue(tagged);
            Algorithm(writer, algorithm);
            writer.WriteOctetString(signature);
        }
    }

    private static byte[] Attributes(byte[] digest, DateTimeOffset time)
    {
        AsnWriter writer = new(AsnEncodingRules.DER);
        using (writer.PushSetOf())
        {
            Attribute(writer, ContentType, () => writer.WriteObjectIdentifier(Data));
            Attribute(writer, SigningTime, () => writer.WriteUtcTime(time));
            Attribute(writer, MessageDigest, () => writer.WriteOctetString(digest));
        }

        return writer.Encode();
    }

    private static void Attribute(AsnWriter writer, string kind, Action value)
    {
        using (writer.PushSequence())
        {
            writer.WriteObjectIdentifier(kind);
            using (writer.PushSetOf())
            {
                value();
            }
        }
    }

    private static void Algorithm(AsnWriter writer, string name)
    {
        using (writer.PushSequence())
        {
            writer.WriteObjectIdentifier(name);
            if (name == RsaEncryption)
            {
                writer.WriteNull();
            }
        }
    }

    private static (string Algorithm, byte[] Signature) Signature(byte[] attributes, HashAlgorithmName hash,
        X509Certificate2 certificate)
    {
        if (certificate.GetRSAPrivateKey() is RSA rsa)
        {
            using (rsa)
            {
                return (RsaEncryption, rsa.SignData(attributes, hash, RSASignaturePadding.Pkcs1));
            }
        }

        if (certificate.GetECDsaPrivateKey() is ECDsa curve)
        {
            using (curve)
            {
                return (EcdsaOid(hash), curve.SignData(attributes, hash, DSASignatureFormat.Rfc3279DerSequence));
            }
        }

        throw new CryptographicException("the certificate has neither an RSA nor an elliptic curve key of its own");
    }

    private static string HashOid(HashAlgorithmName hash) => hash.Name switch
    {
        "SHA384" => "2.16.840.1.101.3.4.2.2",
        "SHA512" => "2.16.840.1.101.3.4.2.3",
        _ => "2.16.840.1.101.3.4.2.1",
    };

    private static string EcdsaOid(HashAlgorithmName hash) => hash.Name switch
    {
        "SHA384" => "1.2.840.10045.4.3.3",
        "SHA512" => "1.2.840.10045.4.3.4",
        _ => "1.2.840.10045.4.3.2",
    };
}
