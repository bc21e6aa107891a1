using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.Rendering.Text;

/// <summary>What the layout of multi-line text starts from; the columns are none when their count is below
/// two.</summary>
internal readonly record struct MTextFrame(
    double Width,
    int Attachment,
    double LineSpacing,
    bool ExactSpacing,
    int ColumnCount = 0,
    double ColumnWidth = 0,
    double ColumnGutter = 0,
    double ColumnHeight = 0);

/// <summary>A run at its place: baseline start, em size and slant, in drawing units before the entity's
/// rotation.</summary>
internal readonly record struct PlacedRun(
    string Text, int Font, double X, double Y, double Em, double WidthFactor, double Slant, double LetterSpacing,
    InlineColor Color, double Width);

/// <summary>A bar of a decoration or of a fraction.</summary>
internal readonly record struct PlacedBar(
    double X0, double Y0, double X1, double Y1, double Thickness, InlineColor Color);

/// <summary>
/// Breaks tokens into lines and places them. The origin is the attachment point, y up. The distance of baselines
/// is 5/3 of the text height times the factor; with "at least" the tallest character of the line counts.
/// </summary>
internal sealed class MTextLayout
{
    private const double BaselineDistance = 5.0 / 3.0;
    private const double DefaultTab = 4;

    /// <summary>What of a stack's height above the baseline counts as text height: the gap above it is part of
    /// it.</summary>
    private const double StackShare = 0.75;

    private readonly TextEngine _engine;
    private readonly MTextFrame _frame;
    private readonly double _height;
    private readonly List<Line> _lines = [];

    private MTextLayout(TextEngine engine, in MTextFrame frame, double height)
    {
        _engine = engine;
        _frame = frame;
        _height = height;
    }

    internal List<PlacedRun> Runs { get; } = [];

    internal List<PlacedBar> Bars { get; } = [];

    /// <summary>The box of the text around the attachment point.</summary>
    internal (double Left, double Bottom, double Right, double Top) Box { get; private set; }

    private double WrapWidth => _frame.ColumnCount > 1 ? _frame.ColumnWidth : _frame.Width;

    internal static MTextLayout Create(
        TextEngine engine, IReadOnlyList<MTextToken> tokens, in MTextFrame frame, double height)
    {
        var layout = new MTextLayout(engine, frame, height);
        layout.BreakLines(tokens);
        layout.Place();
        return layout;
    }

    private void BreakLines(IReadOnlyList<MTextToken> tokens)
    {
        var line = new Line { IsFirst = true };
        for (int i = 0; i < tokens.Count;)
        {
            MTextToken token = tokens[i];
            if (line.Pieces.Count == 0)
            {
                line.Paragraph = token.Paragraph;
            }

            switch (token.Kind)
            {
                case MTextTokenKind.Paragraph or MTextTokenKind.Column:
                    line.EndsParagraph = true;
                    line.EndsColumn = token.Kind == MTextTokenKind.Column;
                    line.NoteHeight(token.Format.Height, onlyIfEmpty: true);
                    _lines.Add(line);
                    line = new Line { IsFirst = true, Paragraph = token.Paragraph };
                    i++;
                    break;
                case MTextTokenKind.Space:
                    double space = _engine.Advance(Font(token), " ", Spacing(token)) * Em(token);
                    line.Add(Piece(token, space * token.Format.WidthFactor));
                    i++;
                    break;
                case MTextTokenKind.Tab:
                    line.Add(Piece(token, TabWidth(line)));
                    i++;
                    break;
                default:
                    i = AddUnbreakable(tokens, i, ref line);
                    break;
            }
        }

        line.EndsParagraph = true;
        _lines.Add(line);
    }

    /// <summary>Takes words that touch each other as one, and starts a new line when they do not fit.</summary>
    private int AddUnbreakable(IReadOnlyList<MTextToken> tokens, int start, ref Line line)
    {
        int end = start;
        double width = 0;
        var group = new List<LinePiece>();
        while (end < tokens.Count && tokens[end].Kind is MTextTokenKind.Word or MTextTokenKind.Stack)
        {
            LinePiece piece = Measure(tokens[end]);
            group.Add(piece);
            width += piece.Width;
            end++;
        }

        double limit = WrapWidth - line.Paragraph.Right;
        bool hasInk = line.Pieces.Exists(p => p.Token.Kind is MTextTokenKind.Word or MTextTokenKind.Stack);
        if (WrapWidth > 0 && hasInk && line.Indent + line.Width + width > limit * (1 + 1e-9))
        {
            _lines.Add(line);
            line = new Line { Paragraph = tokens[start].Paragraph };
        }

        // A single word wider than the column is left whole: the text box lets it stick out.
        foreach (LinePiece piece in group)
        {
            line.Add(piece);
            line.NoteHeight(piece.Token.Format.Height, onlyIfEmpty: false);
            line.Rise = Math.Max(line.Rise, Rise(piece.Token));
        }

        return end;
    }

    /// <summary>How far a stack reaches above the baseline; capitals reach no further than their own height.</summary>
    private static double Rise(in MTextToken token)
    {
        if (token.Kind != MTextTokenKind.Stack || token.Divider == '#')
        {
            return 0;
        }

        return token.Format.Height * (token.Format.Align == StackAlign.Baseline ? 2.5 : 1.75);
    }

    private LinePiece Measure(MTextToken token)
    {
        double em = Em(token) * token.Format.WidthFactor;
        int font = Font(token);
        double spacing = Spacing(token);
        double upper = _engine.Advance(font, token.Text, spacing) * em;
        if (token.Kind == MTextTokenKind.Word)
        {
            return Piece(token, upper);
        }

        double lower = _engine.Advance(font, token.Lower, spacing) * em;
        double gap = token.Format.Height * 0.2;
        double width = token.Divider == '#' ? upper + lower + gap : Math.Max(upper, lower) + gap;
        return new LinePiece(token, width, upper, lower);
    }

    private static LinePiece Piece(MTextToken token, double width) => new(token, width, width, 0);

    private double TabWidth(Line line)
    {
        double at = line.Indent + line.Width;
        foreach (TabStop stop in line.Paragraph.Tabs)
        {
            if (stop.Position > at + 1e-9)
            {
                return stop.Position - at;
            }
        }

        double step = DefaultTab * _height;
        return ((Math.Floor((at / step) + 1e-9) + 1) * step) - at;
    }

    private void Place()
    {
        double column = 0;
        double baseline = 0;
        double lowest = 0;
        double widest = WrapWidth;
        bool top = true;
        int columns = 1;
        foreach (Line line in _lines)
        {
            widest = Math.Max(widest, line.Indent + line.VisibleWidth);
        }

        foreach (Line line in _lines)
        {
            double tallest = line.Height > 0 ? line.Height : _height;
            double distance = _frame.ExactSpacing ? _height : Math.Max(tallest, line.Rise * StackShare);
            double advance = BaselineDistance * _frame.LineSpacing * distance;
            bool columnFull = _frame.ColumnHeight > 0 && columns < _frame.ColumnCount
                && -(baseline - advance) > _frame.ColumnHeight;
            if (!top && columnFull)
            {
                (top, column, columns) = (true, column + widest + _frame.ColumnGutter, columns + 1);
            }

            baseline = top ? -tallest : baseline - advance;
            line.X = column;
            line.Y = baseline;
            top = false;
            lowest = Math.Min(lowest, baseline);
            if (line.EndsColumn)
            {
                (top, column, columns) = (true, column + widest + _frame.ColumnGutter, columns + 1);
            }
        }

        double total = column + widest;
        Anchor(total, -lowest, out double dx, out double dy);
        Box = (dx, lowest + dy, dx + total, dy);
        foreach (Line line in _lines)
        {
            PlaceLine(line, line.X + dx, line.Y + dy, widest);
        }
    }

    private void Anchor(double width, double total, out double dx, out double dy)
    {
        int attachment = Math.Clamp(_frame.Attachment, 1, 9) - 1;
        dx = -width * (attachment % 3) / 2;
        dy = total * (attachment / 3) / 2;
    }

    private void PlaceLine(Line line, double left, double baseline, double width)
    {
        double room = width - line.Indent - line.Paragraph.Right - line.VisibleWidth;
        ParagraphAlign align = line.Paragraph.Align == ParagraphAlign.Default ? DefaultAlign() : line.Paragraph.Align;
        double x = left + line.Indent;
        double stretch = 0;
        switch (align)
        {
            case ParagraphAlign.Center:
                x += room / 2;
                break;
            case ParagraphAlign.Right:
                x += room;
                break;
            case ParagraphAlign.Justified when !line.EndsParagraph && room > 0:
            case ParagraphAlign.Distributed when room > 0:
                stretch = room / Math.Max(1, line.InnerSpaces);
                break;
        }

        int last = line.LastVisible;
        for (int i = 0; i <= last; i++)
        {
            LinePiece piece = line.Pieces[i];
            double extra = piece.Token.Kind == MTextTokenKind.Space ? stretch : 0;
            MTextPlacer.Place(this, _engine, piece, x, baseline, piece.Width + extra, line.Height);
            x += piece.Width + extra;
        }
    }

    private ParagraphAlign DefaultAlign() => ((Math.Clamp(_frame.Attachment, 1, 9) - 1) % 3) switch
    {
        1 => ParagraphAlign.Center,
        2 => ParagraphAlign.Right,
        _ => ParagraphAlign.Left,
    };

    private int Font(in MTextToken token) => _engine.Font(token.Format.Font);

    private double Em(in MTextToken token) => token.Format.Height / _engine.CapRatio(Font(token));

    private double Spacing(in MTextToken token) => MTextPlacer.LetterSpacing(token.Format);

    private sealed class Line
    {
        internal List<LinePiece> Pieces { get; } = [];

        internal ParagraphFormat Paragraph { get; set; } = ParagraphFormat.Default;

        internal bool IsFirst { get; set; }

        internal bool EndsParagraph { get; set; }

        internal bool EndsColumn { get; set; }

        internal double Width { get; private set; }

        internal double Height { get; set; }

        internal double Rise { get; set; }

        internal double X { get; set; }

        internal double Y { get; set; }

        internal double Indent => Math.Max(0, Paragraph.Left + (IsFirst ? Paragraph.First : 0));

        internal int LastVisible => Pieces.FindLastIndex(p => p.Token.Kind is not MTextTokenKind.Space);

        internal double VisibleWidth
        {
            get
            {
                double width = Width;
                for (int i = Pieces.Count - 1; i > LastVisible; i--)
                {
                    width -= Pieces[i].Width;
                }

                return width;
            }
        }

        internal int InnerSpaces =>
            Pieces.FindAll(p => p.Token.Kind == MTextTokenKind.Space).Count - (Pieces.Count - 1 - LastVisible);

        internal void Add(LinePiece piece)
        {
            Pieces.Add(piece);
            Width += piece.Width;
        }

        internal void NoteHeight(double value, bool onlyIfEmpty)
        {
            if (!onlyIfEmpty || Height == 0)
            {
                Height = Math.Max(Height, value);
            }
        }
    }
}

internal readonly record struct LinePiece(MTextToken Token, double Width, double UpperWidth, double LowerWidth);
