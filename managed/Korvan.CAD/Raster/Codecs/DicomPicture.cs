using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.CadExceptions;

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
    private readonly int stored;
    private readonly bool signed;
    private readonly bool planar;
    private readonly string photometric;

    private DicomPicture(DicomReader file)
    {
        this.file = file;
        width = file.Number(DicomTags.Columns, 0);
        height = file.Number(DicomTags.Rows, 0);
        samples = file.Number(DicomTags.SamplesPerPixel, 1);
        bits = file.Number(DicomTags.BitsAllocated, 8);
        stored = file.Number(DicomTags.BitsStored, bits);
        signed = file.Number(DicomTags.PixelRepresentation, 0) == 1;
        planar = file.Number(DicomTags.PlanarConfiguration, 0) == 1;
        photometric = file.Text(DicomTags.Photometric);
        Verify();
    }

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

        if ((long)picture.width * picture.height * count > PixelGrid.MostPixels)
        {
            throw new LimitMemoryException($"The frames of '{file.Name}' have more than {PixelGrid.MostPixels} pixels in all.");
        }

        List<DecodedFrame> frames = [];
        try
        {
            for (int i = 0; i < count; i++)
            {
                frames.Add(picture.Frame(i, count));
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
        if (!known || stored < 1 || stored > bits)
        {
            throw new ImageLoadException($"'{file.Name}' has {samples} samples of {bits} bits of '{photometric}', which is not read.");
        }
    }

    private DecodedFrame Frame(int index, int count)
    {
        string[] spacing = file.Text(DicomTags.PixelSpacing).Split('\\');
        return new DecodedFrame
        {
            Pixels = Pixels(index, count),
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

    private PixelGrid Pixels(int index, int count)
    {
        if (file.Fragments == null)
        {
            return Plain(index);
        }

        // One frame may stand in several pieces; of several frames each has its own.
        byte[] data = count > 1 || file.Fragments.Count == 1 ? file.Fragments[index].ToArray() : Joined(file.Fragments);
        PixelGrid pixels = file.Syntax switch
        {
            DicomTags.JpegBaseline => JpegCodec.Decompress(file.Source, data, false, out _),
            DicomTags.Rle => FromSamples(DicomRle.Unpack(data, samples, bits / 8, (long)width * height), false),
            _ => Jpeg2000Codec.Decode(file.Source, data, true, out _),
        };
        if (pixels.Width == width && pixels.Height == height)
        {
            return pixels;
        }

        pixels.Dispose();
        throw file.Damaged($"frame {index} has another size than the file states");
    }

    private static byte[] Joined(List<ReadOnlyMemory<byte>> pieces)
    {
        List<byte> all = [];
        pieces.ForEach(piece => all.AddRange(piece.Span));
        return [.. all];
    }

    private PixelGrid Plain(int index)
    {
        long size = (long)width * height * samples * (bits / 8);
        long start = index * size;
        if (start + size > file.PlainPixels.Length)
        {
            throw file.Damaged($"frame {index} needs {size} bytes, but {Math.Max(0, file.PlainPixels.Length - start)} are left");
        }

        return FromSamples(file.PlainPixels.Span.Slice((int)start, (int)size), planar);
    }

    private PixelGrid FromSamples(ReadOnlySpan<byte> data, bool inPlanes)
    {
        var pixels = new PixelGrid(width, height);
        int plane = inPlanes ? width * height : 1;
        int step = inPlanes ? 1 : samples;
        byte[]? tones = samples == 1 && bits == 16 ? Tones(data) : null;
        for (int y = 0, at = 0; y < height; y++)
        {
            foreach (ref int pixel in pixels.Row(y))
            {
                pixel = samples == 3
                    ? Color(data[at * step], data[(at * step) + plane], data[(at * step) + (2 * plane)])
                    : PixelGrid.Opaque | (Tone(data, at, tones) * 0x010101);
                at++;
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

    private int Tone(ReadOnlySpan<byte> data, int at, byte[]? tones)
    {
        int tone = tones != null ? tones[BinaryPrimitives.ReadUInt16LittleEndian(data[(2 * at)..])] : data[at] << (8 - stored);
        return photometric == "MONOCHROME1" ? 255 - (byte)tone : (byte)tone;
    }

    /// <summary>Shades for all words: the window that the file states, or all values that it holds.</summary>
    private byte[] Tones(ReadOnlySpan<byte> data)
    {
        double slope = file.Real(DicomTags.RescaleSlope, 1);
        double intercept = file.Real(DicomTags.RescaleIntercept, 0);
        double window = file.Real(DicomTags.WindowWidth, 0);
        double center = file.Real(DicomTags.WindowCenter, 0);
        (double low, double high) = window >= 1 ? (center - (window / 2), center + (window / 2)) : Range(data, slope, intercept);
        var tones = new byte[65536];
        for (int word = 0; word < tones.Length; word++)
        {
            double value = (Value(word) * slope) + intercept;
            tones[word] = (byte)Math.Clamp(Math.Round((value - low) * 255 / Math.Max(1e-9, high - low)), 0, 255);
        }

        return tones;
    }

    private (double Low, double High) Range(ReadOnlySpan<byte> data, double slope, double intercept)
    {
        double low = double.MaxValue;
        double high = double.MinValue;
        for (int at = 0; at + 2 <= data.Length; at += 2)
        {
            double value = (Value(BinaryPrimitives.ReadUInt16LittleEndian(data[at..])) * slope) + intercept;
            low = Math.Min(low, value);
            high = Math.Max(high, value);
        }

        return (low, high);
    }

    private int Value(int word)
    {
        int value = word & ((1 << stored) - 1);
        return signed && (value >> (stored - 1)) != 0 ? value - (1 << stored) : value;
    }
}
