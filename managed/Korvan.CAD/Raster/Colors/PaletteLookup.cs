using System;
using System.Runtime.Intrinsics;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Colors;

/// <summary>Finds the nearest colour of a palette; results are cached, since images repeat their colours.</summary>
internal sealed class PaletteLookup
{
    private const int Slots = 1 << 14;

    // Farther from all colours than they are from each other.
    private const int FarAlpha = -5000;

    private readonly int[] _entries;
    private readonly ColorCompareMethod _method;
    private readonly int[] _keys = new int[Slots];
    private readonly int[] _found = new int[Slots];

    // The channels of the palette, for several colours at a time.
    private readonly Vector256<int>[] _alphas;
    private readonly Vector256<int>[] _reds;
    private readonly Vector256<int>[] _greens;
    private readonly Vector256<int>[] _blues;
    private readonly int _firstInvisible;

    internal PaletteLookup(int[] entries, ColorCompareMethod method)
    {
        _entries = entries;
        _method = method;
        _found.AsSpan().Fill(-1);
        _firstInvisible = Array.FindIndex(entries, static one => (uint)one >> 24 == 0);
        _alphas = Channel(24, FarAlpha);
        _reds = Channel(16, 0);
        _greens = Channel(8, 0);
        _blues = Channel(0, 0);
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

    private Vector256<int>[] Channel(int shift, int padding)
    {
        int lanes = Vector256<int>.Count;
        var channel = new Vector256<int>[(_entries.Length + lanes - 1) / lanes];
        Span<int> values = stackalloc int[lanes];
        for (int i = 0; i < channel.Length; i++)
        {
            values.Fill(padding);
            int count = Math.Min(lanes, _entries.Length - (i * lanes));
            for (int lane = 0; lane < count; lane++)
            {
                values[lane] = (_entries[(i * lanes) + lane] >> shift) & 255;
            }

            channel[i] = Vector256.Create<int>(values);
        }

        return channel;
    }

    private int Search(int argb)
    {
        if (_method == ColorCompareMethod.Luminance)
        {
            return SearchOneByOne(argb);
        }

        return (uint)argb >> 24 == 0 && _firstInvisible >= 0 ? _firstInvisible : SearchWide(argb);
    }

    private int SearchWide(int argb)
    {
        var alpha = Vector256.Create((int)((uint)argb >> 24));
        var red = Vector256.Create((argb >> 16) & 255);
        var green = Vector256.Create((argb >> 8) & 255);
        var blue = Vector256.Create(argb & 255);
        var least = Vector256.Create(int.MaxValue);
        Vector256<int> found = Vector256<int>.Zero;
        for (int i = 0; i < _alphas.Length; i++)
        {
            Vector256<int> a = alpha - _alphas[i];
            Vector256<int> r = red - _reds[i];
            Vector256<int> g = green - _greens[i];
            Vector256<int> b = blue - _blues[i];
            Vector256<int> color = _method == ColorCompareMethod.Weighted
                ? Weigh(red + _reds[i], r * r, g * g, b * b) : (r * r) + (g * g) + (b * b);
            Vector256<int> distance = (a * a * 3) + color;
            Vector256<int> isNearer = Vector256.LessThan(distance, least);
            least = Vector256.ConditionalSelect(isNearer, distance, least);
            found = Vector256.ConditionalSelect(isNearer, Vector256.Create(i), found);
        }

        return FirstOf(least, found);
    }

    private static Vector256<int> Weigh(
        Vector256<int> redSum, Vector256<int> r, Vector256<int> g, Vector256<int> b) =>
        (((Vector256.Create(1024) + redSum) * r) + (g * 2048) + ((Vector256.Create(1534) - redSum) * b)) >> 9;

    // Of colours that are as near as each other, the first one counts.
    private static int FirstOf(Vector256<int> least, Vector256<int> found)
    {
        int lanes = Vector256<int>.Count;
        (int min, int best) = (int.MaxValue, 0);
        for (int lane = 0; lane < lanes; lane++)
        {
            int index = (found[lane] * lanes) + lane;
            if (least[lane] < min || (least[lane] == min && index < best))
            {
                (min, best) = (least[lane], index);
            }
        }

        return best;
    }

    private int SearchOneByOne(int argb)
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
