using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Pdf;

/// <content>Text as text: glyphs of embedded fonts by their numbers, with what they mean to search and copy.</content>
internal sealed partial class PdfPainter
{
    /// <summary>The area of an em, in points, of text that nobody can see.</summary>
    private const double SmallestText = 1e-6;

    /// <summary>The share of an em by which outlines that are made bolder grow (FT_GlyphSlot_Embolden).</summary>
    private const double BolderShare = 1 / 24.0;

    /// <summary>Glyphs are moved where they would be off by more, in ems.</summary>
    private const double SmallestShift = 0.0015;
    private const double MaxShift = 30;
    private const int MaxElements = 2000;
    private const double TextReach = 1.5;

    private readonly PathBuffer _outline = new();
    private bool _inText;

    protected override void PlayText(in DisplayItem item)
    {
        TextRun run = List.TextOf(item);
        Affine2 map = _map * run.Matrix;
        if (!(Math.Abs(map.Determinant) > SmallestText) || !double.IsFinite(map.X0 + map.Y0))
        {
            return;
        }

        ShapedLine line = _engine.Line(run);
        if (!IsTextVisible(map, line.Advance))
        {
            return;
        }

        SetLayer(item.Layer);
        foreach (ShapedRun part in line.Runs)
        {
            if (part.HasGlyphs && _document.Fonts.Of(part.Font) is null)
            {
                if (!run.IsHidden)
                {
                    PdfFonts.NoteOutlines(part.Font, _page.Notes);
                    Outline(run, map, item.Color);
                }

                return;
            }
        }

        EndPath();
        foreach (ShapedRun part in line.Runs)
        {
            if (part.HasGlyphs)
            {
                Show(part, _document.Fonts.Of(part.Font)!, line.Text, map, run.IsHidden ? null : item.Color);
            }
        }

        if (line.UnknownGlyphs > 0 && !run.IsHidden)
        {
            Boxes(line, map, item.Color);
        }
    }

    private bool IsTextVisible(in Affine2 map, double advance)
    {
        Bounds2 box = Bounds2.Empty;
        for (int corner = 0; corner < 4; corner++)
        {
            double x = (corner & 1) == 0 ? -TextReach : advance + TextReach;
            Vec2 p = map.Point(x, corner < 2 ? -TextReach : TextReach);
            box.Add(p.X, p.Y);
        }

        Cover(box, 0);
        return box.IsFinite && box.Intersects(_state.Clip);
    }

    /// <summary>Fills the outlines of a run whose fonts cannot be embedded.</summary>
    private void Outline(in TextRun run, in Affine2 map, Rgba color)
    {
        _outline.Clear();
        _engine.AddOutline(run, map, _outline);
        if (Map(_outline.Verbs, _outline.Coords, Affine2.Identity))
        {
            EndObject();
            SetFill(color);
            PaintFill(evenOdd: false);
        }
    }

    /// <summary>Shows glyphs; without a colour, they are there to be searched and copied alone.</summary>
    private void Show(ShapedRun run, PdfFont font, string text, in Affine2 map, Rgba? color)
    {
        Affine2 shape = map * run.Font.Matrix;
        double size = Math.Sqrt((shape.Xy * shape.Xy) + (shape.Yy * shape.Yy));
        if (!(size > 0))
        {
            return;
        }

        BeginText();
        if (color is { } visible)
        {
            SetFill(visible);
        }

        SetFont(font, size);
        SetMode(run.Font.IsEmboldened, color, size);
        var shown = new TextShow(this, font, text, map, shape, size, run.Font.IsEmboldened ? BolderShare / 2 : 0);
        foreach (ref readonly ShapedGlyph glyph in run.Glyphs.AsSpan())
        {
            if (!glyph.IsUnknown)
            {
                shown.Add(glyph);
            }
        }

        shown.End();
    }

    private void SetFont(PdfFont font, double size)
    {
        if (font.Number == _state.Font && size == _state.FontSize)
        {
            return;
        }

        _resources.Use(PdfResources.Font, font.Number);
        _out.Raw("/F"u8).Int(font.Number).Raw((byte)' ').Real(size).Raw(" Tf\n"u8);
        (_state.Font, _state.FontSize) = (font.Number, size);
    }

    /// <summary>Outlines that are made bolder are filled, and stroked with a round pen.</summary>
    private void SetMode(bool bolder, Rgba? color, double size)
    {
        const int filled = 0, filledAndStroked = 2, invisible = 3;
        int mode = color is null ? invisible : bolder ? filledAndStroked : filled;
        if (mode != _state.TextMode)
        {
            _out.Int(mode).Raw(" Tr\n"u8);
            _state.TextMode = mode;
        }

        if (bolder && color is { } visible)
        {
            SetStrokeColor(_document.Flatten(visible, _settings, _page.Notes));
            SetWidth(size * BolderShare);
            if (_state.Dash >= 0)
            {
                _out.Raw("[]0 d\n"u8);
                _state.Dash = -1;
            }
        }
    }

    private void BeginText()
    {
        if (!_inText)
        {
            _out.Raw("BT\n"u8);
            _inText = true;
        }
    }

    private void EndText()
    {
        if (_inText)
        {
            _out.Raw("ET\n"u8);
            _inText = false;
        }
    }

    /// <summary>Draws a box for each character that no font has.</summary>
    private void Boxes(ShapedLine line, in Affine2 map, Rgba color)
    {
        EndText();
        foreach (ShapedRun run in line.Runs)
        {
            foreach (ShapedGlyph glyph in run.Glyphs)
            {
                if (glyph.IsUnknown)
                {
                    Box(glyph, map, color);
                }
            }
        }
    }

    private void Box(in ShapedGlyph glyph, in Affine2 map, Rgba color)
    {
        const double height = 0.7, inset = 0.08, pen = 0.04;
        _outline.Clear();
        for (int corner = 0; corner < 4; corner++)
        {
            double x = glyph.X + (corner is 0 or 3 ? inset * glyph.Advance : (1 - inset) * glyph.Advance);
            _outline.LineTo(map.Point(x, glyph.Y + (corner < 2 ? 0 : height)));
        }

        _outline.Close();
        if (Map(_outline.Verbs, _outline.Coords, Affine2.Identity))
        {
            EndPath();
            var plain = new DisplayItem { Dash = -1, Color = color };
            SetStroke(_document.Flatten(color, _settings, _page.Notes), pen * Math.Sqrt(Math.Abs(map.Determinant)),
                new StrokeStyle(LineCaps.Butt, LineJoins.Miter), plain);
            _pendingStroke |= WritePath(isStroke: true);
        }
    }

    /// <summary>Shows glyphs of one font. Those that follow at their own advance make one string.</summary>
    private ref struct TextShow
    {
        private readonly PdfPainter _painter;
        private readonly PdfBuffer _out;
        private readonly PdfFont _font;
        private readonly string _text;
        private readonly Affine2 _map;
        private readonly Affine2 _shape;
        private readonly double _size;
        private readonly double _shift;
        private readonly bool _isAligned;
        private double _pen;
        private double _baseline;
        private bool _isOpen;
        private bool _inString;
        private bool _inSpan;
        private int _elements;

        internal TextShow(PdfPainter painter, PdfFont font, string text, in Affine2 map, in Affine2 shape, double size,
            double shift)
        {
            (_painter, _out, _font, _text) = (painter, painter._out, font, text);
            (_map, _shape, _size, _shift) = (map, shape, size, shift);

            // Where the outlines of the font are mapped along the baseline too, advances are not those of the font.
            _isAligned = Math.Abs(shape.Xx - map.Xx) + Math.Abs(shape.Yx - map.Yx) <= 1e-9 * size;
        }

        internal void Add(in ShapedGlyph glyph)
        {
            uint number = _font.Known(glyph.Glyph);
            if (glyph.TextLength > 0)
            {
                EndSpan();
                if (!_font.Use(number, _text.AsSpan(glyph.TextStart, glyph.TextLength), glyph.IsAlone))
                {
                    Close();
                    _out.Raw("/Span<</ActualText"u8).HexText(_text.Substring(glyph.TextStart, glyph.TextLength))
                        .Raw(">>BDC\n"u8);
                    _inSpan = true;
                }
            }
            else
            {
                _font.Use(number);
            }

            Place(glyph);
            Put(number);
            _pen += _font.Advance(number);
        }

        internal void End()
        {
            EndSpan();
            Close();
        }

        /// <summary>Ends the glyphs that stand for one cluster of characters.</summary>
        private void EndSpan()
        {
            if (_inSpan)
            {
                Close();
                _out.Raw("EMC\n"u8);
                _inSpan = false;
            }
        }

        private void Place(in ShapedGlyph glyph)
        {
            double shift = glyph.X - _pen;
            if (!_isOpen || glyph.Y != _baseline || !_isAligned || Math.Abs(shift) > MaxShift)
            {
                Move(glyph);
            }
            else if (Math.Abs(shift) > SmallestShift)
            {
                CloseString();
                double thousandths = Math.Round(shift * 1000);
                _out.Int(-(long)thousandths);
                _pen += thousandths / 1000;
                _elements++;
            }
        }

        private void Put(uint glyph)
        {
            if (!_isOpen || _elements > MaxElements)
            {
                Close();
                _out.Raw((byte)'[');
                (_isOpen, _elements) = (true, 0);
            }

            if (!_inString)
            {
                _out.Raw((byte)'<');
                _inString = true;
                _elements++;
            }

            _out.Hex((byte)(glyph >> 8)).Hex((byte)glyph);
        }

        private void Move(in ShapedGlyph glyph)
        {
            Close();
            Vec2 origin = _map.Point(glyph.X + _shift, glyph.Y + _shift);
            _out.Real(_shape.Xx / _size).Raw((byte)' ').Real(_shape.Yx / _size).Raw((byte)' ')
                .Real(_shape.Xy / _size).Raw((byte)' ').Real(_shape.Yy / _size).Raw((byte)' ');
            _painter.Point((long)Math.Round(origin.X * _painter._precision),
                (long)Math.Round(origin.Y * _painter._precision)).Raw("Tm\n["u8);
            (_isOpen, _elements) = (true, 0);
            (_pen, _baseline) = (glyph.X, glyph.Y);
        }

        private void CloseString()
        {
            _ = _inString ? _out.Raw((byte)'>') : _out;
            _inString = false;
        }

        private void Close()
        {
            CloseString();
            _ = _isOpen ? _out.Raw("]TJ\n"u8) : _out;
            _isOpen = false;
        }
    }
}
