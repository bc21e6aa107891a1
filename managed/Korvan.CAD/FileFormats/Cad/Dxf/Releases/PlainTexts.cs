using System;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>Breaks paragraphs into lines of text, each an entity of its own.</summary>
/// <param name="drawing">The drawing, for the text styles.</param>
/// <param name="measure">Returns the width of a line of text.</param>
internal sealed class PlainTexts(CadDrawing drawing, Func<CadText, double> measure)
{
    private const double LinePitch = 5.0 / 3.0;

    /// <summary>Gets the lines of paragraphs in a plane whose origin is the insertion point.</summary>
    internal IEnumerable<CadText> Lines(CadMText text, Affine3 plane)
    {
        double height = text.InitialTextHeight;
        MTextFormat start = MTextFormat.None with { Height = height, WidthFactor = 1 };
        List<Line> lines = Wrapped(MTextParser.Parse(text.Text, start), text);
        double spacing = text.LineSpacingFactor is > 0 and < 100 ? text.LineSpacingFactor : 1;
        double pitch = height * LinePitch * spacing;
        double whole = (Math.Max(lines.Count - 1, 0) * pitch) + height;
        int attachment = Math.Clamp((int)text.AttachmentPoint, 1, 9) - 1;
        double top = whole * (attachment / 3) / 2;
        for (int i = 0; i < lines.Count; i++)
        {
            if (lines[i].Text.Length > 0)
            {
                double baseline = top - height - (i * pitch);
                yield return Entity(text, lines[i], plane, baseline, (short)(attachment % 3));
            }
        }
    }

    private CadText Entity(CadMText source, in Line line, in Affine3 plane, double baseline, short alignment)
    {
        Affine3 ocs = source.ExtrusionDirection.ToPlane();
        Vec3 at = InPlane(ocs, plane.Point(new Vec3(0, baseline, 0)));
        Vec3 along = InPlane(ocs, plane.AxisX);
        CadText text = Styled(source, line);
        text.ExtrusionDirection = new Cad3DPoint(ocs.AxisZ.X, ocs.AxisZ.Y, ocs.AxisZ.Z);
        text.TextRotation = Angles.Degrees(Math.Atan2(along.Y, along.X));
        text.FirstAlignment = new Cad3DPoint(at.X, at.Y, at.Z);
        if (alignment != 0)
        {
            text.HorizontalAlignment = alignment;
            text.SecondAlignment = new Cad3DPoint(at.X, at.Y, at.Z);
        }

        return text;
    }

    private CadText Styled(CadMText source, in Line line)
    {
        double factor = drawing.Styles.Find(source.TextStyleName)?.WidthFactor ?? 1;
        return new CadText
        {
            DefaultValue = line.Text,
            TextHeight = line.Height,
            ScaleX = factor > 0 ? factor * line.WidthFactor : line.WidthFactor,
            StyleType = source.TextStyleName,
        };
    }

    private static Vec3 InPlane(in Affine3 plane, Vec3 v) =>
        new(Vec3.Dot(v, plane.AxisX), Vec3.Dot(v, plane.AxisY), Vec3.Dot(v, plane.AxisZ));

    private List<Line> Wrapped(IEnumerable<MTextToken> tokens, CadMText text)
    {
        List<Line> lines = [];
        var line = new LineBuilder(text.InitialTextHeight);
        foreach (MTextToken token in tokens)
        {
            if (token.Kind is MTextTokenKind.Paragraph or MTextTokenKind.Column)
            {
                lines.Add(line.Take());
                continue;
            }

            string added = StringOf(token);
            bool isBlank = token.Kind is MTextTokenKind.Space or MTextTokenKind.Tab;
            double width = text.ReferenceRectangleWidth > 0 ? WidthOf(text, added, isBlank) : 0;
            if (!isBlank && text.ReferenceRectangleWidth > 0 && !line.IsEmpty
                && (line.Width + width) * line.Scale > text.ReferenceRectangleWidth)
            {
                lines.Add(line.Take());
            }

            line.Add(added, width, token.Format, isBlank);
        }

        lines.Add(line.Take());
        return lines;
    }

    // The pieces are measured, not the whole line again and again, at a height and width factor of 1. A box around
    // blanks alone is empty.
    private double WidthOf(CadMText text, string piece, bool isBlank)
    {
        double Measured(string content) => measure(Styled(text, new Line(content, 1, 1)));
        return isBlank ? Measured($"n{piece}n") - Measured("nn") : Measured(piece);
    }

    private static string StringOf(in MTextToken token) => token.Kind switch
    {
        MTextTokenKind.Space => " ",
        MTextTokenKind.Tab => "    ",
        MTextTokenKind.Stack => $"{token.Text}/{token.Lower}",
        _ => token.Text.Replace("°", "%%d", StringComparison.Ordinal).Replace("±", "%%p", StringComparison.Ordinal)
            .Replace("⌀", "%%c", StringComparison.Ordinal).Replace('\u00a0', ' '),
    };

    private readonly record struct Line(string Text, double Height, double WidthFactor);

    private sealed class LineBuilder(double initialHeight)
    {
        private readonly StringBuilder _text = new();
        private double _height;
        private double _factor = 1;

        internal bool IsEmpty => _height == 0;

        /// <summary>Gets the width at a height and width factor of 1.</summary>
        internal double Width { get; private set; }

        internal double Scale => (_height > 0 ? _height : initialHeight) * _factor;

        internal void Add(string text, double width, MTextFormat format, bool isBlank)
        {
            _text.Append(text);
            Width += width;
            if (!isBlank)
            {
                _factor = IsEmpty && format.WidthFactor > 0 ? format.WidthFactor : _factor;
                _height = Math.Max(_height, format.Height);
            }
        }

        internal Line Take()
        {
            Line line = Made(_text.ToString().TrimEnd());
            _text.Clear();
            (_height, _factor, Width) = (0, 1, 0);
            return line;
        }

        private Line Made(string text) => new(text, _height > 0 ? _height : initialHeight, _factor);
    }
}
