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

/// <summary>Reads the pages of a TIFF, of whatever kind libtiff can make colours of.</summary>
internal static unsafe class TiffReader
{
    private const int MostPages = 10_000;
    private const int OpaqueBlack = PixelGrid.Opaque;

    // What brings a page upright whose first row and column are stored on another side (TIFF 6.0, field Orientation).
    private static readonly Dictionary<TiffOrientations, RotateFlipType> Turned = new()
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
            using var tiff = new TiffHandle(new MemoryStream(source.Data, false), source.Name, "rm");
            long total = 0;
            do
            {
                frames.Add(ReadPage(tiff, source, ref total));
            }
            while (frames.Count < MostPages && Tiff.ReadDirectory(tiff.Value) == 1);
        }
        catch
        {
            frames.ForEach(static frame => frame.Dispose());
            throw;
        }

        (ExifData? exif, XmpPacketWrapper? xmp) = TiffMetadata.Read(source.Data);
        return new DecodedFile { Format = FileFormat.Tiff, Frames = frames, Exif = exif, Xmp = xmp };
    }

    private static DecodedFrame ReadPage(TiffHandle tiff, RasterSource source, ref long total)
    {
        long width = Tiff.GetNumber(tiff.Value, (int)TiffTags.ImageWidth);
        long height = Tiff.GetNumber(tiff.Value, (int)TiffTags.ImageLength);
        if (width == 0 || height == 0)
        {
            throw new TiffImageException($"A page of '{source.Name}' is {width} × {height} pixels large.");
        }

        total += width * height;
        PixelGrid.Verify(width, height);
        if (total > PixelGrid.MaxPixels)
        {
            throw new LimitMemoryException($"The pages of '{source.Name}' have more than {PixelGrid.MaxPixels} pixels in all.");
        }

        var samples = new TiffSamples(tiff.Value);
        if (!samples.Fits)
        {
            VerifyConvertible(tiff, source);
        }

        var pixels = new PixelGrid((int)width, (int)height);
        try
        {
            bool done = samples.Fits ? samples.Read(pixels, source.Lenient) : ReadMultiplied(tiff, source, pixels);
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

    private static bool ReadMultiplied(TiffHandle tiff, RasterSource source, PixelGrid pixels)
    {
        // Asked for the orientation that the file has, libtiff leaves rows and columns as they are.
        int orientation = (int)Tiff.GetNumber(tiff.Value, (int)TiffTags.Orientation);
        var raster = (uint*)pixels.Pointer;
        int stop = source.Lenient ? 0 : 1;
        bool done = Tiff.ReadRgba(tiff.Value, (uint)pixels.Width, (uint)pixels.Height, raster, orientation, stop) == 1;
        ToPlain(pixels);
        return done;
    }

    private static PixelGrid Upright(TiffHandle tiff, PixelGrid pixels)
    {
        RotateFlipType turn = Turned.GetValueOrDefault((TiffOrientations)Tiff.GetNumber(tiff.Value, (int)TiffTags.Orientation));
        if (turn == RotateFlipType.RotateNoneFlipNone)
        {
            return pixels;
        }

        PixelGrid turned = Turns.Turn(pixels, turn);
        pixels.Dispose();
        return turned;
    }

    private static void VerifyConvertible(TiffHandle tiff, RasterSource source)
    {
        byte* reason = stackalloc byte[1024];
        if (Tiff.CanBecomeRgba(tiff.Value, reason) == 0)
        {
            string text = System.Runtime.InteropServices.Marshal.PtrToStringUTF8((nint)reason) ?? "";
            throw new TiffImageException($"A page of '{source.Name}' cannot be read: {text}.");
        }
    }

    private static TiffImageException Damaged(TiffHandle tiff, RasterSource source)
    {
        var compression = (TiffCompressions)Tiff.GetNumber(tiff.Value, (int)TiffTags.Compression);
        Exception? inner = compression switch
        {
            TiffCompressions.Lzw => new LzwCompressorException(tiff.Complaint),
            TiffCompressions.AdobeDeflate or TiffCompressions.Deflate => new DeflateCompressorException(tiff.Complaint),
            TiffCompressions.PackBits => new RleCompressorException(tiff.Complaint),
            _ => null,
        };
        return new TiffImageException($"A page of '{source.Name}' is damaged: {tiff.Complaint}.", inner);
    }

    // libtiff gives red in the lowest byte and opacity multiplied in.
    private static void ToPlain(PixelGrid pixels)
    {
        for (int y = 0; y < pixels.Height; y++)
        {
            foreach (ref int pixel in pixels.Row(y))
            {
                int swapped = (pixel & unchecked((int)0xFF00FF00)) | ((pixel & 255) << 16) | ((pixel >> 16) & 255);
                pixel = (swapped & OpaqueBlack) == OpaqueBlack ? swapped : BitPacking.Plain(swapped);
            }
        }
    }

    private static DecodedFrame Frame(TiffHandle tiff, PixelGrid pixels)
    {
        double per = Tiff.GetNumber(tiff.Value, (int)TiffTags.ResolutionUnit) switch
        {
            (uint)TiffResolutionUnits.Centimeter => 2.54,
            (uint)TiffResolutionUnits.None => 0,
            _ => 1,
        };
        uint bits = Tiff.GetNumber(tiff.Value, (int)TiffTags.BitsPerSample);
        uint samples = Tiff.GetNumber(tiff.Value, (int)TiffTags.SamplesPerPixel);
        double x = Resolution(tiff, TiffTags.XResolution) * per;
        double y = Resolution(tiff, TiffTags.YResolution) * per;
        bool swapped = Tiff.GetNumber(tiff.Value, (int)TiffTags.Orientation) is >= (uint)TiffOrientations.LeftTop and <= (uint)TiffOrientations.LeftBottom;
        return new DecodedFrame
        {
            Pixels = pixels,
            BitsPerPixel = (int)Math.Min(bits * samples, 1024),
            HorizontalResolution = swapped ? y : x,
            VerticalResolution = swapped ? x : y,
            Title = Tiff.GetText(tiff.Value, (int)TiffTags.PageName),
        };
    }

    private static double Resolution(TiffHandle tiff, TiffTags tag)
    {
        float value = Tiff.GetReal(tiff.Value, (int)tag);
        return float.IsFinite(value) && value > 0 ? value : 0;
    }
}
