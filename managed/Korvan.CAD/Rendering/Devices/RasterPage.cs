using System;
using System.Runtime.ExceptionServices;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Raster.Pixels;
using Korvan.CAD.Rendering.Native;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>A page as pixels: four bytes each, blue first, alpha multiplied in.</summary>
internal sealed unsafe class RasterPage : IDisposable
{
    internal const int LargestSide = 32_000;
    internal const long MaxPixels = 400_000_000;

    /// <summary>Below this, threads take longer to start than the page takes to paint.</summary>
    private const int MinItemsInBands = 2_000;
    private const int MinRowsInBands = 200;
    private const int MaxBands = 8;

    private readonly PixelBlock _pixels;
    private readonly NativeHandle _surface;

    private RasterPage(int width, int height)
    {
        NativeLibraries.Require();
        Width = width;
        Height = height;
        _pixels = new PixelBlock((long)width * height, forPage: true);
        nint surface = Cairo.ImageSurfaceCreateForData(
            (byte*)_pixels.Data, CairoFormat.Argb32, width, height, width * sizeof(int));
        _surface = new NativeHandle(surface, &Cairo.SurfaceDestroy);
        Cairo.Check(Cairo.SurfaceStatus(surface), $"making an image of {width} × {height} pixels");
    }

    internal int Width { get; }

    internal int Height { get; }

    /// <summary>Says why a size cannot be had, or null when it can.</summary>
    internal static string? Refuse(double width, double height)
    {
        if (!(width >= 1 && height >= 1))
        {
            return $"An image of {width:0.##} × {height:0.##} pixels has no area; give a page of at least one pixel.";
        }

        if (width > LargestSide || height > LargestSide || width * height > MaxPixels)
        {
            return $"An image of {width:0} × {height:0} pixels is too large: " +
                $"at most {LargestSide} pixels on a side and {MaxPixels} in all; give a smaller page.";
        }

        return null;
    }

    /// <summary>Paints a page in bands, each on a thread of its own.</summary>
    /// <param name="engine">The engine whose fonts the page refers to.</param>
    /// <param name="page">The page.</param>
    /// <param name="bands">The number of bands; null for as many as serve the page.</param>
    internal static RasterPage Render(TextEngine engine, Page page, int? bands = null)
    {
        if (Refuse(page.Width, page.Height) is string reason)
        {
            throw new RenderException(reason);
        }

        return LongCall.Run(
            () => Painted(engine, page, bands), static raster => raster.Dispose(), IsShort(page), engine.Lifetime);
    }

    // A thumbnail of a drawing that is small itself.
    private static bool IsShort(Page page) =>
        page.Replay is null && page.Overlay is null && page.Width * page.Height <= PixelGrid.MaxSmall
        && page.List.IsSmallerThan(MinItemsInBands);

    private static RasterPage Painted(TextEngine engine, Page page, int? bands)
    {
        var raster = new RasterPage((int)Math.Round(page.Width), (int)Math.Round(page.Height));
        try
        {
            raster.Paint(engine, page, bands ?? raster.BandsFor(page));
            return raster;
        }
        catch
        {
            raster.Dispose();
            throw;
        }
    }

    private int BandsFor(Page page) =>
        page.List.Items.Length < MinItemsInBands || Height < MinRowsInBands
        ? 1
        : Math.Min(Environment.ProcessorCount, MaxBands);

    private void Paint(TextEngine engine, Page page, int count)
    {
        var engines = new TextEngine[count];
        var bands = new RasterBand[count];
        engines[0] = engine;
        try
        {
            for (int i = 0; i < count; i++)
            {
                engines[i] ??= engine.ForThread();
                bands[i] = Band(engines[i], page, new RowRange(
                    (int)((long)Height * i / count), (int)((long)Height * (i + 1) / count)));
            }

            if (page.Replay is null)
            {
                Run(bands, band => band.Painter.DrawItems(page.List));
            }
            else
            {
                // One thread makes the parts, and all draw each of them.
                page.Replay(part => Run(bands, band =>
                {
                    band.Engine.AddFontsOf(engine);
                    band.Painter.DrawItems(part);
                }));
            }

            Run(bands, band => band.End(page));
        }
        finally
        {
            Array.ForEach(bands, static band => band?.Dispose());
            for (int i = 1; i < count; i++)
            {
                engines[i]?.Dispose();
            }
        }

        Cairo.SurfaceMarkDirty(_surface.Pointer);
    }

    // Of failures of several bands, that of the first one is thrown.
    private static void Run(RasterBand[] bands, Action<RasterBand> run)
    {
        var failures = new ExceptionDispatchInfo?[bands.Length];
        ForkedProcess.RunPieces(bands.Length, i =>
        {
            try
            {
                run(bands[i]);
            }
            catch (Exception e) when (e is RenderException or OutOfMemoryException)
            {
                failures[i] = ExceptionDispatchInfo.Capture(e);
            }
        });
        Array.Find(failures, static failure => failure is not null)?.Throw();
    }

    private RasterBand Band(TextEngine engine, Page page, RowRange rows)
    {
        int stride = Cairo.ImageSurfaceGetStride(_surface.Pointer);
        byte* first = Cairo.ImageSurfaceGetData(_surface.Pointer) + ((long)rows.First * stride);
        return new RasterBand(engine, page, rows, new PixelRows((nint)first, Width, Height, stride));
    }

    /// <summary>The pixels of one line of the picture.</summary>
    internal ReadOnlySpan<byte> Row(int y)
    {
        ArgumentOutOfRangeException.ThrowIfGreaterThanOrEqual((uint)y, (uint)Height, nameof(y));
        nint surface = _surface.Pointer;
        byte* data = Cairo.ImageSurfaceGetData(surface);
        return new ReadOnlySpan<byte>(data + ((long)y * Cairo.ImageSurfaceGetStride(surface)), Width * 4);
    }

    /// <summary>Gives the pixels with alpha no longer multiplied in; they own this page from now on.</summary>
    internal PixelGrid ToGrid()
    {
        var grid = new PixelGrid(_pixels, Width, Height, this);
        for (int y = 0; y < Height; y++)
        {
            foreach (ref int pixel in grid.WritableRow(y))
            {
                pixel = (pixel & PixelGrid.Opaque) == PixelGrid.Opaque ? pixel : BitPacking.Unpremultiply(pixel);
            }
        }

        return grid;
    }

    /// <summary>Copies rows of pixels, the last one excluded.</summary>
    internal byte[] CopyPixels(int first, int end)
    {
        long length = (long)Width * (end - first) * sizeof(int);
        Budget.VerifyRoom(length);
        var pixels = new byte[length];
        for (int y = first; y < end; y++)
        {
            Row(y).CopyTo(pixels.AsSpan((y - first) * Width * sizeof(int)));
        }

        return pixels;
    }

    public void Dispose()
    {
        _surface.Dispose();
        _pixels.Dispose();
    }
}
