using Korvan.CAD.Formats.Detection;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Export;

namespace Korvan.CAD.Formats.Pages;

/// <summary>SVG documents, which are detected and written.</summary>
internal static class SvgFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "SVG",
        Formats = [FileFormat.Svg],
        Detect = static source => XmlRoot.Is(source, "svg") ? FileFormat.Svg : FileFormat.Undefined,
        Writers = [PageWriters.For<SvgOptions>(PageExporter.WriteSvg)],
    };
}
