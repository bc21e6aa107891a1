using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Operations;

/// <summary>Rotates and flips images.</summary>
internal static class Rotation
{
    private const uint Half = 0x800080; // of both channels, for rounding

    /// <summary>Rotates clockwise by multiples of 90 degrees, then flips horizontally.</summary>
    internal static PixelGrid RotateFlip(PixelGrid from, RotateFlipType type)
    {
        if ((uint)type > 7)
        {
            throw Verify.OutOfRange(nameof(type), type, "There is no such rotation.");
        }

        int quarterTurns = (int)type & 3;
        bool flip = ((int)type & 4) != 0;
        bool swap = (quarterTurns & 1) != 0;
        var to = swap ? new PixelGrid(from.Height, from.Width) : new PixelGrid(from.Width, from.Height);
        for (int y = 0; y < to.Height; y++)
        {
            Span<int> row = to.WritableRow(y);
            if (swap)
            {
                Column(from, quarterTurns == 1 ? y : from.Width - 1 - y, row);
            }
            else
            {
                from.Row(quarterTurns == 0 ? y : from.Height - 1 - y).CopyTo(row);
            }

            if (flip != (quarterTurns is 1 or 2))
            {
                row.Reverse();
            }
        }

        return to;
    }

    private static void Column(PixelGrid from, int x, Span<int> to)
    {
        for (int i = 0; i < to.Length; i++)
        {
            to[i] = from.Row(i)[x];
        }
    }

    /// <summary>Rotates clockwise by any angle in degrees; the result grows to hold all pixels or keeps its
    /// size.</summary>
    internal static PixelGrid Rotate(PixelGrid from, double degrees, bool resize, int background)
    {
        (double sin, double cos) = Math.SinCos(degrees * Math.PI / 180);
        int width = resize ? Bound(from.Width, from.Height, cos, sin) : from.Width;
        int height = resize ? Bound(from.Width, from.Height, sin, cos) : from.Height;
        var to = new PixelGrid(width, height);
        for (int y = 0; y < height; y++)
        {
            Span<int> row = to.WritableRow(y);
            double dy = y + 0.5 - (height / 2.0);
            for (int x = 0; x < width; x++)
            {
                double dx = x + 0.5 - (width / 2.0);
                double sourceX = (cos * dx) + (sin * dy) + (from.Width / 2.0) - 0.5;
                double sourceY = (cos * dy) - (sin * dx) + (from.Height / 2.0) - 0.5;
                row[x] = Sample(from, sourceX, sourceY, background);
            }
        }

        return to;
    }

    private static int Bound(int width, int height, double along, double across) =>
        (int)Math.Max(1, Math.Ceiling((width * Math.Abs(along)) + (height * Math.Abs(across)) - 1e-6));

    private static int Sample(PixelGrid from, double x, double y, int background)
    {
        int left = (int)Math.Floor(x);
        int top = (int)Math.Floor(y);
        if (left < -1 || top < -1 || left >= from.Width || top >= from.Height)
        {
            return background;
        }

        // Rounded; otherwise angles whose sine is nearly 0 would blend in a neighbour.
        int across = (int)Math.Round((x - left) * 256);
        int down = (int)Math.Round((y - top) * 256);
        int a = At(from, left, top, background);
        int b = At(from, left + 1, top, background);
        int c = At(from, left, top + 1, background);
        int d = At(from, left + 1, top + 1, background);
        return (a & b & c & d & PixelGrid.Opaque) == PixelGrid.Opaque
            ? Mix(Mix(a, b, across), Mix(c, d, across), down)
            : MixByAlpha(
                [a, b, c, d],
                [(256 - across) * (256 - down), across * (256 - down), (256 - across) * down, across * down]);
    }

    private static int At(PixelGrid from, int x, int y, int background) =>
        (uint)x < (uint)from.Width && (uint)y < (uint)from.Height ? from.Row(y)[x] : background;

    // Colours are weighted by alpha; otherwise invisible pixels would show at edges.
    private static int MixByAlpha(ReadOnlySpan<int> pixels, ReadOnlySpan<int> shares)
    {
        Span<double> sums = stackalloc double[4];
        for (int i = 0; i < pixels.Length; i++)
        {
            double seen = (double)(pixels[i] >>> 24) * shares[i];
            sums[3] += seen;
            for (int channel = 0; channel < 3; channel++)
            {
                sums[channel] += ((pixels[i] >> (8 * channel)) & 255) * seen;
            }
        }

        int result = (int)Math.Round(sums[3] / 65536) << 24;
        for (int channel = 0; channel < 3 && result != 0; channel++)
        {
            result |= (int)Math.Round(sums[channel] / sums[3]) << (8 * channel);
        }

        return result;
    }

    // Two channels at a time; their sums do not overlap.
    private static int Mix(int one, int other, int share)
    {
        uint low = (((uint)one & 0xFF00FF) * (uint)(256 - share)) + (((uint)other & 0xFF00FF) * (uint)share) + Half;
        uint high = ((((uint)one >> 8) & 0xFF00FF) * (uint)(256 - share))
            + ((((uint)other >> 8) & 0xFF00FF) * (uint)share) + Half;
        return (int)(((low >> 8) & 0xFF00FF) | (high & 0xFF00FF00));
    }
}
