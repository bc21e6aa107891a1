using System.Text;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Text.Strokes;

/// <summary>Puts the glyphs of a stroke face side by side.</summary>
internal static class StrokeRun
{
    private const int VerbsPerStep = 256;

    /// <summary>Draws a run; null where the face lacks one of its characters.</summary>
    /// <param name="face">The face.</param>
    /// <param name="text">The text.</param>
    /// <param name="capRatio">The height of capitals in ems.</param>
    /// <param name="letterSpacing">The space between characters, in ems.</param>
    internal static StrokeLine? Draw(StrokeFace face, string text, double capRatio, double letterSpacing)
    {
        var path = new PathBuffer();
        double at = 0;
        foreach (Rune character in text.IsNormalized(NormalizationForm.FormC)
            ? text.EnumerateRunes() : text.Normalize(NormalizationForm.FormC).EnumerateRunes())
        {
            if (face.Find(character.Value) is not { } glyph)
            {
                return null;
            }

            Budget.Step(glyph.Path.Verbs.Length / VerbsPerStep);
            path.AppendMapped(glyph.Path, new Affine2(capRatio, 0, 0, capRatio, at, 0));
            at += (glyph.Advance * capRatio) + letterSpacing;
        }

        path.Trim();
        return new StrokeLine(path, at);
    }
}
