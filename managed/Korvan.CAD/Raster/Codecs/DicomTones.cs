using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>
/// The shades of grey samples: those of the window that the file states (PS3.3, C.11.2.1.2), else all that their bits can
/// tell, of words all that the file holds.
/// </summary>
internal sealed class DicomTones
{
    private readonly int[] _pixels;
    private readonly int _shift;
    private readonly int _stored;
    private readonly bool _signed;

    private DicomTones(DicomReader file, int bits)
    {
        _pixels = new int[1 << bits];
        _stored = file.Number(DicomTags.BitsStored, bits);
        _shift = file.Number(DicomTags.HighBit, _stored - 1) + 1 - _stored;
        _signed = file.Number(DicomTags.PixelRepresentation, 0) == 1;
    }

    /// <summary>Finds the shades; samples are asked for only where nothing else tells them.</summary>
    internal static DicomTones Of(DicomReader file, int bits, bool inverted, Func<IEnumerable<byte[]>> samples)
    {
        var tones = new DicomTones(file, bits);
        double slope = file.Real(DicomTags.RescaleSlope, 1);
        double intercept = file.Real(DicomTags.RescaleIntercept, 0);
        double window = file.Real(DicomTags.WindowWidth, 0);
        double center = file.Real(DicomTags.WindowCenter, 0) - 0.5;
        (double low, double high) = (center - ((window - 1) / 2), center + ((window - 1) / 2));
        if (window < 1)
        {
            (int least, int most) = bits == 8 ? tones.Possible() : tones.Present(samples());
            (low, high) = ((least * slope) + intercept, (most * slope) + intercept);
        }

        for (int word = 0; word < tones._pixels.Length; word++)
        {
            double value = (tones.Value(word) * slope) + intercept;
            int tone = (int)Math.Clamp(Math.Round((value - low) * 255 / (high == low ? 1e-9 : high - low)), 0, 255);
            tones._pixels[word] = PixelGrid.Opaque | ((inverted ? 255 - tone : tone) * 0x010101);
        }

        return tones;
    }

    /// <summary>The pixel of a sample.</summary>
    internal int Pixel(ReadOnlySpan<byte> data, int at) => _pixels[Word(data, at)];

    private int Word(ReadOnlySpan<byte> data, int at) =>
        _pixels.Length == 256 ? data[at] : BinaryPrimitives.ReadUInt16LittleEndian(data[(2 * at)..]);

    private (int Least, int Most) Possible() => _signed ? (-(1 << (_stored - 1)), (1 << (_stored - 1)) - 1) : (0, (1 << _stored) - 1);

    private (int Least, int Most) Present(IEnumerable<byte[]> frames)
    {
        (int least, int most) = (int.MaxValue, int.MinValue);
        foreach (byte[] data in frames)
        {
            for (int at = 0; at < data.Length / 2; at++)
            {
                int value = Value(Word(data, at));
                (least, most) = (Math.Min(least, value), Math.Max(most, value));
            }
        }

        return (least, most);
    }

    private int Value(int word)
    {
        int value = (word >> _shift) & ((1 << _stored) - 1);
        return _signed && (value >> (_stored - 1)) != 0 ? value - (1 << _stored) : value;
    }
}
