using System;
using Korvan.CAD.Rendering.Native;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Rows of a page of pixels, which one thread at a time paints.</summary>
internal sealed unsafe class RasterBand : IDisposable
{
    private readonly NativeHandle _surface;
    private readonly NativeHandle _cr;

    /// <summary>Begins to paint.</summary>
    /// <param name="engine">The engine of the band.</param>
    /// <param name="page">The page.</param>
    /// <param name="rows">The rows.</param>
    /// <param name="pixels">Their pixels.</param>
    internal RasterBand(TextEngine engine, Page page, RowRange rows, PixelRows pixels)
    {
        Engine = engine;
        nint surface = Cairo.ImageSurfaceCreateForData(
            (byte*)pixels.First, CairoFormat.Argb32, pixels.Width, rows.End - rows.First, pixels.Stride);
        _surface = new NativeHandle(surface, &Cairo.SurfaceDestroy);
        Cairo.SurfaceSetDeviceOffset(surface, 0, -rows.First);
        _cr = new NativeHandle(Cairo.Create(surface), &GlyphCache.Destroy);
        var target = new PixelTarget(surface, rows, new ThinLinePainter(pixels, rows));
        Painter = CairoPainter.Begin(_cr.Pointer, engine, page, target);
    }

    /// <summary>Gets the engine of the fonts.</summary>
    internal TextEngine Engine { get; }

    /// <summary>Gets what draws the items.</summary>
    internal CairoPainter Painter { get; }

    /// <summary>Paints what is over the page, and ends.</summary>
    internal void End(Page page)
    {
        Painter.End(page);
        Cairo.SurfaceFlush(_surface.Pointer);
    }

    /// <inheritdoc/>
    public void Dispose()
    {
        Painter.Dispose();
        _cr.Dispose();
        _surface.Dispose();
    }
}
