using System;
using System.Buffers.Binary;
using System.IO;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Native;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Reads and writes WebP.</summary>
internal static unsafe class WebPCodec
{
    /// <summary>Takes half the time of the default method for 4 percent more bytes.</summary>
    private const int FastMethod = 2;
    private const int DefaultMethod = 4;

    /// <summary>What libwebp needs for each pixel that is hard to compress: its copy of the image, the chains of hash
    /// values and the runs found.</summary>
    private const int LosslessBytesPerPixel = 34;

    /// <summary>The same with loss: luma, chroma, alpha and what the blocks become.</summary>
    private const double LossyBytesPerPixel = 2.75;

    /// <summary>From so many pixels on, the encoder keeps no symbols between its passes.</summary>
    private const int MaxWithTokens = 4 << 20;

    internal static void Write(PixelGrid pixels, WebPOptions options, Stream output)
    {
        WebP.Require();
        if (pixels.Width > WebP.MaxSide || pixels.Height > WebP.MaxSide)
        {
            throw new ImageSaveException(
                $"A WebP holds at most {WebP.MaxSide} pixels on a side, not {pixels.Width} × {pixels.Height}.");
        }

        bool isSmall = pixels.Count <= PixelGrid.MaxSmall;
        if (!options.Lossless)
        {
            WriteLossy(pixels, options.Quality, isSmall, output);
            return;
        }

        using NativeRoom? room = isSmall ? null : NativeRoom.TryTake(pixels.Count * LosslessBytesPerPixel);
        if (isSmall || room is not null)
        {
            output.Write(LongCall.Run(() => EncodeLossless(pixels), null, isSmall, pixels.Lifetime));
        }
        else
        {
            LosslessWebP.Write(pixels, output);
        }
    }

    private static void WriteLossy(PixelGrid pixels, float quality, bool isSmall, Stream output)
    {
        // Thumbnails are made by the thousand.
        int method = isSmall ? FastMethod : DefaultMethod;
        using NativeRoom? room = isSmall ? null : new NativeRoom((long)(pixels.Count * LossyBytesPerPixel));
        byte[]? file = LongCall.Run(
            () => WebPEncoder.TryEncode(pixels, quality, method, savesMemory: pixels.Count > MaxWithTokens),
            null, isSmall, pixels.Lifetime);
        output.Write(file ?? throw new ImageSaveException("The image could not be compressed as WebP."));
    }

    private static byte[] EncodeLossless(PixelGrid pixels)
    {
        nuint size = WebP.EncodeLossless(
            pixels.Pointer, pixels.Width, pixels.Height, pixels.Width * 4, out WebPBufferHandle data);
        using (data)
        {
            return size > 0
                ? data.Bytes(size).ToArray()
                : throw new ImageSaveException("The image could not be compressed as WebP.");
        }
    }

    internal static DecodedFile Read(RasterSource source)
    {
        WebP.Require();
        fixed (byte* data = source.Data)
        {
            int width, height;
            if (WebP.GetInfo(data, (nuint)source.Data.Length, &width, &height) == 0)
            {
                throw new ImageLoadException($"'{source.Name}' is no WebP with one image that can be read.");
            }

            if (IsAnimation(source.Data))
            {
                throw new ImageLoadException($"'{source.Name}' is an animated WebP, which is not read.");
            }

            using var room = new NativeRoom((long)width * height * (IsLossless(source.Data) ? sizeof(int) : 1));
            var pixels = new PixelGrid(width, height);
            var size = (nuint)(pixels.Count * 4);
            if (WebP.DecodeBgra(data, (nuint)source.Data.Length, pixels.WritablePointer, size, width * 4) == null)
            {
                pixels.Dispose();
                throw new ImageLoadException($"The image of '{source.Name}' is damaged or cut off.");
            }

            return new DecodedFile
            {
                Format = FileFormat.Webp,
                Frames = [new DecodedFrame { Pixels = pixels, BitsPerPixel = 32 }],
            };
        }
    }

    // Lossless images are decoded as a whole, lossy ones row by row but for their alpha (RFC 9649, sections 2.5, 2.6).
    private static bool IsLossless(ReadOnlySpan<byte> data)
    {
        const int header = 12;
        for (int at = header; at + 8 <= data.Length;)
        {
            ReadOnlySpan<byte> chunk = data.Slice(at, 4);
            if (chunk.SequenceEqual("VP8 "u8))
            {
                return false;
            }

            if (chunk.SequenceEqual("VP8L"u8))
            {
                return true;
            }

            long next = at + 8 + ((BinaryPrimitives.ReadUInt32LittleEndian(data[(at + 4)..]) + 1L) & ~1L);
            at = (int)Math.Min(next, data.Length);
        }

        return true;
    }

    // A flag of the extended header (RFC 9649, section 2.7).
    private static bool IsAnimation(ReadOnlySpan<byte> data) =>
        data.Length > 20 && data[12..].StartsWith("VP8X"u8) && (data[20] & 2) != 0;
}
