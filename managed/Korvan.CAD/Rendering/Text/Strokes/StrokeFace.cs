using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Text.Strokes;

/// <summary>A face whose glyphs are strokes.</summary>
internal abstract class StrokeFace
{
    private readonly Dictionary<int, StrokeGlyph?> _glyphs = [];

    /// <summary>Returns a glyph; null where the face has none.</summary>
    internal StrokeGlyph? Find(int character)
    {
        if (!_glyphs.TryGetValue(character, out StrokeGlyph? glyph))
        {
            glyph = Make(character);
            _glyphs.Add(character, glyph);
        }

        return glyph;
    }

    private protected abstract StrokeGlyph? Make(int character);
}

/// <summary>The face of the library, with the widths of a common stroke font.</summary>
/// <param name="width">The factor on widths.</param>
/// <param name="pitch">The advance of every character, in heights of capitals; 0 where each has its own.</param>
internal sealed class DrawnFace(double width, double pitch = 0) : StrokeFace
{
    private protected override StrokeGlyph? Make(int character)
    {
        if (StrokeGlyphs.IsMark(character) || StrokeGlyphs.Face.Find(character) is not { } glyph)
        {
            return null;
        }

        // Of a fixed pitch, characters are in the middle, and those that are too wide are made narrower.
        double scale = pitch > 0 && glyph.Advance * width > pitch ? pitch / glyph.Advance : width;
        double shift = pitch > 0 ? (pitch - (glyph.Advance * scale)) / 2 : 0;
        var path = new PathBuffer();
        path.AppendMapped(glyph.Path, new Affine2(scale, 0, 0, 1, shift, 0));
        return new StrokeGlyph(path, pitch > 0 ? pitch : glyph.Advance * scale);
    }
}
