using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Makes pictures of the frames of a DICOM file.</summary>
internal sealed class DicomPicture
{
    private const int MostFrames = 10_000;
    private const double MillimetresPerInch = 25.4;

    private readonly DicomReader file;
    private readonly int width;
    private readonly int height;
    private readonly int samples;
    private readonly int bits;
    private readonly bool planar;
    private readonly string photometric;
    private readonly Lazy<DicomTones> tones;

    private DicomPicture(DicomReader file)
    {
        this.file = file;
        width = file.Number(DicomTags.Columns, 0);
        height = file.Number(DicomTags.Rows, 0);
        samples = file.Number(DicomTags.SamplesPerPixel, 1);
        bits = file.Number(DicomTags.BitsAllocated, 8);
        planar = file.Number(DicomTags.PlanarConfiguration, 0) == 1;
        photometric = file.Text(DicomTags.Photometric);
        tones = new Lazy<DicomTones>(() => DicomTones.Of(file, bits, photometric == "MONOCHROME1", AllSamples));
        Verify();
    }

    /// <summary>Gets whether two pixels beside each other share their colour: two of lightness, then blue and red.</summary>
    private bool HasPairs => photometric == "YBR_FULL_422" && file.Fragments == null;

    private int FrameCount { get; set; }

    internal static bool Reads(string syntax) =>
        syntax is DicomTags.ImplicitLittleEndian or DicomTags.ExplicitLittleEndian or DicomTags.Rle or DicomTags.JpegBaseline
            or DicomTags.Jpeg2000Lossless or DicomTags.Jpeg2000;

    internal static List<DecodedFrame> Frames(DicomReader file)
    {
        var picture = new DicomPicture(file);
        string text = file.Text(DicomTags.NumberOfFrames);
        int count = int.TryParse(text, NumberStyles.Integer, CultureInfo.InvariantCulture, out int stated) ? stated : 1;
        if (count < 1 || count > MostFrames || (file.Fragments != null && count > file.Fragments.Count))
        {
            throw file.Damaged($"{count} frames are announced");
        }

        if ((long)picture.width * picture.height * count > PixelGrid.MaxPixels)
        {
            throw new LimitMemoryException($"The frames of '{file.Name}' have more than {PixelGrid.MaxPixels} pixels in all.");
        }

        picture.FrameCount = count;
        List<DecodedFrame> frames = [];
        try
        {
            for (int i = 0; i < count; i++)
            {
                frames.Add(picture.Frame(i));
            }
        }
        catch
        {
            frames.ForEach(static frame => frame.Dispose());
            throw;
        }

        return frames;
    }

    private void Verify()
    {
        if (width < 1 || height < 1)
        {
            throw file.Damaged($"it claims {width} × {height} pixels");
        }

        PixelGrid.Verify(width, height);
        bool known = (samples, bits) switch
        {
            (1, 8 or 16) => photometric is "MONOCHROME1" or "MONOCHROME2",
            (3, 8) => photometric is "RGB" or "YBR_FULL" or "YBR_FULL_422" or "YBR_RCT" or "YBR_ICT",
            _ => false,
        };
        int stored = file.Number(DicomTags.BitsStored, bits);
        int high = file.Number(DicomTags.HighBit, stored - 1);
        if (!known || stored < 1 || stored > bits || high >= bits || high < stored - 1)
        {
            throw new ImageLoadException($"'{file.Name}' has {samples} samples of '{photometric}', {stored} of {bits} bits up to bit {high}, which is not read.");
        }
    }

    private DecodedFrame Frame(int index)
    {
        string[] spacing = file.Text(DicomTags.PixelSpacing).Split('\\');
        return new DecodedFrame
        {
            Pixels = Pixels(index),
            BitsPerPixel = samples * bits,
            HorizontalResolution = PerInch(spacing[^1]),
            VerticalResolution = PerInch(spacing[0]),
        };
    }

    private static double PerInch(string millimetres)
    {
        bool stated = double.TryParse(millimetres.Trim(), NumberStyles.Float, CultureInfo.InvariantCulture, out double size);
        return stated && size > 0 && double.IsFinite(size) ? MillimetresPerInch / size : 0;
    }

    private PixelGrid Pixels(int index)
    {
        if (file.Fragments == null || file.Syntax == DicomTags.Rle)
        {
            return FromSamples(Samples(index), file.Fragments == null && planar);
        }

        byte[] data = Fragment(index);
        PixelGrid pixels = file.Syntax == DicomTags.JpegBaseline
            ? JpegCodec.Decompress(file.Source, data, false, out _)
            : Jpeg2000Codec.Decode(file.Source, data, true, out _);
        if (pixels.Width == width && pixels.Height == height)
        {
            Invert(pixels);
            return pixels;
        }

        pixels.Dispose();
        throw file.Damaged($"frame {index} has another size than the file states");
    }

    // What codecs give of greys is not inverted yet.
    private void Invert(PixelGrid pixels)
    {
        for (int y = 0; y < height && photometric == "MONOCHROME1"; y++)
        {
            foreach (ref int pixel in pixels.Row(y))
            {
                pixel ^= 0xFFFFFF;
            }
        }
    }

    // One frame may stand in several pieces; of several frames each has its own.
    private byte[] Fragment(int index) =>
        FrameCount > 1 || file.Fragments!.Count == 1 ? file.Fragments![index].ToArray() : Joined(file.Fragments);

    private ReadOnlySpan<byte> Samples(int index) =>
        file.Fragments == null ? Plain(index) : DicomRle.Unpack(Fragment(index), samples, bits / 8, (long)width * height);

    // Shades that depend on what is there are to be the same in all frames.
    private IEnumerable<byte[]> AllSamples()
    {
        for (int i = 0; i < FrameCount; i++)
        {
            yield return Samples(i).ToArray();
        }
    }

    private static byte[] Joined(List<ReadOnlyMemory<byte>> pieces)
    {
        List<byte> all = [];
        pieces.ForEach(piece => all.AddRange(piece.Span));
        return [.. all];
    }

    private ReadOnlySpan<byte> Plain(int index)
    {
        long size = HasPairs ? (width + 1) / 2 * 4L * height : (long)width * height * samples * (bits / 8);
        long start = index * size;
        if (start + size > file.PlainPixels.Length)
        {
            throw file.Damaged($"frame {index} needs {size} bytes, but {Math.Max(0, file.PlainPixels.Length - start)} are left");
        }

        return file.PlainPixels.Span.Slice((int)start, (int)size);
    }

    private PixelGrid FromSamples(ReadOnlySpan<byte> data, bool inPlanes)
    {
        var pixels = new PixelGrid(width, height);
        int plane = inPlanes ? width * height : 1;
        int step = inPlanes ? 1 : samples;
        int pairBytes = (width + 1) / 2 * 4;
        for (int y = 0, at = 0; y < height; y++)
        {
            Span<int> row = pixels.Row(y);
            for (int x = 0; x < row.Length; x++, at++)
            {
                int pair = (y * pairBytes) + (x / 2 * 4);
                row[x] = samples == 1 ? tones.Value.Pixel(data, at)
                    : HasPairs ? Color(data[pair + (x & 1)], data[pair + 2], data[pair + 3])
                    : Color(data[at * step], data[(at * step) + plane], data[(at * step) + (2 * plane)]);
            }
        }

        return pixels;
    }

    private int Color(int first, int second, int third)
    {
        return photometric.StartsWith("YBR", StringComparison.Ordinal)
            ? PixelGrid.Opaque | Jpeg2000Planes.FromYcc(first, second - 128, third - 128)
            : PixelGrid.Opaque | (first << 16) | (second << 8) | third;
    }
}
