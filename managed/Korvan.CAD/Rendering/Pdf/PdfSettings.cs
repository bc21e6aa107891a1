using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>What a document is to be.</summary>
internal sealed record PdfSettings
{
    internal DocumentInfo Info { get; init; }

    internal PdfCompliance Compliance { get; init; }

    internal PdfDigitalSignatureDetailsCore? Signature { get; init; }
}
