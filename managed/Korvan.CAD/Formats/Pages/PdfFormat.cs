using System;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Export;

namespace Korvan.CAD.Formats.Pages;

/// <summary>PDF documents (ISO 32000), which are detected and written.</summary>
internal static class PdfFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "PDF",
        Formats = [FileFormat.Pdf],
        Detect = static source => source.FirstBytes.StartsWith("%PDF-"u8) ? FileFormat.Pdf : FileFormat.Undefined,
        Writers = [PageWriters.For<PdfOptions>(PageExporter.WritePdf)],
    };
}
