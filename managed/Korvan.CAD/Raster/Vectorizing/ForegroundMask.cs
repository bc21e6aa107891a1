using System;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Raster.Operations;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Vectorizing;

/// <summary>The foreground (dark) pixels of an image, with a border of background, so that every pixel has
/// neighbours.</summary>
internal sealed class ForegroundMask
{
    private const long MaxPixels = 200_000_000;
    private const int Background = -1;

    private readonly byte[] _cells;

    private ForegroundMask(int width, int height)
    {
        Width = width;
        Height = height;
        Stride = width + 2;
        _cells = new byte[Stride * (height + 2)];
    }

    internal int Width { get; }

    internal int Height { get; }

    /// <summary>Gets the cells from one row to the next.</summary>
    internal int Stride { get; }

    /// <summary>Gets 1 for foreground pixels, row by row, including the border.</summary>
    internal Span<byte> Cells => _cells;

    internal static ForegroundMask FromPixels(PixelGrid pixels, int threshold)
    {
        if ((long)(pixels.Width + 2) * (pixels.Height + 2) > MaxPixels)
        {
            throw new LimitMemoryException(
                $"An image of {pixels.Width} × {pixels.Height} pixels is too large to be traced; at most {MaxPixels}"
                    + $" pixels are.");
        }

        int level = threshold < 0 ? Binarization.OtsuThreshold(pixels) : threshold;
        var mask = new ForegroundMask(pixels.Width, pixels.Height);
        for (int y = 0; y < pixels.Height; y++)
        {
            ReadOnlySpan<int> row = pixels.Row(y);
            Span<byte> cells = mask.Cells.Slice(mask.At(0, y), row.Length);
            for (int x = 0; x < row.Length; x++)
            {
                cells[x] = PixelGrid.Luma(PixelGrid.Over(row[x], Background)) < level ? (byte)1 : (byte)0;
            }
        }

        return mask;
    }

    internal int At(int x, int y) => ((y + 1) * Stride) + x + 1;
}
