using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Export;

namespace Korvan.CAD.Formats.Pages;

/// <summary>Windows metafiles (WMF), which are only written.</summary>
internal static class WmfFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "WMF",
        Formats = [FileFormat.Wmf],
        Writers =
        [
            PageWriters.For<WmfOptions>(static (scene, options, context, output) =>
                PageExporter.WriteSingle(scene, options, context, output, WmfDocument.Write)),
        ],
    };
}
