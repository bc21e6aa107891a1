using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Maps grayscale samples to 8 bits by the window of the file (PS3.3, C.11.2.1.2). Without a window 8-bit
/// samples map their possible range, 16-bit samples the range that occurs in the file.</summary>
internal sealed class DicomGrayscale
{
    private readonly int[] _pixels;
    private readonly int _shift;
    private readonly int _bitsStored;
    private readonly bool _signed;

    private DicomGrayscale(DicomReader file, int bits)
    {
        _pixels = new int[1 << bits];
        _bitsStored = file.Number(DicomTags.BitsStored, bits);
        _shift = file.Number(DicomTags.HighBit, _bitsStored - 1) + 1 - _bitsStored;
        _signed = file.Number(DicomTags.PixelRepresentation, 0) == 1;
    }

    /// <summary>Creates the mapping; samples are read only where the range depends on them.</summary>
    internal static DicomGrayscale Of(DicomReader file, int bits, bool inverted, Func<IEnumerable<byte[]>> samples)
    {
        var grayscale = new DicomGrayscale(file, bits);
        double slope = file.Real(DicomTags.RescaleSlope, 1);
        double intercept = file.Real(DicomTags.RescaleIntercept, 0);
        double window = file.Real(DicomTags.WindowWidth, 0);
        double center = file.Real(DicomTags.WindowCenter, 0) - 0.5;
        (double low, double high) = (center - ((window - 1) / 2), center + ((window - 1) / 2));
        if (window < 1)
        {
            (int min, int max) = bits == 8 ? grayscale.PossibleRange() : grayscale.ActualRange(samples());
            (low, high) = ((min * slope) + intercept, (max * slope) + intercept);
        }

        for (int stored = 0; stored < grayscale._pixels.Length; stored++)
        {
            double value = (grayscale.Value(stored) * slope) + intercept;
            int gray = (int)Math.Clamp(Math.Round((value - low) * 255 / (high == low ? 1e-9 : high - low)), 0, 255);
            grayscale._pixels[stored] = PixelGrid.Opaque | ((inverted ? 255 - gray : gray) * 0x010101);
        }

        return grayscale;
    }

    /// <summary>Returns the pixel of a sample.</summary>
    internal int Pixel(ReadOnlySpan<byte> data, int at) => _pixels[StoredSample(data, at)];

    private int StoredSample(ReadOnlySpan<byte> data, int at) =>
        _pixels.Length == 256 ? data[at] : BinaryPrimitives.ReadUInt16LittleEndian(data[(2 * at)..]);

    private (int Min, int Max) PossibleRange() =>
        _signed ? (-(1 << (_bitsStored - 1)), (1 << (_bitsStored - 1)) - 1) : (0, (1 << _bitsStored) - 1);

    private (int Min, int Max) ActualRange(IEnumerable<byte[]> frames)
    {
        (int min, int max) = (int.MaxValue, int.MinValue);
        foreach (byte[] data in frames)
        {
            for (int at = 0; at < data.Length / 2; at++)
            {
                int value = Value(StoredSample(data, at));
                (min, max) = (Math.Min(min, value), Math.Max(max, value));
            }
        }

        return (min, max);
    }

    private int Value(int stored)
    {
        int value = (stored >> _shift) & ((1 << _bitsStored) - 1);
        return _signed && (value >> (_bitsStored - 1)) != 0 ? value - (1 << _bitsStored) : value;
    }
}
