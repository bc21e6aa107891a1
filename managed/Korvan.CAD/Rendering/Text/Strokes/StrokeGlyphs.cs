using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Text;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Text.Strokes;

/// <summary>Reads the glyphs of the library's stroke face; the file states its notation.</summary>
internal sealed class StrokeGlyphs
{
    internal const double CapHeight = 21;

    private const string Resource = "Korvan.CAD.Rendering.Text.Strokes.Glyphs.txt";
    private const double LowerCaseHeight = 14;
    private const double Quarter = 0.5522847498;
    private const double DotSize = 0.6;
    private const int FirstMark = 0x300;
    private const int LastMark = 0x36F;

    private static readonly Lazy<StrokeGlyphs> LazyFace = new(static () => new StrokeGlyphs(ReadResource()));

    private readonly Dictionary<int, string> _lines = [];
    private readonly Dictionary<int, StrokeGlyph> _glyphs = [];

    /// <summary>Reads glyphs out of lines of text.</summary>
    internal StrokeGlyphs(string text)
    {
        foreach (string line in text.Split('\n'))
        {
            int end = line.IndexOf(' ', StringComparison.Ordinal);
            if (end > 0 && !line.StartsWith("# ", StringComparison.Ordinal))
            {
                _lines.Add(NumberOf(line[..end]), line[(end + 1)..].TrimEnd('\r'));
            }
        }
    }

    internal static StrokeGlyphs Face => LazyFace.Value;

    internal IEnumerable<int> Characters => _lines.Keys;

    /// <summary>Returns a glyph; null where the face has none.</summary>
    internal StrokeGlyph? Find(int character)
    {
        lock (_glyphs)
        {
            return Glyph(character);
        }
    }

    private static string ReadResource()
    {
        using Stream stream = typeof(StrokeGlyphs).Assembly.GetManifestResourceStream(Resource)
            ?? throw new InvalidOperationException($"The library lacks its resource {Resource}.");
        using var reader = new StreamReader(stream, Encoding.UTF8);
        return reader.ReadToEnd();
    }

    private static int NumberOf(string character) => character.StartsWith("U+", StringComparison.Ordinal)
        ? int.Parse(character.AsSpan(2), NumberStyles.HexNumber, CultureInfo.InvariantCulture)
        : char.ConvertToUtf32(character, 0);

    private static double Number(string text) => double.Parse(text, CultureInfo.InvariantCulture);

    private StrokeGlyph? Glyph(int character)
    {
        if (!_glyphs.TryGetValue(character, out StrokeGlyph? glyph) && _lines.TryGetValue(character, out string? line))
        {
            glyph = Read(line);
            _glyphs.Add(character, glyph);
        }

        return glyph;
    }

    private StrokeGlyph Required(string character) => Glyph(NumberOf(character))
        ?? throw new InvalidDataException($"The stroke face lacks '{character}', which another glyph is made of.");

    private StrokeGlyph Read(string line)
    {
        var path = new PathBuffer();
        if (line[0] == '=' && line.Length > 1 && line[1] != ' ')
        {
            string[] parts = line[1..].Split(' ');
            StrokeGlyph letter = Required(parts[0]);
            Append(path, letter, 1, 0, 0);
            foreach (string mark in parts.AsSpan(1))
            {
                AddMark(path, letter, Required(mark));
            }

            return new StrokeGlyph(path, letter.Advance);
        }

        int end = line.IndexOf(' ', StringComparison.Ordinal);
        foreach (string stroke in end < 0 ? [] : line[(end + 1)..].Split(';'))
        {
            AddStroke(path, stroke);
        }

        return new StrokeGlyph(path, Number(end < 0 ? line : line[..end]) / CapHeight);
    }

    // Marks above are as high over capitals as over lower case; all stand in the middle of their letter.
    private static void AddMark(PathBuffer path, StrokeGlyph letter, StrokeGlyph mark)
    {
        bool isAbove = mark.Path.Bounds.MinY > 0;
        bool isHigh = letter.Path.Bounds.MaxY > (LowerCaseHeight + 2) / CapHeight;
        double middle = (letter.Path.Bounds.MinX + letter.Path.Bounds.MaxX) / 2;
        Append(path, mark, 1, middle, isAbove && isHigh ? (CapHeight - LowerCaseHeight) / CapHeight : 0);
    }

    private void AddStroke(PathBuffer path, string stroke)
    {
        string[] points = stroke.Split(' ');
        if (points[0].StartsWith('@'))
        {
            StrokeGlyph part = Required(points[0][1..]);
            Append(path, part, Number(points[1]), Number(points[2]) / CapHeight, Number(points[3]) / CapHeight);
            return;
        }

        if (points[0].StartsWith('.'))
        {
            AddDot(path, Point(points[0][1..]));
            return;
        }

        path.MoveTo(Point(points[0]));
        foreach (string point in points.AsSpan(1))
        {
            AddPoint(path, point);
        }
    }

    private static void AddPoint(PathBuffer path, string point)
    {
        if (point[0] is not ('~' or '^'))
        {
            path.LineTo(Point(point));
            return;
        }

        Vec2 from = path.Current;
        Vec2 to = Point(point[1..]);
        (double x, double y) = ((to.X - from.X) * Quarter, (to.Y - from.Y) * Quarter);
        bool isLevel = point[0] == '~';
        path.CurveTo(
            isLevel ? new Vec2(from.X + x, from.Y) : new Vec2(from.X, from.Y + y),
            isLevel ? new Vec2(to.X, to.Y - y) : new Vec2(to.X - x, to.Y), to);
    }

    private static void AddDot(PathBuffer path, Vec2 at)
    {
        const double size = DotSize / CapHeight;
        path.MoveTo(at + new Vec2(-size, 0));
        path.LineTo(at + new Vec2(0, size));
        path.LineTo(at + new Vec2(size, 0));
        path.LineTo(at + new Vec2(0, -size));
        path.LineTo(at + new Vec2(-size, 0));
    }

    private static Vec2 Point(string text)
    {
        int comma = text.IndexOf(',', StringComparison.Ordinal);
        return new Vec2(Number(text[..comma]) / CapHeight, Number(text[(comma + 1)..]) / CapHeight);
    }

    private static void Append(PathBuffer path, StrokeGlyph part, double scale, double right, double up) =>
        path.AppendMapped(part.Path, new Affine2(scale, 0, 0, scale, right, up));

    /// <summary>Determines whether a character is a mark of another one.</summary>
    internal static bool IsMark(int character) => character is >= FirstMark and <= LastMark;
}
