using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Export;

namespace Korvan.CAD.Formats.Pages;

/// <summary>HTML pages whose script draws on a canvas, which are only written.</summary>
internal static class Html5Format
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "HTML5",
        Formats = [FileFormat.Html5Canvas],
        Writers = [PageWriters.For<Html5Options>(PageExporter.WriteHtml)],
    };
}
