using Korvan.CAD.FileFormats.Pdf;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;

namespace Korvan.CAD.Rendering.Scene;

internal static class DocumentInfoReader
{
    internal static DocumentInfo Read(PdfOptions options)
    {
        PdfDocumentInfo? info = options.PdfDocumentInfo;
        return info == null ? default : new DocumentInfo(info.Title, info.Author, info.Subject, info.Keywords);
    }
}
