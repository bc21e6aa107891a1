using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Colors;
using Korvan.CAD.Raster.Native;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Writes GIF 89a: one palette for all frames, each as large as the whole image.</summary>
internal sealed unsafe class GifWriter
{
    private const int MaxSide = 65_535;
    private static readonly (int First, int Step)[] InterlacePasses = [(0, 8), (4, 8), (2, 4), (1, 2)];

    private readonly GifOptions _options;
    private readonly GifWriteHandle _gif;
    private readonly int[] _palette;
    private readonly int _transparent;

    private GifWriter(GifOptions options, GifWriteHandle gif, int[] palette)
    {
        _options = options;
        _gif = gif;
        _palette = palette;
        _transparent = Array.FindIndex(palette, static color => (color >>> 24) < 128);
    }

    internal static void Write(IRasterPages pages, GifOptions options, Stream output)
    {
        Gif.Require();
        List<int> chosen = PageChoice.Of(pages, options.MultiPageOptions);
        using RasterPageData first = Render(pages, chosen[0], options);
        int[] palette = Palette(pages, chosen, first, options);
        using var bridge = new StreamBridge(output);
        try
        {
            int error;
            using GifColorMapHandle map = Map(palette);
            using GifWriteHandle gif = Gif.OpenWrite(bridge.Closure, &Write, &error);
            if (map.IsInvalid || gif.IsInvalid)
            {
                throw new OutOfMemoryException();
            }

            Gif.SetVersion(gif, true);
            var writer = new GifWriter(options, gif, palette);
            writer.Verify(Gif.PutScreen(gif, first.Pixels.Width, first.Pixels.Height, 8, 0, map));
            if (chosen.Count > 1)
            {
                writer.WriteLoop();
            }

            writer.WriteFrames(pages, chosen, first);
        }
        catch (GifImageException) when (bridge.Failure != null)
        {
            bridge.Rethrow();
        }

        bridge.Rethrow(); // closing writes the trailer
    }

    private static RasterPageData Render(IRasterPages pages, int index, GifOptions options)
    {
        RasterPageData page = PageChoice.Render(pages, index, options.MultiPageOptions);
        for (int y = 0; y < page.Pixels.Height; y++)
        {
            if (PixelGrid.AreOpaque(page.Pixels.Row(y)))
            {
                continue;
            }

            foreach (ref int pixel in page.Pixels.WritableRow(y))
            {
                pixel = (pixel >>> 24) < 128 ? 0 : PixelGrid.Over(pixel, -1);
            }
        }

        return page;
    }

    private static int[] Palette(IRasterPages pages, List<int> chosen, RasterPageData first, GifOptions options)
    {
        if (options.Palette != null)
        {
            return PaletteChoice.Verified(options.Palette, options.MaxColors);
        }

        var colors = new ColorHistogram();
        colors.Add(first.Pixels);
        for (int i = 1; i < chosen.Count; i++)
        {
            using RasterPageData page = Render(pages, chosen[i], options);
            colors.Add(page.Pixels);
        }

        return Quantizer.Choose(colors, options.MaxColors, options.PaletteMethod);
    }

    /// <summary>Returns a colour table of the next power of two.</summary>
    private static GifColorMapHandle Map(int[] palette)
    {
        int size = 2;
        while (size < palette.Length)
        {
            size *= 2;
        }

        byte* rgb = stackalloc byte[size * 3];
        for (int i = 0; i < palette.Length; i++)
        {
            (rgb[3 * i], rgb[(3 * i) + 1], rgb[(3 * i) + 2]) =
                ((byte)(palette[i] >> 16), (byte)(palette[i] >> 8), (byte)palette[i]);
        }

        return Gif.MakeMap(size, rgb);
    }

    private void WriteFrames(IRasterPages pages, List<int> chosen, RasterPageData first)
    {
        WriteFrame(first.Pixels, chosen.Count);
        for (int i = 1; i < chosen.Count; i++)
        {
            using RasterPageData page = Render(pages, chosen[i], _options);
            if (page.Pixels.Width > first.Pixels.Width || page.Pixels.Height > first.Pixels.Height)
            {
                throw new GifImageException(
                    $"Page {chosen[i]} is larger ({page.Pixels.Width} × {page.Pixels.Height} pixels)"
                    + $" than the first ({first.Pixels.Width} × {first.Pixels.Height}); give all pages one size.");
            }

            WriteFrame(page.Pixels, chosen.Count);
        }
    }

    private void WriteFrame(PixelGrid pixels, int frames)
    {
        if (pixels.Width > MaxSide || pixels.Height > MaxSide)
        {
            throw new GifImageException($"A GIF holds at most {MaxSide} pixels on a side.");
        }

        WriteControl(frames);
        Verify(Gif.PutImage(_gif, 0, 0, pixels.Width, pixels.Height, _options.Interlaced, null));
        byte[] indices = IndexedPixels.Of(pixels, _palette, _options.Dithering);
        fixed (byte* start = indices)
        {
            foreach ((int from, int step) in _options.Interlaced ? InterlacePasses : [(0, 1)])
            {
                for (int y = from; y < pixels.Height; y += step)
                {
                    Verify(Gif.PutLine(_gif, start + ((long)y * pixels.Width), pixels.Width));
                }
            }
        }
    }

    // The graphic control extension: the disposal of a frame, its delay, which index is transparent.
    private void WriteControl(int frames)
    {
        if (frames == 1 && _transparent < 0)
        {
            return;
        }

        const int toBackground = 2;
        byte* data = stackalloc byte[4];
        data[0] = (byte)(((frames > 1 ? toBackground : 0) << 2) | (_transparent >= 0 ? 1 : 0));
        BinaryPrimitives.WriteUInt16LittleEndian(
            new Span<byte>(data + 1, 2), (ushort)(frames > 1 ? _options.FrameTime / 10 : 0));
        data[3] = (byte)Math.Max(0, _transparent);
        Verify(Gif.PutExtension(_gif, Gif.GraphicsExtension, 4, data));
    }

    // The application extension of the number of repetitions.
    private void WriteLoop()
    {
        fixed (byte* name = "NETSCAPE2.0"u8)
        {
            byte* data = stackalloc byte[3];
            data[0] = 1;
            BinaryPrimitives.WriteUInt16LittleEndian(new Span<byte>(data + 1, 2), (ushort)_options.LoopCount);
            Verify(Gif.PutLeader(_gif, Gif.ApplicationExtension));
            Verify(Gif.PutBlock(_gif, 11, name));
            Verify(Gif.PutBlock(_gif, 3, data));
            Verify(Gif.PutTrailer(_gif));
        }
    }

    private void Verify(int result)
    {
        if (result != Gif.Ok)
        {
            throw new GifImageException($"The image could not be written: {Gif.Error(_gif.File.Error)}.");
        }
    }

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static int Write(Gif.File* gif, byte* data, int count) =>
        (int)StreamBridge.Of(gif->User).Write(data, count);
}
