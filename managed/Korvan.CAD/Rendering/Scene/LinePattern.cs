using System;
using System.Collections.Generic;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>A text that a complex line type repeats, placed at a distance from the start of the pattern.</summary>
internal readonly record struct PatternText(
    double At, string Text, string Style, double Height, double Rotation, double OffsetX, double OffsetY);

/// <summary>
/// A line type at scale 1: lengths that alternate between dash and gap, beginning with a dash. The definition's signed
/// list (positive dash, negative gap, zero dot) is brought into that form once.
/// </summary>
internal sealed class LinePattern
{
    internal const int MaxElements = 64;

    /// <summary>The length of a dot as a share of the period. Devices join the gaps around a dash of no length, so it
    /// has one that does not show.</summary>
    private const double DotShare = 0.001;

    private LinePattern(double[] lengths, PatternText[] texts)
    {
        Lengths = lengths;
        Texts = texts;
        foreach (double length in lengths)
        {
            Period += length;
        }
    }

    internal double[] Lengths { get; }

    internal IReadOnlyList<PatternText> Texts { get; }

    internal double Period { get; }

    /// <summary>Null for a continuous line and for definitions that have no gap.</summary>
    internal static LinePattern? Create(IReadOnlyList<double> elements, PatternText[]? texts = null)
    {
        var lengths = new List<double>(elements.Count + 2);
        double sum = 0;
        foreach (double element in elements)
        {
            sum += Math.Abs(element);
        }

        double dot = DotShare * sum;
        foreach (double element in elements)
        {
            if (!double.IsFinite(element) || lengths.Count >= MaxElements - 2)
            {
                return null;
            }

            bool isGap = element < 0;
            double length = element == 0 ? dot : Math.Abs(element);
            bool gapIsNext = (lengths.Count & 1) == 1;
            if (isGap == gapIsNext)
            {
                lengths.Add(length);
            }
            else if (lengths.Count == 0)
            {
                // A pattern that opens with a gap: a dash without length would be a dot, so the gap moves to the end.
                return Create(Rotate(elements, out double moved), Moved(texts, moved));
            }
            else
            {
                lengths[^1] += length;
            }
        }

        if ((lengths.Count & 1) == 1 && lengths.Count > 1)
        {
            lengths[0] += lengths[^1];
            lengths.RemoveAt(lengths.Count - 1);
        }

        var pattern = new LinePattern(lengths.ToArray(), texts ?? []);
        return lengths.Count >= 2 && pattern.Period > 0 ? pattern : null;
    }

    private static PatternText[]? Moved(PatternText[]? texts, double by) =>
        texts == null ? null : Array.ConvertAll(texts, t => t with { At = t.At - by });

    private static List<double> Rotate(IReadOnlyList<double> elements, out double moved)
    {
        var rotated = new List<double>(elements.Count);
        int first = 0;
        moved = 0;
        while (first < elements.Count && elements[first] < 0)
        {
            moved -= elements[first++];
        }

        for (int i = 0; first < elements.Count && i < elements.Count; i++)
        {
            rotated.Add(elements[(first + i) % elements.Count]);
        }

        return rotated;
    }
}
