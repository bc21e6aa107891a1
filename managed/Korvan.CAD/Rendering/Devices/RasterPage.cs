using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Codecs;
using Korvan.CAD.Raster.Pixels;
using Korvan.CAD.Rendering.Native;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>A page as pixels: four bytes each, blue first, alpha multiplied in.</summary>
internal sealed unsafe class RasterPage : IDisposable
{
    internal const int LargestSide = 32_000;
    internal const long MaxPixels = 400_000_000;

    private nint surface;

    private RasterPage(int width, int height)
    {
        NativeLibraries.Require();
        Width = width;
        Height = height;
        surface = Cairo.ImageSurfaceCreate(CairoFormat.Argb32, width, height);
        Cairo.Check(Cairo.SurfaceStatus(surface), $"making a picture of {width} × {height} pixels");
    }

    internal int Width { get; }

    internal int Height { get; }

    /// <summary>Says why a size cannot be had, or null when it can.</summary>
    internal static string? Refuse(double width, double height)
    {
        if (!(width >= 1 && height >= 1))
        {
            return $"A picture of {width:0.##} × {height:0.##} pixels has no area; give a page of at least one pixel.";
        }

        if (width > LargestSide || height > LargestSide || width * height > MaxPixels)
        {
            return $"A picture of {width:0} × {height:0} pixels is too large: " +
                $"at most {LargestSide} pixels on a side and {MaxPixels} in all; give a smaller page.";
        }

        return null;
    }

    internal static RasterPage Render(TextEngine engine, Page page)
    {
        if (Refuse(page.Width, page.Height) is string reason)
        {
            throw new RenderException(reason);
        }

        var raster = new RasterPage((int)Math.Round(page.Width), (int)Math.Round(page.Height));
        nint cr = Cairo.Create(raster.surface);
        try
        {
            CairoPainter.Paint(cr, engine, page);
            Cairo.SurfaceFlush(raster.surface);
            return raster;
        }
        catch
        {
            raster.Dispose();
            throw;
        }
        finally
        {
            Cairo.Destroy(cr);
        }
    }

    /// <summary>The pixels of one line of the picture.</summary>
    internal ReadOnlySpan<byte> Row(int y)
    {
        ObjectDisposedException.ThrowIf(surface == 0, this);
        ArgumentOutOfRangeException.ThrowIfGreaterThanOrEqual((uint)y, (uint)Height, nameof(y));
        byte* data = Cairo.ImageSurfaceGetData(surface);
        return new ReadOnlySpan<byte>(data + ((long)y * Cairo.ImageSurfaceGetStride(surface)), Width * 4);
    }

    /// <summary>Gives the pixels with alpha no longer multiplied in; they own this page from now on.</summary>
    internal PixelGrid ToGrid()
    {
        var grid = new PixelGrid((int*)Cairo.ImageSurfaceGetData(surface), Width, Height, this);
        for (int y = 0; y < Height; y++)
        {
            foreach (ref int pixel in grid.Row(y))
            {
                pixel = (pixel & PixelGrid.Opaque) == PixelGrid.Opaque ? pixel : BitPacking.Unpremultiply(pixel);
            }
        }

        return grid;
    }

    internal byte[] CopyPixels()
    {
        var pixels = new byte[(long)Width * Height * 4];
        for (int y = 0; y < Height; y++)
        {
            Row(y).CopyTo(pixels.AsSpan(y * Width * 4));
        }

        return pixels;
    }

    public void Dispose()
    {
        if (surface != 0)
        {
            Cairo.SurfaceDestroy(surface);
            surface = 0;
        }
    }
}
