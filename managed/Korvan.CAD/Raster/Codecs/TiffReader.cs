using System;
using System.Collections.Generic;
using System.IO;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.Compressors;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Exif;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.Raster.Native;
using Korvan.CAD.Raster.Operations;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Reads the pages of a TIFF of any kind that libtiff can convert to RGBA.</summary>
internal static unsafe class TiffReader
{
    private const int MaxPages = 10_000;
    private const int OpaqueBlack = PixelGrid.Opaque;

    // What brings a page upright whose first row and column are stored on another side (TIFF 6.0, field Orientation).
    private static readonly Dictionary<TiffOrientations, RotateFlipType> Corrections = new()
    {
        [TiffOrientations.TopRight] = RotateFlipType.RotateNoneFlipX,
        [TiffOrientations.BottomRight] = RotateFlipType.Rotate180FlipNone,
        [TiffOrientations.BottomLeft] = RotateFlipType.RotateNoneFlipY,
        [TiffOrientations.LeftTop] = RotateFlipType.Rotate90FlipX,
        [TiffOrientations.RightTop] = RotateFlipType.Rotate90FlipNone,
        [TiffOrientations.RightBottom] = RotateFlipType.Rotate270FlipX,
        [TiffOrientations.LeftBottom] = RotateFlipType.Rotate270FlipNone,
    };

    internal static DecodedFile Read(RasterSource source)
    {
        List<DecodedFrame> frames = [];
        try
        {
            // Memory is not mapped and strips are read as they come, whatever a directory claims of them.
            using var tiff = new TiffFile(new MemoryStream(source.Data, false), source.Name, "rm");
            long total = 0;
            do
            {
                frames.Add(ReadPage(tiff, source, ref total));
            }
            while (frames.Count < MaxPages && Tiff.ReadDirectory(tiff.Handle) == 1);
        }
        catch
        {
            frames.ForEach(static frame => frame.Dispose());
            throw;
        }

        (ExifData? exif, XmpPacketWrapper? xmp) = TiffMetadata.Read(source.Data);
        return new DecodedFile { Format = FileFormat.Tiff, Frames = frames, Exif = exif, Xmp = xmp };
    }

    private static DecodedFrame ReadPage(TiffFile tiff, RasterSource source, ref long total)
    {
        long width = Tiff.GetNumber(tiff.Handle, (int)TiffTags.ImageWidth);
        long height = Tiff.GetNumber(tiff.Handle, (int)TiffTags.ImageLength);
        if (width == 0 || height == 0)
        {
            throw new TiffImageException($"A page of '{source.Name}' is {width} × {height} pixels large.");
        }

        total += width * height;
        PixelGrid.VerifySize(width, height);
        if (total > PixelGrid.MaxPixels)
        {
            throw new LimitMemoryException(
                $"The pages of '{source.Name}' have more than {PixelGrid.MaxPixels} pixels in all.");
        }

        var samples = new TiffSamples(tiff.Handle);
        if (!samples.Fits)
        {
            VerifyConvertible(tiff, source);
        }

        using NativeRoom? room = samples.Fits ? null : new NativeRoom(BlockBytes(tiff));
        var pixels = new PixelGrid((int)width, (int)height);
        try
        {
            bool done = samples.Fits ? samples.Read(pixels, source.Lenient) : ReadPremultiplied(tiff, source, pixels);
            if (!done && !source.Lenient)
            {
                throw Damaged(tiff, source);
            }

            return Frame(tiff, Upright(tiff, pixels));
        }
        catch
        {
            pixels.Dispose();
            throw;
        }
    }

    // libtiff's conversion decodes a block as a whole.
    private static long BlockBytes(TiffFile tiff) =>
        (long)Math.Min(Tiff.IsTiled(tiff.Handle) != 0 ? Tiff.TileSize(tiff.Handle) : Tiff.StripSize(tiff.Handle),
            long.MaxValue / 4);

    private static bool ReadPremultiplied(TiffFile tiff, RasterSource source, PixelGrid pixels)
    {
        // Asked for the orientation that the file has, libtiff leaves rows and columns as they are.
        int orientation = (int)Tiff.GetNumber(tiff.Handle, (int)TiffTags.Orientation);
        var raster = (uint*)pixels.WritablePointer;
        int stop = source.Lenient ? 0 : 1;
        bool done = Tiff.ReadRgba(tiff.Handle, (uint)pixels.Width, (uint)pixels.Height, raster, orientation, stop) == 1;
        Unpremultiply(pixels);
        return done;
    }

    private static PixelGrid Upright(TiffFile tiff, PixelGrid pixels)
    {
        RotateFlipType correction =
            Corrections.GetValueOrDefault((TiffOrientations)Tiff.GetNumber(tiff.Handle, (int)TiffTags.Orientation));
        if (correction == RotateFlipType.RotateNoneFlipNone)
        {
            return pixels;
        }

        PixelGrid upright = Rotation.RotateFlip(pixels, correction);
        pixels.Dispose();
        return upright;
    }

    private static void VerifyConvertible(TiffFile tiff, RasterSource source)
    {
        byte* reason = stackalloc byte[1024];
        if (Tiff.CanBecomeRgba(tiff.Handle, reason) == 0)
        {
            string text = System.Runtime.InteropServices.Marshal.PtrToStringUTF8((nint)reason) ?? "";
            throw new TiffImageException($"A page of '{source.Name}' cannot be read: {text}.");
        }
    }

    private static TiffImageException Damaged(TiffFile tiff, RasterSource source)
    {
        var compression = (TiffCompressions)Tiff.GetNumber(tiff.Handle, (int)TiffTags.Compression);
        Exception? inner = compression switch
        {
            TiffCompressions.Lzw => new LzwCompressorException(tiff.Error),
            TiffCompressions.AdobeDeflate or TiffCompressions.Deflate => new DeflateCompressorException(tiff.Error),
            TiffCompressions.PackBits => new RleCompressorException(tiff.Error),
            _ => null,
        };
        return new TiffImageException($"A page of '{source.Name}' is damaged: {tiff.Error}.", inner);
    }

    // libtiff returns red in the lowest byte, premultiplied.
    private static void Unpremultiply(PixelGrid pixels)
    {
        for (int y = 0; y < pixels.Height; y++)
        {
            foreach (ref int pixel in pixels.WritableRow(y))
            {
                int swapped = (pixel & unchecked((int)0xFF00FF00)) | ((pixel & 255) << 16) | ((pixel >> 16) & 255);
                pixel = (swapped & OpaqueBlack) == OpaqueBlack ? swapped : BitPacking.Unpremultiply(swapped);
            }
        }
    }

    private static DecodedFrame Frame(TiffFile tiff, PixelGrid pixels)
    {
        double per = Tiff.GetNumber(tiff.Handle, (int)TiffTags.ResolutionUnit) switch
        {
            (uint)TiffResolutionUnits.Centimeter => 2.54,
            (uint)TiffResolutionUnits.None => 0,
            _ => 1,
        };
        uint bits = Tiff.GetNumber(tiff.Handle, (int)TiffTags.BitsPerSample);
        uint samples = Tiff.GetNumber(tiff.Handle, (int)TiffTags.SamplesPerPixel);
        double x = Resolution(tiff, TiffTags.XResolution) * per;
        double y = Resolution(tiff, TiffTags.YResolution) * per;
        var orientation = (TiffOrientations)Tiff.GetNumber(tiff.Handle, (int)TiffTags.Orientation);
        bool swapped = orientation is >= TiffOrientations.LeftTop and <= TiffOrientations.LeftBottom;
        return new DecodedFrame
        {
            Pixels = pixels,
            BitsPerPixel = (int)Math.Min(bits * samples, 1024),
            HorizontalResolution = swapped ? y : x,
            VerticalResolution = swapped ? x : y,
            Title = Tiff.GetText(tiff.Handle, (int)TiffTags.PageName),
        };
    }

    private static double Resolution(TiffFile tiff, TiffTags tag)
    {
        float value = Tiff.GetReal(tiff.Handle, (int)tag);
        return float.IsFinite(value) && value > 0 ? value : 0;
    }
}
