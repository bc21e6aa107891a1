using System;
using Korvan.CAD.FileFormats.Shx;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Text.Strokes;

/// <summary>A face out of a compiled shape font, and of a big font beside it for characters that it lacks.</summary>
/// <param name="file">The font.</param>
/// <param name="codePage">The code page of the numbers of its characters, where they are not Unicode.</param>
/// <param name="big">The face of a big font.</param>
internal sealed class ShapeFace(ShapeFile file, CodePages codePage, StrokeFace? big) : StrokeFace
{
    /// <summary>Gets the number of characters whose code did not end, which are drawn as far as they go.</summary>
    internal int CutOff { get; private set; }

    private protected override StrokeGlyph? Make(int character)
    {
        int number = NumberOf(character);
        if (number <= 0 || file.Draw(number) is not { } shape)
        {
            return big?.Find(character);
        }

        CutOff += shape.IsWhole ? 0 : 1;
        double scale = 1.0 / Math.Max(file.Above, 1);
        var path = new PathBuffer();
        foreach (Vec2[] stroke in shape.Strokes)
        {
            path.MoveTo(stroke[0] * scale);
            foreach (Vec2 point in stroke.AsSpan(1))
            {
                path.LineTo(point * scale);
            }
        }

        return new StrokeGlyph(path, Math.Max(0, shape.End.X * scale));
    }

    // ASCII is the same in all code pages.
    private int NumberOf(int character)
    {
        if (character is < 0x80 or > 0xFFFF || file.Kind == ShapeFileKind.Unicode)
        {
            return character;
        }

        byte[] bytes = CodePagesConvertHelper.Encode(char.ConvertFromUtf32(character), codePage);
        return bytes.Length switch
        {
            1 => bytes[0],
            2 => (bytes[0] << 8) | bytes[1],
            _ => -1,
        };
    }
}
