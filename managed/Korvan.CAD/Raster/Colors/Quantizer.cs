using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Colors;

/// <summary>Color quantization: chooses the palette of an image.</summary>
internal static class Quantizer
{
    internal static int[] Choose(ColorHistogram colors, int maxColors, ColorQuantizationMethod method)
    {
        if (colors.Counts.Count <= maxColors)
        {
            return [.. colors.Counts.Keys.OrderBy(static color => (uint)color)];
        }

        // A transparent pixel takes one entry whatever the method, or it would be mixed into colours.
        bool transparent = colors.Counts.ContainsKey(0);
        KeyValuePair<int, long>[] visible =
            [.. colors.Counts.Where(static c => c.Key != 0).OrderBy(static c => (uint)c.Key)];
        int room = transparent ? maxColors - 1 : maxColors;
        int[] chosen = method switch
        {
            ColorQuantizationMethod.Popularity =>
                [.. visible.OrderByDescending(static c => c.Value).Take(room).Select(static c => c.Key)],
            ColorQuantizationMethod.Octree => OctreeQuantizer.Choose(visible, room),
            ColorQuantizationMethod.Uniform => Uniform(room),
            ColorQuantizationMethod.MedianCut => MedianCut(visible, room),
            _ => throw Verify.OutOfRange(nameof(method), method, "There is no such quantization method."),
        };
        return transparent ? [0, .. chosen] : chosen;
    }

    /// <summary>Returns a lattice of as many levels as fit, most of them for green.</summary>
    internal static int[] Uniform(int maxColors)
    {
        int red = Math.Max(1, (int)Math.Cbrt(maxColors + 0.5));
        int blue = red;
        int green = Math.Max(1, maxColors / (red * blue));
        red = Math.Max(red, maxColors / (green * blue));
        var colors = new List<int>(red * green * blue);
        for (int i = 0; i < red * green * blue; i++)
        {
            int r = Level(i / (green * blue), red);
            int g = Level(i / blue % green, green);
            colors.Add(PixelGrid.Opaque | (r << 16) | (g << 8) | Level(i % blue, blue));
        }

        return [.. colors];
    }

    private static int Level(int index, int count) => count == 1 ? 128 : index * 255 / (count - 1);

    private static int[] MedianCut(KeyValuePair<int, long>[] colors, int maxColors)
    {
        var boxes = new PriorityQueue<ColorBox, double>();
        void Enqueue(ColorBox box) => boxes.Enqueue(box, -box.Priority);
        Enqueue(new ColorBox(colors));
        while (boxes.Count < maxColors && boxes.Peek().CanBeSplit)
        {
            (ColorBox low, ColorBox high) = boxes.Dequeue().Split();
            Enqueue(low);
            Enqueue(high);
        }

        IEnumerable<int> means = boxes.UnorderedItems.Select(static item => item.Element.Mean());
        return [.. means.OrderBy(static color => (uint)color)];
    }

    /// <summary>A box of colours, with the channel of their largest range.</summary>
    private readonly struct ColorBox
    {
        private readonly ArraySegment<KeyValuePair<int, long>> _colors;
        private readonly int _shift;
        private readonly int _range;
        private readonly long _total;

        internal ColorBox(ArraySegment<KeyValuePair<int, long>> colors)
        {
            _colors = colors;
            _total = 0;
            foreach (KeyValuePair<int, long> color in colors)
            {
                _total += color.Value;
            }

            (_shift, _range) = (0, -1);
            foreach (int candidate in (ReadOnlySpan<int>)[8, 16, 0, 24])
            {
                int spread = Spread(colors, candidate);
                if (spread > _range)
                {
                    (_shift, _range) = (candidate, spread);
                }
            }
        }

        internal bool CanBeSplit => _colors.Count > 1;

        internal double Priority => CanBeSplit ? _range * Math.Sqrt(_total) : 0;

        internal (ColorBox Low, ColorBox High) Split()
        {
            int by = _shift;
            Array.Sort(_colors.Array!, _colors.Offset, _colors.Count, Comparer<KeyValuePair<int, long>>.Create(
                (a, b) => ((a.Key >> by) & 255).CompareTo((b.Key >> by) & 255)));
            long half = 0;
            int at = 0;
            while (at < _colors.Count - 1 && (at == 0 || half + _colors[at].Value <= _total / 2))
            {
                half += _colors[at++].Value;
            }

            return (new ColorBox(_colors.Slice(0, at)), new ColorBox(_colors.Slice(at)));
        }

        internal int Mean()
        {
            Span<long> sums = stackalloc long[4];
            foreach ((int color, long count) in _colors)
            {
                for (int channel = 0; channel < 4; channel++)
                {
                    sums[channel] += ((color >> (8 * channel)) & 255) * count;
                }
            }

            int mean = 0;
            for (int channel = 0; channel < 4; channel++)
            {
                mean |= (int)((sums[channel] + (_total / 2)) / _total) << (8 * channel);
            }

            return mean;
        }

        private static int Spread(ArraySegment<KeyValuePair<int, long>> colors, int shift)
        {
            int low = 255;
            int high = 0;
            foreach (KeyValuePair<int, long> color in colors)
            {
                int value = (color.Key >> shift) & 255;
                low = Math.Min(low, value);
                high = Math.Max(high, value);
            }

            return high - low;
        }
    }
}
