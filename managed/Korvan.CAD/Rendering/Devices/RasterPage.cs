using System;
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

    private readonly NativeHandle _surface;

    private RasterPage(int width, int height)
    {
        NativeLibraries.Require();
        Width = width;
        Height = height;
        _surface = new NativeHandle(Cairo.ImageSurfaceCreate(CairoFormat.Argb32, width, height), &Cairo.SurfaceDestroy);
        Cairo.Check(Cairo.SurfaceStatus(_surface.Pointer), $"making an image of {width} × {height} pixels");
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
        using var cr = new NativeHandle(Cairo.Create(raster._surface.Pointer), &Cairo.Destroy);
        try
        {
            CairoPainter.Paint(cr.Pointer, engine, page);
            Cairo.SurfaceFlush(raster._surface.Pointer);
            return raster;
        }
        catch
        {
            raster.Dispose();
            throw;
        }
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
        var grid = new PixelGrid((int*)Cairo.ImageSurfaceGetData(_surface.Pointer), Width, Height, this);
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

    public void Dispose() => _surface.Dispose();
}
