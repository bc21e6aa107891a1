using Korvan.CAD.Formats;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Export;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Draws an image into pixels that tests look at.</summary>
internal static class Rasterizer
{
    internal static RasterPage Draw(Image image, ImageOptionsBase options)
    {
        RasterPage? page = null;
        var context = new ExportContext(options, new LoadOptions());
        ExportContext.Guard(() => page = PageExporter.Rasterize(((IPageContent)image).OpenScene(), context));
        return page!;
    }
}
