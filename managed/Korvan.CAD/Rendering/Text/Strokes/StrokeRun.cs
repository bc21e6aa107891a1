using System.Text;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Text.Strokes;

/// <summary>Puts the glyphs of a stroke face side by side.</summary>
internal static class StrokeRun
{
    private const int VerbsPerStep = 256;

    /// <summary>Measures a run; null where the face lacks one of its characters.</summary>
    /// <param name="face">The face.</param>
    /// <param name="text">The text.</param>
    /// <param name="capRatio">The height of capitals in ems.</param>
    /// <param name="letterSpacing">The space between characters, in ems.</param>
    internal static StrokeLine? Measure(StrokeFace face, string text, double capRatio, double letterSpacing)
    {
        Bounds2 ink = Bounds2.Empty;
        double at = 0;
        foreach (Rune character in RunesOf(text))
        {
            if (face.Find(character.Value) is not { } glyph)
            {
                return null;
            }

            ref readonly Bounds2 box = ref glyph.Path.Bounds;
            if (!box.IsEmpty)
            {
                ink.Add(at + (box.MinX * capRatio), box.MinY * capRatio);
                ink.Add(at + (box.MaxX * capRatio), box.MaxY * capRatio);
            }

            at += (glyph.Advance * capRatio) + letterSpacing;
        }

        return new StrokeLine(at, ink);
    }

    /// <summary>Adds the strokes of a run; the matrix maps its ems, y up from the baseline.</summary>
    /// <param name="face">The face, which has all characters.</param>
    /// <param name="text">The text.</param>
    /// <param name="capRatio">The height of capitals in ems.</param>
    /// <param name="letterSpacing">The space between characters, in ems.</param>
    /// <param name="matrix">The map.</param>
    /// <param name="target">What the strokes are added to.</param>
    internal static void Append(
        StrokeFace face, string text, double capRatio, double letterSpacing, in Affine2 matrix, PathBuffer target)
    {
        double at = 0;
        foreach (Rune character in RunesOf(text))
        {
            if (face.Find(character.Value) is not { } glyph)
            {
                continue;
            }

            Budget.Step(glyph.Path.Verbs.Length / VerbsPerStep);
            target.AppendMapped(glyph.Path, matrix * new Affine2(capRatio, 0, 0, capRatio, at, 0));
            at += (glyph.Advance * capRatio) + letterSpacing;
        }
    }

    private static StringRuneEnumerator RunesOf(string text) => text.IsNormalized(NormalizationForm.FormC)
        ? text.EnumerateRunes()
        : text.Normalize(NormalizationForm.FormC).EnumerateRunes();
}
