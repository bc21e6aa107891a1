using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>The hash algorithm of a digital signature.</summary>
[PythonEnum(EnumKind.Flag)]
public enum PdfDigitalSignatureHashAlgorithmCore
{
    /// <summary>SHA-256.</summary>
    Sha256 = 0,

    /// <summary>SHA-384.</summary>
    Sha384 = 1,

    /// <summary>SHA-512.</summary>
    Sha512 = 2,
}
