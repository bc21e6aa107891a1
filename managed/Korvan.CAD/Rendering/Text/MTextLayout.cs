using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Text;

/// <summary>What the layout of multi-line text starts from.</summary>
internal readonly record struct MTextFrame(
    double Width,
    int Attachment,
    double LineSpacing,
    bool ExactSpacing,
    TextColumnFrame? Columns = null);

/// <summary>The columns of multi-line text: how many there may be, their width and gap, and the height of each one, of
/// which the last one serves for those after it; 0 takes all lines.</summary>
internal sealed record TextColumnFrame(int Count, double Width, double Gutter, IReadOnlyList<double> Heights)
{
    /// <summary>Returns the height of a column; 0 if it is the last one or has no limit.</summary>
    internal double HeightOf(int column) =>
        column + 1 < Count && Heights.Count > 0 ? Heights[Math.Min(column, Heights.Count - 1)] : 0;
}

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
    private readonly List<PlacedRun> _runs = [];
    private readonly List<PlacedBar> _bars = [];
    private readonly List<LinePiece> _pieces = [];
    private readonly List<LinePiece> _group = [];
    private Line _line = new() { IsFirst = true };
    private ParagraphFormat _groupParagraph = ParagraphFormat.Default;
    private double _widest;
    private Vec2 _anchor;

    private MTextLayout(TextEngine engine, in MTextFrame frame, double height)
    {
        _engine = engine;
        _frame = frame;
        _height = height;
    }

    /// <summary>Gets the runs, which are placed as they are asked for.</summary>
    internal IEnumerable<PlacedRun> Runs => Placed(_runs);

    /// <summary>Gets the bars of decorations and fractions, which are placed as they are asked for.</summary>
    internal IEnumerable<PlacedBar> Bars => Placed(_bars);

    /// <summary>The box of the text around the attachment point.</summary>
    internal (double Left, double Bottom, double Right, double Top) Box { get; private set; }

    private double WrapWidth => _frame.Columns is { Count: > 1 } columns ? columns.Width : _frame.Width;

    internal static MTextLayout Create(
        TextEngine engine, IEnumerable<MTextToken> tokens, in MTextFrame frame, double height)
    {
        var layout = new MTextLayout(engine, frame, height);
        layout.BreakLines(tokens);
        layout.Place();
        return layout;
    }

    private void BreakLines(IEnumerable<MTextToken> tokens)
    {
        foreach (MTextToken token in tokens)
        {
            if (token.Kind is MTextTokenKind.Word or MTextTokenKind.Stack)
            {
                _groupParagraph = _group.Count == 0 ? token.Paragraph : _groupParagraph;
                _group.Add(Measure(token));
                continue;
            }

            AddGroup();
            if (_line.Count == 0)
            {
                _line.Paragraph = token.Paragraph;
            }

            switch (token.Kind)
            {
                case MTextTokenKind.Paragraph or MTextTokenKind.Column:
                    _line.EndsParagraph = true;
                    _line.EndsColumn = token.Kind == MTextTokenKind.Column;
                    _line.NoteHeight(token.Format.Height, onlyIfEmpty: true);
                    _lines.Add(_line);
                    _line = new Line { First = _pieces.Count, IsFirst = true, Paragraph = token.Paragraph };
                    break;
                case MTextTokenKind.Space:
                    double space = _engine.Advance(Font(token.Format), " ", Spacing(token.Format)) * Em(token.Format);
                    Add(new LinePiece(token, space * token.Format.WidthFactor));
                    break;
                default:
                    Add(new LinePiece(token, TabWidth(_line)));
                    break;
            }
        }

        AddGroup();
        _line.EndsParagraph = true;
        _lines.Add(_line);
    }

    /// <summary>Takes words that touch each other as one, and starts a new line when they do not fit.</summary>
    private void AddGroup()
    {
        if (_group.Count == 0)
        {
            return;
        }

        double width = 0;
        foreach (LinePiece piece in _group)
        {
            width += piece.Width;
        }

        if (_line.Count == 0)
        {
            _line.Paragraph = _groupParagraph;
        }

        double limit = WrapWidth - _line.Paragraph.Right;
        if (WrapWidth > 0 && _line.HasText && _line.Indent + _line.Width + width > limit * (1 + 1e-9))
        {
            _lines.Add(_line);
            _line = new Line { First = _pieces.Count, Paragraph = _groupParagraph };
        }

        // A single word wider than the column is left whole: the text box lets it stick out.
        foreach (LinePiece piece in _group)
        {
            Add(piece);
            _line.HasText = true;
            _line.NoteHeight(piece.Format.Height, onlyIfEmpty: false);
            _line.Rise = Math.Max(_line.Rise, Rise(piece));
        }

        _group.Clear();
    }

    private void Add(in LinePiece piece)
    {
        _pieces.Add(piece);
        _line.Count++;
        _line.Width += piece.Width;
    }

    /// <summary>Finds where the spaces at the end of a line begin.</summary>
    private void Finish(Line line)
    {
        line.VisibleWidth = line.Width;
        int last = line.First + line.Count - 1;
        for (; last >= line.First && _pieces[last].Kind == MTextTokenKind.Space; last--)
        {
            line.VisibleWidth -= _pieces[last].Width;
        }

        line.LastVisible = last;
        for (int i = line.First; i < last; i++)
        {
            line.InnerSpaces += _pieces[i].Kind == MTextTokenKind.Space ? 1 : 0;
        }
    }

    /// <summary>How far a stack reaches above the baseline; capitals reach no further than their own height.</summary>
    private static double Rise(in LinePiece piece)
    {
        if (piece.Kind != MTextTokenKind.Stack || piece.Divider == '#')
        {
            return 0;
        }

        return piece.Format.Height * (piece.Format.Align == StackAlign.Baseline ? 2.5 : 1.75);
    }

    private LinePiece Measure(in MTextToken token)
    {
        double upper = MTextPlacer.WidthOf(_engine, token.Text, token.Format);
        if (token.Kind == MTextTokenKind.Word)
        {
            return new LinePiece(token, upper);
        }

        double lower = MTextPlacer.WidthOf(_engine, token.Lower, token.Format);
        double gap = token.Format.Height * 0.2;
        return new LinePiece(token, token.Divider == '#' ? upper + lower + gap : Math.Max(upper, lower) + gap);
    }

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
        bool top = true;
        int columns = 1;
        double gutter = _frame.Columns?.Gutter ?? 0;
        _widest = WrapWidth;
        foreach (Line line in _lines)
        {
            Finish(line);
            _widest = Math.Max(_widest, line.Indent + line.VisibleWidth);
        }

        SetOrder();

        foreach (Line line in _lines)
        {
            double tallest = line.Height > 0 ? line.Height : _height;
            double distance = _frame.ExactSpacing ? _height : Math.Max(tallest, line.Rise * StackShare);
            double advance = BaselineDistance * _frame.LineSpacing * distance;
            double height = _frame.Columns?.HeightOf(columns - 1) ?? 0;
            bool columnFull = height > 0 && -(baseline - advance) > height;
            if (!top && columnFull)
            {
                (top, column, columns) = (true, column + _widest + gutter, columns + 1);
            }

            double first = _frame.ExactSpacing ? tallest : Math.Max(tallest, line.Rise);
            baseline = top ? -first : baseline - advance;
            line.X = column;
            line.Y = baseline;
            top = false;
            lowest = Math.Min(lowest, baseline);
            if (line.EndsColumn)
            {
                (top, column, columns) = (true, column + _widest + gutter, columns + 1);
            }
        }

        double total = column + _widest;
        int attachment = Math.Clamp(_frame.Attachment, 1, 9) - 1;
        _anchor = new Vec2(-total * (attachment % 3) / 2, -lowest * (attachment / 3) / 2);
        Box = (_anchor.X, lowest + _anchor.Y, _anchor.X + total, _anchor.Y);
    }

    /// <summary>Finds the order of the pieces in lines with scripts that run from right to left.</summary>
    private void SetOrder()
    {
        bool isRightToLeft = false;
        for (int i = 0; i < _lines.Count; i++)
        {
            if (i == 0 || _lines[i - 1].EndsParagraph)
            {
                int last = _lines.FindIndex(i, static line => line.EndsParagraph);
                int end = _lines[last].First + _lines[last].Count;
                isRightToLeft = VisualOrder.IsRightToLeft(_pieces, _lines[i].First, end - _lines[i].First);
            }

            Line line = _lines[i];
            line.Order = VisualOrder.Of(_pieces, line.First, line.LastVisible - line.First + 1, isRightToLeft);
        }
    }

    /// <summary>Places the pieces one by one: only one of the lists is of interest.</summary>
    private IEnumerable<T> Placed<T>(List<T> made)
    {
        foreach (Line line in _lines)
        {
            (double x, double stretch) = Start(line);
            for (int i = line.First; i <= line.LastVisible; i++)
            {
                LinePiece piece = _pieces[line.Order?[i - line.First] ?? i];
                double width = piece.Width + (piece.Kind == MTextTokenKind.Space ? stretch : 0);
                _runs.Clear();
                _bars.Clear();
                MTextPlacer.Place(_runs, _bars, _engine, piece, x, line.Y + _anchor.Y, width, line.Height);
                x += width;
                for (int k = 0; k < made.Count; k++)
                {
                    yield return made[k];
                }
            }
        }
    }

    /// <summary>Where a line begins, and what each of its spaces is wider.</summary>
    private (double X, double Stretch) Start(Line line)
    {
        double room = _widest - line.Indent - line.Paragraph.Right - line.VisibleWidth;
        ParagraphAlign align = line.Paragraph.Align == ParagraphAlign.Default ? DefaultAlign() : line.Paragraph.Align;
        double x = line.X + _anchor.X + line.Indent;
        switch (align)
        {
            case ParagraphAlign.Center:
                return (x + (room / 2), 0);
            case ParagraphAlign.Right:
                return (x + room, 0);
            case ParagraphAlign.Justified when !line.EndsParagraph && room > 0:
            case ParagraphAlign.Distributed when room > 0:
                return (x, room / Math.Max(1, line.InnerSpaces));
            default:
                return (x, 0);
        }
    }

    private ParagraphAlign DefaultAlign() => ((Math.Clamp(_frame.Attachment, 1, 9) - 1) % 3) switch
    {
        1 => ParagraphAlign.Center,
        2 => ParagraphAlign.Right,
        _ => ParagraphAlign.Left,
    };

    private int Font(MTextFormat format) => _engine.Font(format.Font);

    private double Em(MTextFormat format) => format.Height / _engine.CapRatio(Font(format));

    private static double Spacing(MTextFormat format) => MTextPlacer.LetterSpacing(format);

    private sealed class Line
    {
        /// <summary>Gets the index of the first piece.</summary>
        internal int First { get; init; }

        internal int Count { get; set; }

        internal ParagraphFormat Paragraph { get; set; } = ParagraphFormat.Default;

        internal bool IsFirst { get; set; }

        internal bool EndsParagraph { get; set; }

        internal bool EndsColumn { get; set; }

        internal double Width { get; set; }

        internal double Height { get; set; }

        internal double Rise { get; set; }

        internal double X { get; set; }

        internal double Y { get; set; }

        internal double Indent => Math.Max(0, Paragraph.Left + (IsFirst ? Paragraph.First : 0));

        /// <summary>Gets or sets whether the line has more than spaces and tabs.</summary>
        internal bool HasText { get; set; }

        /// <summary>Gets or sets the indices of the pieces from left to right; null where they are in order.</summary>
        internal int[]? Order { get; set; }

        /// <summary>Gets the last piece that is no space.</summary>
        internal int LastVisible { get; set; } = -1;

        internal double VisibleWidth { get; set; }

        /// <summary>Gets the number of spaces before the last piece that is none.</summary>
        internal int InnerSpaces { get; set; }

        internal void NoteHeight(double value, bool onlyIfEmpty)
        {
            if (!onlyIfEmpty || Height == 0)
            {
                Height = Math.Max(Height, value);
            }
        }
    }
}

/// <summary>A token with its width; there are as many as a text has words and spaces, so it is kept small.</summary>
internal readonly struct LinePiece(in MTextToken token, double width)
{
    internal MTextTokenKind Kind { get; } = token.Kind;

    internal char Divider { get; } = token.Divider;

    internal string Text { get; } = token.Text;

    internal string Lower { get; } = token.Lower;

    internal MTextFormat Format { get; } = token.Format;

    internal double Width { get; } = width;
}
