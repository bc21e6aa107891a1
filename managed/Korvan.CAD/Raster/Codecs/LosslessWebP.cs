using System;
using System.Buffers.Binary;
using System.IO;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>
/// Writes lossless WebP (RFC 9649, section 3) row by row, for images that libwebp would need too much memory for.
/// Pixels are predicted from their neighbours, tile by tile; equal ones in a row, and rows like the ones above, are
/// stored as runs. Two passes over the image: one counts symbols, one writes them.
/// </summary>
internal sealed class LosslessWebP
{
    private const int PredictorTransform = 0;
    private const int SubtractGreenTransform = 2;

    private readonly PixelGrid _pixels;
    private readonly WebPPrediction _prediction;
    private readonly WebPSymbols _symbols = new();
    private readonly bool _hasAlpha;
    private int[] _above;
    private int[] _residuals;

    private LosslessWebP(PixelGrid pixels)
    {
        _pixels = pixels;
        _hasAlpha = !pixels.IsOpaque();
        _prediction = new WebPPrediction(pixels);
        _above = new int[pixels.Width];
        _residuals = new int[pixels.Width];
    }

    internal static void Write(PixelGrid pixels, Stream output)
    {
        var writer = new LosslessWebP(pixels);
        writer.Go(new LowBitWriter(null), isCounting: true);
        writer._symbols.MakeCodes();
        var size = new LowBitWriter(null);
        writer.WriteFrame(size);
        long bytes = (size.Count + writer._symbols.CodedBits + 7) / 8;
        WriteContainer(output, bytes);
        var bits = new LowBitWriter(output);
        writer.WriteFrame(bits);
        writer.Go(bits, isCounting: false);
        bits.End();
        if (bytes % 2 != 0)
        {
            output.WriteByte(0);
        }
    }

    private static void WriteContainer(Stream output, long bytes)
    {
        Span<byte> header = stackalloc byte[20];
        "RIFF"u8.CopyTo(header);
        BinaryPrimitives.WriteUInt32LittleEndian(header[4..], checked((uint)(12 + bytes + (bytes % 2))));
        "WEBPVP8L"u8.CopyTo(header[8..]);
        BinaryPrimitives.WriteUInt32LittleEndian(header[16..], checked((uint)bytes));
        output.Write(header);
    }

    // What comes before the pixels.
    private void WriteFrame(LowBitWriter bits)
    {
        const uint signature = 0x2F;
        const int sideBits = 14;
        bits.Write(signature, 8);
        bits.Write((uint)_pixels.Width - 1, sideBits);
        bits.Write((uint)_pixels.Height - 1, sideBits);
        bits.Write(_hasAlpha ? 1u : 0, 1);
        bits.Write(0, 3);
        bits.Write(1 | (SubtractGreenTransform << 1), 3);
        bits.Write(1 | (PredictorTransform << 1), 3);
        bits.Write(WebPPrediction.TileBits - 2, 3);
        WriteModes(bits);

        // No further transform, no colour cache, one group of codes for all pixels.
        bits.Write(0, 3);
        _symbols.WriteCodes(bits);
    }

    private void WriteModes(LowBitWriter bits)
    {
        var symbols = new WebPSymbols();
        foreach (byte mode in _prediction.Modes)
        {
            symbols.CountPixel(mode << 8);
        }

        symbols.MakeCodes();
        bits.Write(0, 1);
        symbols.WriteCodes(bits);
        foreach (byte mode in _prediction.Modes)
        {
            symbols.WritePixel(bits, mode << 8);
        }
    }

    private void Go(LowBitWriter bits, bool isCounting)
    {
        for (int y = 0; y < _pixels.Height; y++)
        {
            _prediction.ResidualsOf(y, isCounting, _residuals);
            WriteRow(bits, y, isCounting);
            (_above, _residuals) = (_residuals, _above);
        }
    }

    private void WriteRow(LowBitWriter bits, int y, bool isCounting)
    {
        ReadOnlySpan<int> row = _residuals;
        ReadOnlySpan<int> above = y > 0 ? _above : [];
        for (int x = 0; x < row.Length;)
        {
            int run = RunAt(row, above, x, out int distance);
            if (run >= WebPSymbols.MinRun)
            {
                if (isCounting)
                {
                    _symbols.CountRun(run, distance);
                }
                else
                {
                    _symbols.WriteRun(bits, run, distance);
                }

                x += run;
                continue;
            }

            if (isCounting)
            {
                _symbols.CountPixel(row[x++]);
            }
            else
            {
                _symbols.WritePixel(bits, row[x++]);
            }
        }
    }

    // How many pixels are those above, or the one before again.
    private static int RunAt(ReadOnlySpan<int> row, ReadOnlySpan<int> above, int x, out int distance)
    {
        int end = Math.Min(row.Length, x + WebPSymbols.MaxRun);
        int run = above.IsEmpty || above[x] != row[x] ? 0 : row[x..end].CommonPrefixLength(above[x..end]);
        distance = WebPSymbols.DistanceAbove;
        if (run < end - x && x > 0 && row[x] == row[x - 1])
        {
            int differing = row[x..end].IndexOfAnyExcept(row[x]);
            int same = differing < 0 ? end - x : differing;
            if (same > run)
            {
                (run, distance) = (same, WebPSymbols.DistanceBefore);
            }
        }

        return run;
    }
}
