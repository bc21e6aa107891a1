using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Text;

/// <summary>
/// Places multi-line text whose characters are below each other: columns from right to left, as scripts have them that
/// are written so. The origin is the attachment point, y up.
/// </summary>
internal sealed class VerticalTextLayout
{
    /// <summary>The distance of characters below each other, in heights of capitals.</summary>
    internal const double Step = 1.5;

    private const double ColumnDistance = 5.0 / 3.0;

    private readonly TextEngine _engine;
    private readonly double _height;
    private readonly double _longest;
    private readonly List<List<Cell>> _columns = [[]];
    private readonly List<PlacedRun> _runs = [];
    private double _filled;

    private VerticalTextLayout(TextEngine engine, double height, double longest)
    {
        (_engine, _height, _longest) = (engine, height, longest);
    }

    internal IReadOnlyList<PlacedRun> Runs => _runs;

    /// <summary>Gets the box of the text around the attachment point.</summary>
    internal Bounds2 Box { get; private set; }

    /// <summary>Places a text.</summary>
    /// <param name="engine">What measures characters.</param>
    /// <param name="tokens">The text.</param>
    /// <param name="frame">The attachment and the spacing of columns; the width is the length of columns, 0 for
    /// any.</param>
    /// <param name="height">The height of capitals.</param>
    internal static VerticalTextLayout Create(
        TextEngine engine, IEnumerable<MTextToken> tokens, in MTextFrame frame, double height)
    {
        var layout = new VerticalTextLayout(engine, height, frame.Width);
        foreach (MTextToken token in tokens)
        {
            layout.Add(token);
        }

        layout.Place(frame);
        return layout;
    }

    private void Add(in MTextToken token)
    {
        switch (token.Kind)
        {
            case MTextTokenKind.Paragraph or MTextTokenKind.Column:
                NewColumn();
                return;
            case MTextTokenKind.Space or MTextTokenKind.Tab:
                _filled += token.Format.Height * Step;
                return;
        }

        string text = token.Kind == MTextTokenKind.Stack ? $"{token.Text}/{token.Lower}" : token.Text;
        for (TextElementEnumerator all = StringInfo.GetTextElementEnumerator(text); all.MoveNext();)
        {
            double step = token.Format.Height * Step;
            if (_longest > 0 && _columns[^1].Count > 0 && _filled + token.Format.Height > _longest)
            {
                NewColumn();
            }

            _columns[^1].Add(new Cell(all.GetTextElement(), token.Format, _filled));
            _filled += step;
        }
    }

    private void NewColumn()
    {
        _columns.Add([]);
        _filled = 0;
    }

    private void Place(in MTextFrame frame)
    {
        double distance = ColumnDistance * frame.LineSpacing * _height;
        double width = ((_columns.Count - 1) * distance) + _height;
        double length = 0;
        foreach (List<Cell> column in _columns)
        {
            length = column.Count > 0 ? Math.Max(length, column[^1].Top + column[^1].Format.Height) : length;
        }

        int attachment = Math.Clamp(frame.Attachment, 1, 9) - 1;
        double right = width * (2 - (attachment % 3)) / 2;
        double top = length * (attachment / 3) / 2;
        Box = Bounds2.Of(right - width, top - length, right, top);
        for (int i = 0; i < _columns.Count; i++)
        {
            double center = right - (_height / 2) - (i * distance);
            foreach (Cell cell in _columns[i])
            {
                _runs.Add(RunOf(cell, center, top - cell.Top - cell.Format.Height));
            }
        }
    }

    private PlacedRun RunOf(in Cell cell, double center, double y)
    {
        MTextFormat format = cell.Format;
        int font = _engine.Font(format.Font);
        double em = format.Height / _engine.CapRatio(font);
        double width = _engine.Advance(font, cell.Character) * em * format.WidthFactor;
        double slant = Math.Tan(format.ObliqueDegrees * Math.PI / 180);
        return new PlacedRun(
            cell.Character, font, center - (width / 2), y, em, format.WidthFactor, slant, 0, format.Color, width);
    }

    private readonly record struct Cell(string Character, MTextFormat Format, double Top);
}
