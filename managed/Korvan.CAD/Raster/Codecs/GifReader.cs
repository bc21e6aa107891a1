using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.Compressors;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Raster.Native;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Reads GIF: each frame as it is seen, over what the frames before it left.</summary>
internal sealed unsafe class GifReader
{
    private const int MostFrames = 10_000;
    private const int KeepsPlace = 1;
    private const int ToBackground = 2;
    private const int ToPrevious = 3;
    private static readonly (int First, int Step)[] InterlacePasses = [(0, 8), (4, 8), (2, 4), (1, 2)];

    private readonly RasterSource source;
    private readonly Gif.File* gif;
    private readonly List<DecodedFrame> frames = [];
    private PixelGrid? canvas;
    private long total;
    private int transparent = -1;
    private int disposal;

    private GifReader(RasterSource source, Gif.File* gif)
    {
        this.source = source;
        this.gif = gif;
    }

    internal static DecodedFile Read(RasterSource source)
    {
        Gif.Require();
        using var bridge = new StreamBridge(new MemoryStream(source.Data, false));
        int error = 0;
        Gif.File* gif = Gif.OpenRead(bridge.Closure, &ReadBytes, &error);
        if (gif == null)
        {
            throw new GifImageException($"'{source.Name}' is no GIF that can be read: {Gif.Error(error)}.");
        }

        var reader = new GifReader(source, gif);
        try
        {
            reader.ReadAll();
            return new DecodedFile { Format = FileFormat.Gif, Frames = reader.frames };
        }
        catch
        {
            reader.frames.ForEach(static frame => frame.Dispose());
            throw;
        }
        finally
        {
            reader.canvas?.Dispose();
            Gif.CloseRead(gif, &error);
        }
    }

    private void ReadAll()
    {
        PixelGrid.Verify(gif->Width, gif->Height);
        Gif.Record record;
        do
        {
            if (!Verify(Gif.GetRecord(gif, &record)))
            {
                break;
            }

            if (record == Gif.Record.Extension && !ReadExtension())
            {
                break;
            }

            if (record == Gif.Record.Image && !ReadFrame())
            {
                break;
            }
        }
        while (record != Gif.Record.Terminate && frames.Count < MostFrames);
        if (frames.Count == 0)
        {
            throw new GifImageException($"'{source.Name}' holds no picture.");
        }
    }

    /// <summary>Throws after a failure, or says that it is the end where damage is to be borne.</summary>
    private bool Verify(int result)
    {
        if (result == Gif.Ok)
        {
            return true;
        }

        if (source.Lenient && (frames.Count > 0 || canvas != null))
        {
            return false;
        }

        string reason = Gif.Error(gif->Error);
        throw new GifImageException($"'{source.Name}' is damaged: {reason}.", new LzwCompressorException(reason));
    }

    private bool ReadExtension()
    {
        int code;
        byte* block;
        if (!Verify(Gif.GetExtension(gif, &code, &block)))
        {
            return false;
        }

        while (block != null)
        {
            if (code == Gif.GraphicsExtension && block[0] >= 4)
            {
                disposal = (block[1] >> 2) & 7;
                transparent = (block[1] & 1) != 0 ? block[4] : -1;
            }

            if (!Verify(Gif.GetExtensionNext(gif, &block)))
            {
                return false;
            }
        }

        return true;
    }

    private bool ReadFrame()
    {
        if (!Verify(Gif.GetImage(gif)))
        {
            return false;
        }

        Gif.ImageDescription image = gif->Image;
        int[] palette = Palette(image.Map != null ? image.Map : gif->Map);
        total += (long)gif->Width * gif->Height;
        if (total > PixelGrid.MaxPixels)
        {
            throw new LimitMemoryException($"The frames of '{source.Name}' have more than {PixelGrid.MaxPixels} pixels in all.");
        }

        if (image.Width < 1 || image.Height < 1)
        {
            throw new GifImageException($"A frame of '{source.Name}' is {image.Width} × {image.Height} pixels large.");
        }

        canvas ??= new PixelGrid(gif->Width, gif->Height);
        using PixelGrid? before = disposal == ToPrevious ? canvas.Copy() : null;
        bool whole = Draw(image, palette);
        frames.Add(new DecodedFrame { Pixels = canvas.Copy(), BitsPerPixel = 8, Palette = new ColorPalette(palette) });
        Leave(image, before);
        (transparent, disposal) = (-1, KeepsPlace);
        return whole;
    }

    private int[] Palette(Gif.ColorMap* map)
    {
        if (map == null)
        {
            throw new GifImageException($"A frame of '{source.Name}' has no palette.");
        }

        var palette = new int[256];
        palette.AsSpan().Fill(PixelGrid.Opaque);
        for (int i = 0; i < Math.Min(map->Count, 256); i++)
        {
            byte* color = map->Colors + (3 * i);
            palette[i] = PixelGrid.Opaque | (color[0] << 16) | (color[1] << 8) | color[2];
        }

        if (transparent >= 0)
        {
            palette[transparent] = 0;
        }

        return palette;
    }

    private bool Draw(in Gif.ImageDescription image, int[] palette)
    {
        var line = new byte[image.Width];
        foreach ((int first, int step) in image.Interlace != 0 ? InterlacePasses : [(0, 1)])
        {
            for (int y = first; y < image.Height; y += step)
            {
                bool read;
                fixed (byte* start = line)
                {
                    read = Verify(Gif.GetLine(gif, start, line.Length));
                }

                if (!read)
                {
                    return false;
                }

                Place(line, image.Left, image.Top + y, palette);
            }
        }

        return true;
    }

    private void Place(byte[] line, int left, int y, int[] palette)
    {
        if (y >= canvas!.Height)
        {
            return;
        }

        Span<int> row = canvas.Row(y);
        for (int x = 0; x < line.Length && left + x < row.Length; x++)
        {
            int color = palette[line[x]];
            row[left + x] = color == 0 ? row[left + x] : color;
        }
    }

    private void Leave(in Gif.ImageDescription image, PixelGrid? before)
    {
        if (before == null && disposal != ToBackground)
        {
            return;
        }

        int width = Math.Clamp(canvas!.Width - image.Left, 0, image.Width);
        for (int y = image.Top; y < Math.Min(canvas.Height, image.Top + image.Height); y++)
        {
            Span<int> place = width == 0 ? [] : canvas.Row(y).Slice(image.Left, width);
            if (before == null)
            {
                place.Clear();
            }
            else if (width > 0)
            {
                before.Row(y).Slice(image.Left, width).CopyTo(place);
            }
        }
    }

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static int ReadBytes(Gif.File* gif, byte* target, int count) => (int)StreamBridge.Of(gif->User).Read(target, count);
}
