using System;
using System.Collections.Generic;
using Korvan.CAD.Raster;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Export;

/// <summary>The layouts that options choose, as pixels.</summary>
internal sealed class DrawingPages : IRasterPages, IDisposable
{
    private readonly TextEngine _engine;
    private readonly PageSource _pages;
    private readonly double _horizontal;
    private readonly double _vertical;
    private readonly RotateFlipType _rotation;

    internal DrawingPages(VectorScene scene, ExportContext context)
    {
        _engine = context.NewEngine();
        _horizontal = context.Resolution;
        _vertical = context.Options.ResolutionSettings?.VerticalResolution ?? _horizontal;
        _pages = new PageSource(scene, context, _engine, DeviceKind.Pixels, _horizontal);
        Titles = _pages.Titles;
        _rotation = context.Options.Rotation;
    }

    public IReadOnlyList<string> Titles { get; }

    public RasterPageData Render(int index)
    {
        RasterPage page = RasterPage.Render(_engine, _pages.PageAt(index));
        return new RasterPageData(page.ToGrid(), _horizontal, _vertical).RotatedFlipped(_rotation);
    }

    public void Dispose() => _engine.Dispose();
}
