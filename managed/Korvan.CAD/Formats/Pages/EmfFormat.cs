using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Export;

namespace Korvan.CAD.Formats.Pages;

/// <summary>Enhanced metafiles (EMF), which are only written.</summary>
internal static class EmfFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "EMF",
        Formats = [FileFormat.Emf],
        Writers =
        [
            PageWriters.For<EmfOptions>(static (scene, options, context, output) =>
                PageExporter.WriteSingle(scene, options, context, output, EmfDocument.Write)),
        ],
    };
}
