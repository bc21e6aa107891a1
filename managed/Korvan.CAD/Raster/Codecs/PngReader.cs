using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions.Compressors;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Raster.Native;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Reads PNG: the pixels through libpng, metadata from the chunks.</summary>
internal static unsafe class PngReader
{
    /// <summary>Deflate expands a byte to at most 1032, each of up to eight pixels.</summary>
    private const long MaxPixelsPerByte = 1032 * 8;

    private const double MetresPerInch = 0.0254;

    internal static DecodedFile Read(RasterSource source)
    {
        Png.Require();
        Dictionary<string, byte[]> chunks = Chunks(source.Bytes);
        PixelGrid pixels = Pixels(source);
        (double x, double y) = Density(chunks);
        byte[] header = chunks["IHDR"];
        int samples = header[9] switch { 2 => 3, 4 => 2, 6 => 4, _ => 1 };
        return new DecodedFile
        {
            Format = FileFormat.Png,
            Exif = JpegReader.ReadExif(chunks.GetValueOrDefault("eXIf")),
            Xmp = XmpPacketWrapper.TryRead(chunks.GetValueOrDefault("iTXt")),
            Frames =
            [
                new DecodedFrame
                {
                    Pixels = pixels,
                    BitsPerPixel = samples * header[8],
                    HorizontalResolution = x,
                    VerticalResolution = y,
                    Palette = header[9] == 3 ? Palette(chunks) : null,
                },
            ],
        };
    }

    private static PixelGrid Pixels(RasterSource source)
    {
        byte[] file = PngDeinterlacer.Convert(source);
        using var image = new PngImageHandle();
        ref Png.State state = ref image.State;
        fixed (byte* data = file)
        {
            if (Png.Begin(image, data, (nuint)file.Length) == 0)
            {
                throw Failure(source, state.Text());
            }

            if ((long)state.Width * state.Height > source.Data.Length * MaxPixelsPerByte)
            {
                throw new PngImageException($"'{source.Name}' claims {state.Width} × {state.Height} pixels,"
                    + $" which its {source.Data.Length} bytes cannot hold.");
            }

            var pixels = new PixelGrid(checked((int)state.Width), checked((int)state.Height));
            state.Format = Png.FormatBgra;
            state.Flags |= Png.SixteenBitsAreSrgb; // without a gamma they would be taken for linear light
            if (Png.Finish(image, null, pixels.WritablePointer, pixels.Width * 4, null) == 0)
            {
                pixels.Dispose();
                throw Failure(source, state.Text());
            }

            return pixels;
        }
    }

    private static PngImageException Failure(RasterSource source, string reason)
    {
        bool deflate = reason.Contains("IDAT", StringComparison.Ordinal)
            || reason.Contains("deflate", StringComparison.Ordinal);
        DeflateCompressorException? inner = deflate ? new DeflateCompressorException(reason) : null;
        return new PngImageException($"'{source.Name}' is damaged: {reason}.", inner);
    }

    // The first chunk of each kind; libpng decides whether the file is valid.
    private static Dictionary<string, byte[]> Chunks(ReadOnlySpan<byte> data)
    {
        var chunks = new Dictionary<string, byte[]> { ["IHDR"] = new byte[13] };
        int at = 8;
        while (at + 12 <= data.Length)
        {
            int length = BinaryPrimitives.ReadInt32BigEndian(data[at..]);
            if (length < 0 || length > data.Length - at - 12)
            {
                break;
            }

            string type = System.Text.Encoding.Latin1.GetString(data.Slice(at + 4, 4));
            if (type == "IHDR" && length == 13)
            {
                chunks[type] = data.Slice(at + 8, length).ToArray();
            }
            else if (type is "pHYs" or "PLTE" or "tRNS" or "eXIf")
            {
                chunks.TryAdd(type, data.Slice(at + 8, length).ToArray());
            }
            else if (type == "iTXt" && data.Slice(at + 8, length).StartsWith(PngStream.XmpPrefix))
            {
                chunks.TryAdd(type, data.Slice(at + 8, length)[PngStream.XmpPrefix.Length..].ToArray());
            }

            at += length + 12;
        }

        return chunks;
    }

    private static (double X, double Y) Density(Dictionary<string, byte[]> chunks)
    {
        if (!chunks.TryGetValue("pHYs", out byte[]? data) || data.Length != 9 || data[8] != 1)
        {
            return default;
        }

        uint across = BinaryPrimitives.ReadUInt32BigEndian(data);
        uint down = BinaryPrimitives.ReadUInt32BigEndian(data.AsSpan(4));
        return (across * MetresPerInch, down * MetresPerInch);
    }

    private static ColorPalette? Palette(Dictionary<string, byte[]> chunks)
    {
        if (!chunks.TryGetValue("PLTE", out byte[]? data) || data.Length < 3)
        {
            return null;
        }

        byte[] opacity = chunks.GetValueOrDefault("tRNS", []);
        var colors = new int[data.Length / 3];
        for (int i = 0; i < colors.Length; i++)
        {
            int alpha = i < opacity.Length ? opacity[i] : 255;
            colors[i] = (alpha << 24) | (data[3 * i] << 16) | (data[(3 * i) + 1] << 8) | data[(3 * i) + 2];
        }

        return new ColorPalette(colors);
    }
}
