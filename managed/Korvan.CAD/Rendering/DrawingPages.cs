using System;
using System.Collections.Generic;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering;

/// <summary>The layouts that options choose, as pixels.</summary>
internal sealed class DrawingPages : IRasterPages, IDisposable
{
    private readonly TextEngine engine;
    private readonly PageSource pages;
    private readonly double horizontal;
    private readonly double vertical;
    private readonly RotateFlipType rotation;

    internal DrawingPages(Image image, ImageOptionsBase options)
    {
        engine = DrawingExporter.NewEngine(image, options);
        horizontal = DrawingExporter.Resolution(options);
        vertical = options.ResolutionSettings?.VerticalResolution ?? horizontal;
        pages = new PageSource((IVectorImage)image, options, engine, DeviceKind.Pixels, horizontal);
        Titles = pages.Titles;
        rotation = options.Rotation;
    }

    public IReadOnlyList<string> Titles { get; }

    public RasterPageData Render(int index)
    {
        RasterPage page = RasterPage.Render(engine, pages.PageAt(index));
        return new RasterPageData(page.ToGrid(), horizontal, vertical).Turned(rotation);
    }

    public void Dispose() => engine.Dispose();
}
