using System;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Colors;

/// <summary>Finds the nearest colour of a palette; results are cached, since images repeat their colours.</summary>
internal sealed class PaletteLookup
{
    private const int Slots = 1 << 14;

    private readonly int[] _entries;
    private readonly ColorCompareMethod _method;
    private readonly int[] _keys = new int[Slots];
    private readonly int[] _found = new int[Slots];

    internal PaletteLookup(int[] entries, ColorCompareMethod method)
    {
        _entries = entries;
        _method = method;
        _found.AsSpan().Fill(-1);
    }

    internal int Nearest(int argb)
    {
        int slot = (int)((uint)(argb * -1640531527) >> 18);
        if (_found[slot] < 0 || _keys[slot] != argb)
        {
            _keys[slot] = argb;
            _found[slot] = Search(argb);
        }

        return _found[slot];
    }

    private int Search(int argb)
    {
        int best = 0;
        long min = long.MaxValue;
        for (int i = 0; i < _entries.Length && min > 0; i++)
        {
            long distance = Distance(argb, _entries[i], _method);
            if (distance < min)
            {
                (best, min) = (i, distance);
            }
        }

        return best;
    }

    internal static long Distance(int one, int other, ColorCompareMethod method)
    {
        int a = (int)((uint)one >> 24) - (int)((uint)other >> 24);
        if (((uint)one >> 24) == 0 && ((uint)other >> 24) == 0)
        {
            return 0; // invisible pixels are equal
        }

        int redSum = ((one >> 16) & 255) + ((other >> 16) & 255);
        int r = ((one >> 16) & 255) - ((other >> 16) & 255);
        int g = ((one >> 8) & 255) - ((other >> 8) & 255);
        int b = (one & 255) - (other & 255);
        long opacity = (long)a * a * 3;
        return method switch
        {
            ColorCompareMethod.Luminance => opacity + Math.Abs(PixelGrid.Luma(one) - PixelGrid.Luma(other)),
            ColorCompareMethod.Weighted =>
                opacity + ((((1024 + redSum) * r * r) + (2048 * g * g) + ((1534 - redSum) * b * b)) >> 9),
            _ => opacity + (r * r) + (g * g) + (b * b),
        };
    }
}
