using System;
using System.Collections.Generic;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Colors;

/// <summary>A histogram of colours; past a limit of colours their lowest bits are dropped.</summary>
internal sealed class ColorHistogram
{
    private const int MaxColors = 1 << 18;

    private readonly Dictionary<int, long> _counts = [];
    private int _mask = -1;
    private int _droppedBits;

    internal IReadOnlyDictionary<int, long> Counts => _counts;

    internal void Add(PixelGrid pixels)
    {
        for (int y = 0; y < pixels.Height; y++)
        {
            Add(pixels.Row(y));
        }
    }

    internal void Add(ReadOnlySpan<int> pixels)
    {
        for (int start = 0; start < pixels.Length;)
        {
            int end = start + 1;
            while (end < pixels.Length && pixels[end] == pixels[start])
            {
                end++;
            }

            AddColor(pixels[start], end - start);
            start = end;
        }
    }

    private void AddColor(int argb, long times)
    {
        int key = ((uint)argb >> 24) == 0 ? 0 : argb & _mask;
        _counts[key] = _counts.GetValueOrDefault(key) + times;
        if (_counts.Count > MaxColors)
        {
            Coarsen();
        }
    }

    // Each round leaves one more bit of each channel out; 2^18 colours of four bits a channel cannot be passed.
    private void Coarsen()
    {
        _droppedBits++;
        _mask = unchecked((int)(0x01010101u * (byte)(255 << _droppedBits)));
        var old = new List<KeyValuePair<int, long>>(_counts);
        _counts.Clear();
        foreach ((int key, long count) in old)
        {
            _counts[key & _mask] = _counts.GetValueOrDefault(key & _mask) + count;
        }
    }
}
