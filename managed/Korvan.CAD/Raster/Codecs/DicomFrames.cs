using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Decodes the frames of a DICOM file.</summary>
internal sealed class DicomFrames
{
    private const int MaxFrames = 10_000;
    private const double MillimetresPerInch = 25.4;

    private readonly DicomReader _file;
    private readonly int _width;
    private readonly int _height;
    private readonly int _samples;
    private readonly int _bits;
    private readonly bool _planar;
    private readonly string _photometric;
    private readonly Lazy<DicomGrayscale> _grayscale;

    private DicomFrames(DicomReader file)
    {
        _file = file;
        _width = file.Number(DicomTags.Columns, 0);
        _height = file.Number(DicomTags.Rows, 0);
        _samples = file.Number(DicomTags.SamplesPerPixel, 1);
        _bits = file.Number(DicomTags.BitsAllocated, 8);
        _planar = file.Number(DicomTags.PlanarConfiguration, 0) == 1;
        _photometric = file.Text(DicomTags.Photometric);
        _grayscale =
            new Lazy<DicomGrayscale>(() => DicomGrayscale.Of(file, _bits, _photometric == "MONOCHROME1", AllSamples));
        Verify();
    }

    /// <summary>Gets whether two neighbouring pixels share their chroma: two luma samples, then blue and red
    /// chroma.</summary>
    private bool IsChromaPaired => _photometric == "YBR_FULL_422" && _file.Fragments == null;

    private int FrameCount { get; set; }

    internal static bool Reads(string syntax) =>
        syntax is DicomTags.ImplicitLittleEndian or DicomTags.ExplicitLittleEndian or DicomTags.Rle
            or DicomTags.JpegBaseline or DicomTags.Jpeg2000Lossless or DicomTags.Jpeg2000;

    internal static List<DecodedFrame> Frames(DicomReader file)
    {
        var decoder = new DicomFrames(file);
        string text = file.Text(DicomTags.NumberOfFrames);
        int count = int.TryParse(text, NumberStyles.Integer, CultureInfo.InvariantCulture, out int stated) ? stated : 1;
        if (count < 1 || count > MaxFrames || (file.Fragments != null && count > file.Fragments.Count))
        {
            throw file.Damaged($"{count} frames are announced");
        }

        if ((long)decoder._width * decoder._height * count > PixelGrid.MaxPixels)
        {
            throw new LimitMemoryException(
                $"The frames of '{file.Name}' have more than {PixelGrid.MaxPixels} pixels in all.");
        }

        decoder.FrameCount = count;
        List<DecodedFrame> frames = [];
        try
        {
            for (int i = 0; i < count; i++)
            {
                frames.Add(decoder.Frame(i));
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
        if (_width < 1 || _height < 1)
        {
            throw _file.Damaged($"it claims {_width} × {_height} pixels");
        }

        PixelGrid.VerifySize(_width, _height);
        bool known = (_samples, _bits) switch
        {
            (1, 8 or 16) => _photometric is "MONOCHROME1" or "MONOCHROME2",
            (3, 8) => _photometric is "RGB" or "YBR_FULL" or "YBR_FULL_422" or "YBR_RCT" or "YBR_ICT",
            _ => false,
        };
        int stored = _file.Number(DicomTags.BitsStored, _bits);
        int high = _file.Number(DicomTags.HighBit, stored - 1);
        if (!known || stored < 1 || stored > _bits || high >= _bits || high < stored - 1)
        {
            throw new ImageLoadException(
                $"'{_file.Name}' has {_samples} samples of '{_photometric}', {stored} of {_bits} bits up to bit"
                + $" {high}, which is not read.");
        }
    }

    private DecodedFrame Frame(int index)
    {
        string[] spacing = _file.Text(DicomTags.PixelSpacing).Split('\\');
        return new DecodedFrame
        {
            Pixels = Pixels(index),
            BitsPerPixel = _samples * _bits,
            HorizontalResolution = PerInch(spacing[^1]),
            VerticalResolution = PerInch(spacing[0]),
        };
    }

    private static double PerInch(string millimetres)
    {
        bool stated =
            double.TryParse(millimetres.Trim(), NumberStyles.Float, CultureInfo.InvariantCulture, out double size);
        return stated && size > 0 && double.IsFinite(size) ? MillimetresPerInch / size : 0;
    }

    private PixelGrid Pixels(int index)
    {
        if (_file.Fragments == null || _file.Syntax == DicomTags.Rle)
        {
            return FromSamples(Samples(index), _file.Fragments == null && _planar);
        }

        byte[] data = Fragment(index);
        PixelGrid pixels = _file.Syntax == DicomTags.JpegBaseline
            ? JpegCodec.Decompress(_file.Source, data, false, out _)
            : Jpeg2000Codec.Decode(_file.Source, data, true, out _);
        if (pixels.Width == _width && pixels.Height == _height)
        {
            Invert(pixels);
            return pixels;
        }

        pixels.Dispose();
        throw _file.Damaged($"frame {index} has another size than the file states");
    }

    // Codecs return grayscale without inversion.
    private void Invert(PixelGrid pixels)
    {
        for (int y = 0; y < _height && _photometric == "MONOCHROME1"; y++)
        {
            foreach (ref int pixel in pixels.WritableRow(y))
            {
                pixel ^= 0xFFFFFF;
            }
        }
    }

    // A single frame may have several fragments; of several frames each has one.
    private byte[] Fragment(int index) =>
        FrameCount > 1 || _file.Fragments!.Count == 1 ? _file.Fragments![index].ToArray() : Joined(_file.Fragments);

    private ReadOnlySpan<byte> Samples(int index) =>
        _file.Fragments == null
            ? Plain(index) : DicomRle.Unpack(Fragment(index), _samples, _bits / 8, (long)_width * _height);

    // A range that depends on the samples has to be the same in all frames.
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
        long size = IsChromaPaired ? (_width + 1) / 2 * 4L * _height : (long)_width * _height * _samples * (_bits / 8);
        long start = index * size;
        if (start + size > _file.PlainPixels.Length)
        {
            throw _file.Damaged(
                $"frame {index} needs {size} bytes, but {Math.Max(0, _file.PlainPixels.Length - start)} are left");
        }

        return _file.PlainPixels.Span.Slice((int)start, (int)size);
    }

    private PixelGrid FromSamples(ReadOnlySpan<byte> data, bool inPlanes)
    {
        var pixels = new PixelGrid(_width, _height);
        int plane = inPlanes ? _width * _height : 1;
        int step = inPlanes ? 1 : _samples;
        int pairBytes = (_width + 1) / 2 * 4;
        for (int y = 0, at = 0; y < _height; y++)
        {
            Span<int> row = pixels.WritableRow(y);
            for (int x = 0; x < row.Length; x++, at++)
            {
                int pair = (y * pairBytes) + (x / 2 * 4);
                row[x] = _samples == 1 ? _grayscale.Value.Pixel(data, at)
                    : IsChromaPaired ? Color(data[pair + (x & 1)], data[pair + 2], data[pair + 3])
                    : Color(data[at * step], data[(at * step) + plane], data[(at * step) + (2 * plane)]);
            }
        }

        return pixels;
    }

    private int Color(int first, int second, int third)
    {
        return _photometric.StartsWith("YBR", StringComparison.Ordinal)
            ? PixelGrid.Opaque | Jpeg2000Planes.FromYcc(first, second - 128, third - 128)
            : PixelGrid.Opaque | (first << 16) | (second << 8) | third;
    }
}
