using System;
using System.Collections.Generic;
using System.Runtime.CompilerServices;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Images in half, a quarter and so on of their size, made when they are drawn that small: the time to draw an
/// image depends on what shows of it, however often and however small it is placed.</summary>
internal sealed class ReducedImages
{
    private const int ChannelCount = 4;

    private static readonly ConditionalWeakTable<byte[], ReducedImages> All = [];

    private readonly List<(int Width, int Height, byte[] Pixels)> _levels;

    private ReducedImages(int width, int height, byte[] pixels) => _levels = [(width, height, pixels)];

    /// <summary>Returns pixels, at least as many as are asked for as long as the image has them.</summary>
    /// <param name="width">The width of the image.</param>
    /// <param name="height">The height of the image.</param>
    /// <param name="pixels">The pixels, with alpha multiplied in.</param>
    /// <param name="shownWidth">The width in pixels at which the image is drawn.</param>
    /// <param name="shownHeight">The height in pixels at which the image is drawn.</param>
    internal static (int Width, int Height, byte[] Pixels) Of(
        int width, int height, byte[] pixels, double shownWidth, double shownHeight)
    {
        int level = 0;
        while (width >> (level + 1) >= Math.Max(1, shownWidth) && height >> (level + 1) >= Math.Max(1, shownHeight))
        {
            level++;
        }

        if (level == 0)
        {
            return (width, height, pixels);
        }

        ReducedImages images = All.GetValue(pixels, _ => new ReducedImages(width, height, pixels));
        return images.Level(level);
    }

    private (int Width, int Height, byte[] Pixels) Level(int level)
    {
        lock (_levels)
        {
            while (_levels.Count <= level)
            {
                _levels.Add(Half(_levels[^1]));
            }

            return _levels[level];
        }
    }

    private static (int Width, int Height, byte[] Pixels) Half((int Width, int Height, byte[] Pixels) image)
    {
        int width = image.Width / 2;
        int height = image.Height / 2;
        var half = new byte[(long)width * height * ChannelCount];
        int stride = image.Width * ChannelCount;
        for (int y = 0; y < height; y++)
        {
            Budget.Check();
            ReadOnlySpan<byte> upper = image.Pixels.AsSpan(2 * y * stride, stride);
            ReadOnlySpan<byte> lower = image.Pixels.AsSpan(((2 * y) + 1) * stride, stride);
            Span<byte> row = half.AsSpan(y * width * ChannelCount, width * ChannelCount);
            for (int i = 0; i < row.Length; i++)
            {
                int at = ((i & ~3) * 2) + (i & 3);
                row[i] = (byte)((upper[at] + upper[at + ChannelCount] + lower[at] + lower[at + ChannelCount] + 2) >> 2);
            }
        }

        return (width, height, half);
    }
}
