using System;
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

/// <summary>Reads GIF: each frame composited over the previous ones.</summary>
internal sealed unsafe class GifReader
{
    private const int MaxFrames = 10_000;
    private const int DisposalKeep = 1;
    private const int DisposalBackground = 2;
    private const int DisposalPrevious = 3;
    private static readonly (int First, int Step)[] InterlacePasses = [(0, 8), (4, 8), (2, 4), (1, 2)];

    private readonly RasterSource _source;
    private readonly GifReadHandle _gif;
    private readonly List<DecodedFrame> _frames = [];
    private int _transparent = -1;
    private int _disposal;

    // The last frame, how it ends, and what the canvas showed before it where that comes back.
    private Gif.ImageDescription _last;
    private int _lastDisposal;
    private PixelGrid? _before;

    private GifReader(RasterSource source, GifReadHandle gif)
    {
        _source = source;
        _gif = gif;
    }

    internal static DecodedFile Read(RasterSource source)
    {
        Gif.Require();
        using var bridge = new StreamBridge(new MemoryStream(source.Data, false));
        int error = 0;
        using GifReadHandle gif = Gif.OpenRead(bridge.Closure, &ReadBytes, &error);
        if (gif.IsInvalid)
        {
            throw new GifImageException($"'{source.Name}' is no GIF that can be read: {Gif.Error(error)}.");
        }

        var reader = new GifReader(source, gif);
        try
        {
            reader.ReadAll();
            return new DecodedFile { Format = FileFormat.Gif, Frames = reader._frames };
        }
        catch
        {
            reader._frames.ForEach(static frame => frame.Dispose());
            throw;
        }
        finally
        {
            reader._before?.Dispose();
        }
    }

    private void ReadAll()
    {
        if (_gif.File.Width < 1 || _gif.File.Height < 1)
        {
            throw new GifImageException(
                $"'{_source.Name}' claims {_gif.File.Width} × {_gif.File.Height} pixels, which is no image.");
        }

        PixelGrid.VerifySize(_gif.File.Width, _gif.File.Height);
        VerifyTotal(GifFrameCount.Of(_source.Bytes, MaxFrames));
        Gif.Record record;
        do
        {
            if (!Verify(Gif.GetRecord(_gif, &record)))
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
        while (record != Gif.Record.Terminate && _frames.Count < MaxFrames);
        if (_frames.Count == 0)
        {
            throw new GifImageException($"'{_source.Name}' holds no image.");
        }
    }

    private void VerifyTotal(int frames)
    {
        if (frames * (long)_gif.File.Width * _gif.File.Height > PixelGrid.MaxPixels)
        {
            throw new LimitMemoryException(
                $"The frames of '{_source.Name}' have more than {PixelGrid.MaxPixels} pixels in all.");
        }
    }

    /// <summary>Throws after a failure; returns false instead where reading is lenient and there is something to
    /// show.</summary>
    private bool Verify(int result) => result == Gif.Ok || Fail(_gif.File.Error);

    private bool Fail(int error)
    {
        if (_source.Lenient && _frames.Count > 0)
        {
            return false;
        }

        string reason = Gif.Error(error);
        throw new GifImageException($"'{_source.Name}' is damaged: {reason}.", new LzwCompressorException(reason));
    }

    private bool ReadExtension()
    {
        int code;
        byte* block;
        if (!Verify(Gif.GetExtension(_gif, &code, &block)))
        {
            return false;
        }

        while (block != null)
        {
            if (code == Gif.GraphicsExtension && block[0] >= 4)
            {
                _disposal = (block[1] >> 2) & 7;
                _transparent = (block[1] & 1) != 0 ? block[4] : -1;
            }

            if (!Verify(Gif.GetExtensionNext(_gif, &block)))
            {
                return false;
            }
        }

        return true;
    }

    private bool ReadFrame()
    {
        if (!Verify(Gif.GetImage(_gif)))
        {
            return false;
        }

        Gif.ImageDescription image = _gif.File.Image;
        int[] palette = Palette(image.Map != null ? image.Map : _gif.File.Map);
        VerifyTotal(_frames.Count + 1);
        if (image.Width < 1 || image.Height < 1)
        {
            throw new GifImageException(
                $"A frame of '{_source.Name}' is {image.Width} × {image.Height} pixels large.");
        }

        PixelGrid canvas = NextCanvas();
        _frames.Add(new DecodedFrame { Pixels = canvas, BitsPerPixel = 8, Palette = new ColorPalette(palette) });
        _before = _disposal == DisposalPrevious ? canvas.Copy() : null;
        bool whole = Draw(canvas, image, palette);
        (_last, _lastDisposal) = (image, _disposal);
        (_transparent, _disposal) = (-1, DisposalKeep);
        return whole;
    }

    /// <summary>Returns what a frame is drawn on. It becomes the frame, so that only the next one needs a
    /// copy.</summary>
    private PixelGrid NextCanvas()
    {
        if (_frames.Count == 0)
        {
            return new PixelGrid(_gif.File.Width, _gif.File.Height);
        }

        PixelGrid canvas = _frames[^1].Pixels.Copy();
        EndFrame(canvas);
        _before?.Dispose();
        _before = null;
        return canvas;
    }

    private int[] Palette(Gif.ColorMap* map)
    {
        if (map == null)
        {
            throw new GifImageException($"A frame of '{_source.Name}' has no palette.");
        }

        var palette = new int[256];
        palette.AsSpan().Fill(PixelGrid.Opaque);
        for (int i = 0; i < Math.Min(map->Count, 256); i++)
        {
            byte* color = map->Colors + (3 * i);
            palette[i] = PixelGrid.Opaque | (color[0] << 16) | (color[1] << 8) | color[2];
        }

        if (_transparent >= 0)
        {
            palette[_transparent] = 0;
        }

        return palette;
    }

    private bool Draw(PixelGrid canvas, in Gif.ImageDescription image, int[] palette)
    {
        var line = new byte[image.Width];
        var pixels = new GifLzw(_gif);
        foreach ((int first, int step) in image.Interlace != 0 ? InterlacePasses : [(0, 1)])
        {
            for (int y = first; y < image.Height; y += step)
            {
                if (!pixels.TryRead(line))
                {
                    return Fail(pixels.Error);
                }

                PlaceLine(canvas, line, image.Left, image.Top + y, palette);
            }
        }

        return pixels.TryFinish() || Fail(pixels.Error);
    }

    private static void PlaceLine(PixelGrid canvas, byte[] line, int left, int y, int[] palette)
    {
        if (y >= canvas.Height)
        {
            return;
        }

        Span<int> row = canvas.WritableRow(y);
        row = row[Math.Min(left, row.Length)..];
        for (int x = 0; x < line.Length && x < row.Length; x++)
        {
            int color = palette[line[x]];
            if (color != 0)
            {
                row[x] = color;
            }
        }
    }

    /// <summary>Takes the last frame off a canvas as it asks for.</summary>
    private void EndFrame(PixelGrid canvas)
    {
        if (_before == null && _lastDisposal != DisposalBackground)
        {
            return;
        }

        int width = Math.Clamp(canvas.Width - _last.Left, 0, _last.Width);
        for (int y = _last.Top; y < Math.Min(canvas.Height, _last.Top + _last.Height); y++)
        {
            Span<int> place = width == 0 ? [] : canvas.WritableRow(y).Slice(_last.Left, width);
            if (_before == null)
            {
                place.Clear();
            }
            else if (width > 0)
            {
                _before.Row(y).Slice(_last.Left, width).CopyTo(place);
            }
        }
    }

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static int ReadBytes(Gif.File* gif, byte* target, int count) =>
        (int)StreamBridge.Of(gif->User).Read(target, count);
}
