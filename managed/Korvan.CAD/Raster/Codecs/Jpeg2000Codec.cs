using System;
using System.IO;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Native;
using Korvan.CAD.Raster.Pixels;
using J2K = Korvan.CAD.FileFormats.Jpeg2000.Jpeg2000Codec;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Reads and writes JPEG 2000, as a JP2 file and as a bare codestream.</summary>
internal static unsafe class Jpeg2000Codec
{
    /// <summary>Samples up to which an image is one tile, if there is room for it.</summary>
    private const long MaxWholeSamples = 16_000_000;
    private const int BytesOfWholeSample = 8;
    private const int TileSide = 1024;
    private const int MaxResolutions = 6;
    private const int MinSamplesOfThreads = 250_000;
    private const int MaxThreads = 8;

    internal static void Write(PixelGrid pixels, Jpeg2000Options options, Stream output)
    {
        (J2K container, bool irreversible, float ratio) = (
            options.Codec, options.Irreversible, options.CompressionRatio);
        using MemoryStream content = LongCall.Run(
            () =>
            {
                var target = new MemoryStream();
                Encode(pixels, container, irreversible, ratio, pixels.IsGray(), target);
                return target;
            },
            null, pixels.Lifetime);
        content.WriteTo(output);
    }

    /// <summary>Compresses pixels; <paramref name="target"/> must be seekable.</summary>
    internal static void Encode(
        PixelGrid pixels, J2K container, bool irreversible, float ratio, bool gray, Stream target)
    {
        OpenJpeg.Require();
        bool alpha = !pixels.IsOpaque();
        int colors = gray ? 1 : 3;
        int count = colors + (alpha ? 1 : 0);
        long samples = pixels.Count * count;
        using NativeRoom? whole = samples > MaxWholeSamples ? null : NativeRoom.TryTake(samples * BytesOfWholeSample);
        bool hasTiles = whole is null;
        using OpenJpegImageHandle image = Planes(pixels, colors, alpha, hasTiles);
        OpenJpeg.EncoderParameters parameters;
        OpenJpeg.SetDefaults(&parameters);
        parameters.Layers = 1;
        parameters.HasTiles = hasTiles ? 1 : 0;
        parameters.TileWidth = parameters.TileHeight = TileSide;
        parameters.FirstRate = ratio <= 1 ? 0 : ratio;
        parameters.AllocateByRate = 1;
        parameters.Irreversible = irreversible ? 1 : 0;
        parameters.ColorTransform = (byte)(colors == 3 ? 1 : 0);
        parameters.Resolutions = Resolutions(Math.Min(pixels.Width, pixels.Height));
        int format = container == J2K.J2K ? OpenJpeg.CodecJ2K : OpenJpeg.CodecJp2;
        using OpenJpegCodecHandle codec = Allocated(OpenJpeg.CreateCompress(format));
        using var bridge = new StreamBridge(target);
        bool done;
        using (OpenJpegStreamHandle stream = OpenStream(bridge, input: false))
        {
            OpenJpeg.SetErrorHandler(codec, &OnError, bridge.Closure);
            done = OpenJpeg.SetupEncoder(codec, &parameters, image) != 0;
            UseThreads(codec, samples);
            done = done && OpenJpeg.Start(codec, image, stream) != 0
                && (hasTiles ? WriteTiles(codec, stream, pixels, colors, count) : OpenJpeg.Encode(codec, stream) != 0)
                && OpenJpeg.End(codec, stream) != 0;
        }

        bridge.Rethrow(); // closing the stream writes, too
        if (!done)
        {
            throw new Jpeg2000Exception($"The image could not be compressed: {bridge.Error ?? "unknown failure"}.");
        }
    }

    internal static DecodedFile Read(RasterSource source)
    {
        bool bare = source.Bytes.StartsWith((ReadOnlySpan<byte>)[0xFF, 0x4F, 0xFF, 0x51]);
        PixelGrid pixels = Decode(source, source.Data, bare, out int bits);
        return new DecodedFile
        {
            Format = FileFormat.Jpeg2000,
            Frames = [new DecodedFrame { Pixels = pixels, BitsPerPixel = bits }],
        };
    }

    internal static PixelGrid Decode(RasterSource source, byte[] data, bool bare, out int bitsPerPixel)
    {
        OpenJpeg.Require();
        int format = bare ? OpenJpeg.CodecJ2K : OpenJpeg.CodecJp2;
        using OpenJpegCodecHandle codec = Allocated(OpenJpeg.CreateDecompress(format));
        using var bridge = new StreamBridge(new MemoryStream(data, false));
        using OpenJpegStreamHandle stream = OpenStream(bridge, input: true);
        byte* parameters = stackalloc byte[OpenJpeg.DecoderParameters];
        OpenJpeg.SetErrorHandler(codec, &OnError, bridge.Closure);
        OpenJpeg.SetDecoderDefaults(parameters);
        bool ready = OpenJpeg.SetupDecoder(codec, parameters) != 0
            && OpenJpeg.SetStrict(codec, source.Lenient ? 0 : 1) != 0;
        Verify(ready, source, bridge);
        using var structure = new NativeRoom(Jpeg2000Structure.DecoderBytes(data, bare));
        bool read = OpenJpeg.ReadHeader(stream, codec, out OpenJpegImageHandle opened) != 0;
        using OpenJpegImageHandle image = opened;
        Verify(read, source, bridge);
        VerifySize(image.Header, source, data.Length);
        using var room = new NativeRoom(SampleBytes(image.Header));
        bool whole = OpenJpeg.Decode(codec, stream, image) != 0 && OpenJpeg.EndDecompress(codec, stream) != 0;
        Verify(whole, source, bridge);
        return Jpeg2000Planes.ToPixels(image.Header, source, out bitsPerPixel);
    }

    private static void Verify(bool done, RasterSource source, StreamBridge bridge)
    {
        if (!done)
        {
            throw new Jpeg2000Exception(
                $"'{source.Name}' is no JPEG 2000 that can be read: {bridge.Error ?? "unknown failure"}.");
        }
    }

    // A code block of 64 × 64 takes some bits even when it is empty.
    private static void VerifySize(in OpenJpeg.ImageHeader image, RasterSource source, int length)
    {
        long width = (long)image.X1 - image.X0;
        long height = (long)image.Y1 - image.Y0;
        if (width < 1 || height < 1)
        {
            throw new Jpeg2000Exception($"'{source.Name}' claims {width} × {height} pixels, which is no image.");
        }

        PixelGrid.VerifySize(width, height);
        if (width * height > (length * 20_000L) + 65_536)
        {
            throw new Jpeg2000Exception(
                $"'{source.Name}' claims {width} × {height} pixels, which its {length} bytes cannot hold.");
        }
    }

    private static long SampleBytes(in OpenJpeg.ImageHeader image) =>
        ((long)image.X1 - image.X0) * ((long)image.Y1 - image.Y0) * image.ComponentCount * sizeof(int);

    // Blocks of samples are coded on their own, by as many threads as there are processors. A forked child has none of
    // the runtime's that could take over a message of theirs.
    private static void UseThreads(OpenJpegCodecHandle codec, long samples)
    {
        if (samples >= MinSamplesOfThreads && !ForkedProcess.IsChild && Environment.ProcessorCount > 1)
        {
            // Where there can be none, the codec does without.
            _ = OpenJpeg.SetThreads(codec, Math.Min(Environment.ProcessorCount, MaxThreads));
        }
    }

    private static int Resolutions(int side)
    {
        int count = 1;
        while (count < MaxResolutions && side >> count > 0)
        {
            count++;
        }

        return count;
    }

    private static OpenJpegImageHandle Planes(PixelGrid pixels, int colors, bool alpha, bool hasTiles)
    {
        int count = colors + (alpha ? 1 : 0);
        OpenJpeg.ComponentParameters* components = stackalloc OpenJpeg.ComponentParameters[4];
        for (int i = 0; i < count; i++)
        {
            components[i] =
                new() { Dx = 1, Dy = 1, Width = (uint)pixels.Width, Height = (uint)pixels.Height, Precision = 8 };
        }

        int space = colors == 1 ? OpenJpeg.ColorGray : OpenJpeg.ColorRgb;
        OpenJpegImageHandle image = Allocated(hasTiles
            ? OpenJpeg.CreateTileImage((uint)count, components, space)
            : OpenJpeg.CreateImage((uint)count, components, space));
        ref OpenJpeg.ImageHeader header = ref image.Header;
        (header.X1, header.Y1) = ((uint)pixels.Width, (uint)pixels.Height);
        for (int c = 0; c < count && !hasTiles; c++)
        {
            int shift = c < colors ? 16 - (8 * c) : 24;
            int* to = header.Components[c].Data;
            for (int y = 0; y < pixels.Height; y++)
            {
                foreach (int pixel in pixels.Row(y))
                {
                    *to++ = (pixel >> shift) & 255;
                }
            }
        }

        if (alpha)
        {
            header.Components[count - 1].Alpha = 1;
        }

        return image;
    }

    // The samples of a component follow those of the one before.
    private static bool WriteTiles(
        OpenJpegCodecHandle codec, OpenJpegStreamHandle stream, PixelGrid pixels, int colors, int count)
    {
        var samples = new byte[TileSide * TileSide * count];
        uint index = 0;
        for (int top = 0; top < pixels.Height; top += TileSide)
        {
            for (int left = 0; left < pixels.Width; left += TileSide)
            {
                Budget.Check();
                int width = Math.Min(TileSide, pixels.Width - left);
                int height = Math.Min(TileSide, pixels.Height - top);
                int used = 0;
                for (int c = 0; c < count; c++)
                {
                    int shift = c < colors ? 16 - (8 * c) : 24;
                    for (int y = top; y < top + height; y++)
                    {
                        foreach (int pixel in pixels.Row(y).Slice(left, width))
                        {
                            samples[used++] = (byte)(pixel >> shift);
                        }
                    }
                }

                fixed (byte* data = samples)
                {
                    if (OpenJpeg.WriteTile(codec, index++, data, (uint)used, stream) == 0)
                    {
                        return false;
                    }
                }
            }
        }

        return true;
    }

    /// <summary>Throws where the library had no memory.</summary>
    private static T Allocated<T>(T handle)
        where T : SafeHandle => handle.IsInvalid ? throw new OutOfMemoryException() : handle;

    private static OpenJpegStreamHandle OpenStream(StreamBridge bridge, bool input)
    {
        OpenJpegStreamHandle stream = Allocated(OpenJpeg.CreateStream(input ? 1 : 0));
        OpenJpeg.SetUserData(stream, bridge.Closure, 0);
        OpenJpeg.SetUserDataLength(stream, input ? (ulong)bridge.Length : 0);
        OpenJpeg.SetRead(stream, &Read);
        OpenJpeg.SetWrite(stream, &Write);
        OpenJpeg.SetSkip(stream, &Skip);
        OpenJpeg.SetSeek(stream, &Seek);
        return stream;
    }

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static nuint Read(byte* target, nuint count, nint user)
    {
        nint read = StreamBridge.Of(user).Read(target, (nint)Math.Min(count, int.MaxValue));
        return read <= 0 ? nuint.MaxValue : (nuint)read; // -1 is the end, too
    }

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static nuint Write(byte* data, nuint count, nint user) =>
        (nuint)StreamBridge.Of(user).Write(data, (nint)count);

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static long Skip(long count, nint user)
    {
        StreamBridge bridge = StreamBridge.Of(user);
        long before = bridge.Position;
        long after = bridge.Seek(count, System.IO.SeekOrigin.Current);
        return before < 0 || after < 0 ? -1 : after - before;
    }

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static int Seek(long position, nint user) =>
        StreamBridge.Of(user).Seek(position, System.IO.SeekOrigin.Begin) < 0 ? 0 : 1;

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static void OnError(byte* message, nint user)
    {
        StreamBridge.Of(user).Error ??= Marshal.PtrToStringUTF8((nint)message)?.Trim();
    }
}
