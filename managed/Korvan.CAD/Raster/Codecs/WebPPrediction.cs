using System;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Predicts the pixels of a lossless WebP: less their green, from their neighbours, in the way that suits
/// each tile best (RFC 9649, sections 3.5.1 and 3.5.3).</summary>
internal sealed class WebPPrediction
{
    /// <summary>The side of a tile as a power of two.</summary>
    internal const int TileBits = 5;

    private const int TileSide = 1 << TileBits;
    private const int Left = 1;
    private const int Top = 2;
    private const int Mean = 7;
    private const int Select = 11;
    private const int Gradient = 12;

    // Every second pixel of every fourth row tells enough.
    private const int SampledRows = 4;
    private const int SampledPixels = 2;

    private static readonly byte[] Candidates = [Left, Top, Mean, Select, Gradient];

    private readonly PixelGrid _pixels;
    private readonly int _tilesInRow;
    private int[] _row;
    private int[] _above;

    internal WebPPrediction(PixelGrid pixels)
    {
        _pixels = pixels;
        _tilesInRow = TilesOf(pixels.Width);
        Modes = new byte[_tilesInRow * TilesOf(pixels.Height)];
        _row = new int[pixels.Width];
        _above = new int[pixels.Width];
    }

    /// <summary>Gets the mode of each tile, row by row.</summary>
    internal byte[] Modes { get; }

    /// <summary>Finds what the prediction of a row leaves. Rows are asked for in their order.</summary>
    /// <param name="y">The row.</param>
    /// <param name="choosesModes">Whether the modes of its tiles are still to be chosen.</param>
    /// <param name="residuals">Receives what is left.</param>
    internal void ResidualsOf(int y, bool choosesModes, Span<int> residuals)
    {
        if (choosesModes && y % TileSide == 0)
        {
            ChooseModes(y);
        }

        (_row, _above) = (_above, _row);
        SubtractGreen(_pixels.Row(y), _row);
        residuals[0] = Minus(_row[0], y == 0 ? PixelGrid.Opaque : _above[0]);
        for (int start = 0, tile = y / TileSide * _tilesInRow; start < _row.Length; start += TileSide, tile++)
        {
            int end = Math.Min(start + TileSide, _row.Length);
            Predict(y == 0 ? Left : Modes[tile], Math.Max(start, 1), end, residuals);
        }
    }

    private static int TilesOf(int side) => (side + TileSide - 1) >> TileBits;

    private void Predict(int mode, int start, int end, Span<int> residuals)
    {
        ReadOnlySpan<int> row = _row;
        ReadOnlySpan<int> above = _above;
        for (int x = start; x < end; x++)
        {
            residuals[x] = Minus(row[x], Predicted(mode, row[x - 1], above[x], above[x - 1]));
        }
    }

    private static int Predicted(int mode, int left, int top, int topLeft) => mode switch
    {
        Left => left,
        Top => top,
        Mean => (((left ^ top) & unchecked((int)0xFEFEFEFE)) >>> 1) + (left & top),
        Select => Distance(top, topLeft) < Distance(left, topLeft) ? left : top,
        _ => left == topLeft ? top : top == topLeft ? left : Clamped(left, top, topLeft),
    };

    private static int Clamped(int left, int top, int topLeft)
    {
        int result = 0;
        for (int shift = 0; shift < 32; shift += 8)
        {
            int value = (byte)(left >> shift) + (byte)(top >> shift) - (byte)(topLeft >> shift);
            result |= Math.Clamp(value, 0, 255) << shift;
        }

        return result;
    }

    private static int Distance(int a, int b) => Math.Abs((byte)a - (byte)b) + Math.Abs((byte)(a >> 8) - (byte)(b >> 8))
        + Math.Abs((byte)(a >> 16) - (byte)(b >> 16)) + Math.Abs((byte)(a >>> 24) - (byte)(b >>> 24));

    // Each byte by itself.
    private static int Minus(int a, int b)
    {
        const uint even = 0x00FF00FF;
        const uint odd = 0xFF00FF00;
        uint first = ((uint)a & even) + (~(uint)b & even) + 0x00010001;
        uint second = (((uint)a >> 8) & even) + ((~(uint)b >> 8) & even) + 0x00010001;
        return (int)((first & even) | ((second << 8) & odd));
    }

    private static void SubtractGreen(ReadOnlySpan<int> pixels, Span<int> target)
    {
        for (int x = 0; x < pixels.Length; x++)
        {
            int green = (byte)(pixels[x] >> 8);
            target[x] = Minus(pixels[x], green | (green << 16));
        }
    }

    private void ChooseModes(int top)
    {
        var costs = new long[_tilesInRow, Candidates.Length];
        var row = new int[_pixels.Width];
        var above = new int[_pixels.Width];
        int end = Math.Min(top + TileSide, _pixels.Height);
        for (int y = Math.Max(top + 1, 1); y < end; y += SampledRows)
        {
            SubtractGreen(_pixels.Row(y - 1), above);
            SubtractGreen(_pixels.Row(y), row);
            AddCosts(row, above, costs);
        }

        for (int tile = 0; tile < _tilesInRow; tile++)
        {
            int best = 0;
            for (int i = 1; i < Candidates.Length; i++)
            {
                best = costs[tile, i] < costs[tile, best] ? i : best;
            }

            Modes[(top / TileSide * _tilesInRow) + tile] = Candidates[best];
        }
    }

    private static void AddCosts(ReadOnlySpan<int> row, ReadOnlySpan<int> above, long[,] costs)
    {
        for (int x = 1; x < row.Length; x += SampledPixels)
        {
            int tile = x >> TileBits;
            (int left, int top, int topLeft) = (row[x - 1], above[x], above[x - 1]);
            if (row[x] == left && left == top && top == topLeft)
            {
                continue;
            }

            for (int i = 0; i < Candidates.Length; i++)
            {
                costs[tile, i] += Weight(Minus(row[x], Predicted(Candidates[i], left, top, topLeft)));
            }
        }
    }

    // Small residuals of both signs take few bits.
    private static int Weight(int residual) => Math.Abs((int)(sbyte)residual) + Math.Abs((int)(sbyte)(residual >> 8))
        + Math.Abs((int)(sbyte)(residual >> 16)) + Math.Abs((int)(sbyte)(residual >> 24));
}
