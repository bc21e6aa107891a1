using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Pdf;

/// <content>Symbols: as forms where that takes less, else as the items that they hold.</content>
internal sealed partial class PdfPainter
{
    /// <summary>About what a coordinate, a placed form and the object of a form take in a file, in bytes.</summary>
    private const int CoordinateBytes = 2;
    private const int PlacementBytes = 24;
    private const int FormBytes = 350;

    /// <summary>How near to a right angle a rotation is one.</summary>
    private const double RightAngle = 1e-9;

    private readonly Dictionary<int, PdfForm?> _forms = [];
    private readonly bool _isForm;
    private Bounds2 _covered = Bounds2.Empty;

    /// <summary>Creates a painter of a form for the page of another.</summary>
    private PdfPainter(PdfPainter page, DrawingList list, in Affine2 map)
        : base(list)
    {
        (_document, _engine, _page, _unit, _settings) =
            (page._document, page._engine, page._page, page._unit, page._settings);
        (_decimals, _precision, _farthest) = (page._decimals, page._precision, page._farthest);
        (_map, _scale) = (map, page._scale);
        (_out, _resources, _isForm) = (new PdfBuffer(), new PdfResources(), true);
        _state.Clip = Bounds2.Of(
            double.NegativeInfinity, double.NegativeInfinity, double.PositiveInfinity, double.PositiveInfinity);
    }

    /// <summary>Writes the forms that the page paints.</summary>
    internal void WriteForms(PdfFile file)
    {
        foreach (PdfForm? form in _forms.Values)
        {
            if (form?.Number > 0)
            {
                form.Write(file);
            }
        }
    }

    protected override void PlaySymbol(in DisplayItem item)
    {
        Placement place = List.PlacementOf(item);
        DrawingList definitions = List.Definitions;
        Symbol symbol = definitions.Symbols[place.Symbol];
        if (!_forms.TryGetValue(place.Symbol, out PdfForm? form))
        {
            form = IsSmallerAsForm(place.Symbol, symbol) ? FormOf(definitions, symbol) : null;
            _forms.Add(place.Symbol, form);
        }

        if (form is null)
        {
            Expand(definitions, symbol, place.Map);
            return;
        }

        Affine2 map = Straight(_map * place.Map * form.ToSymbol);
        if (Math.Max(Math.Abs(map.X0), Math.Abs(map.Y0)) > FarAway)
        {
            Expand(definitions, symbol, place.Map);
            return;
        }

        Bounds2 box = Bounds2.Empty;
        for (int corner = 0; corner < 4; corner++)
        {
            Vec2 p = map.Point(
                (corner & 1) == 0 ? form.Box.MinX : form.Box.MaxX, corner < 2 ? form.Box.MinY : form.Box.MaxY);
            box.Add(p.X, p.Y);
        }

        if (box.Intersects(_state.Clip))
        {
            Show(form, map);
        }
    }

    private void Show(PdfForm form, in Affine2 map)
    {
        SetLayer(-1);
        EndObject();
        SetAlpha(byte.MaxValue);
        form.Number = form.Number > 0 ? form.Number : _document.NewObject();
        _resources.Use(PdfResources.Image, form.Number);
        _out.Raw("q "u8).Real(map.Xx).Raw((byte)' ').Real(map.Yx).Raw((byte)' ').Real(map.Xy).Raw((byte)' ')
            .Real(map.Yy).Raw((byte)' ');
        _out.Fixed((long)Math.Round(map.X0 * _precision * 10), _decimals + 1).Raw((byte)' ')
            .Fixed((long)Math.Round(map.Y0 * _precision * 10), _decimals + 1).Raw(" cm/X"u8).Int(form.Number)
            .Raw(" Do Q\n"u8);
    }

    /// <summary>Whether a form takes less than its content at each place. A list that is drawn in parts was made
    /// before, and knows how often.</summary>
    private bool IsSmallerAsForm(int index, Symbol symbol)
    {
        IReadOnlyList<Symbol> counted = _page.List.Definitions.Symbols;
        long uses = index < counted.Count ? counted[index].Uses : 0;
        return (uses - 1) * symbol.Weight * CoordinateBytes > FormBytes + (uses * PlacementBytes);
    }

    /// <summary>Paints the items of a symbol around its centre; null where they reach too far to be placed.</summary>
    private PdfForm? FormOf(DrawingList definitions, Symbol symbol)
    {
        Bounds2 box = Bounds2.Empty;
        Array.ForEach(symbol.Corners, corner => box.Add(corner.X, corner.Y));
        Vec2 center = box.Center;
        Affine2 toForm = (_map with { X0 = 0, Y0 = 0 }) * new Affine2(1, 0, 0, 1, -center.X, -center.Y);
        var painter = new PdfPainter(this, definitions, toForm);
        painter._out.Raw("0 g 0 G 0 J 0 j 10 M []0 d 0 Tr\n"u8);
        painter.PlayItems(definitions, definitions.ItemsOf(symbol));
        painter.EndList();
        Bounds2 covered = painter._covered;
        double reach = Math.Max(
            Math.Max(-covered.MinX, covered.MaxX), Math.Max(-covered.MinY, covered.MaxY));
        return reach < FarAway / 4 && toForm.TryInvert(out Affine2 toSymbol)
            ? new PdfForm(painter._out, painter._resources, toSymbol, covered)
            : null;
    }

    /// <summary>Draws the items of a symbol where it is placed.</summary>
    private void Expand(DrawingList definitions, Symbol symbol, in Affine2 place)
    {
        Affine2 map = _map;
        _map *= place;
        PlayItems(definitions, definitions.ItemsOf(symbol));
        _map = map;
    }

    /// <summary>Notes what the content of a form covers.</summary>
    private void Cover(in Bounds2 box, double margin)
    {
        if (_isForm && box.IsFinite && !box.IsEmpty)
        {
            _covered.Add(box.MinX - margin, box.MinY - margin);
            _covered.Add(box.MaxX + margin, box.MaxY + margin);
        }
    }

    /// <summary>A map without what rounding adds to a rotation by right angles.</summary>
    private static Affine2 Straight(in Affine2 map)
    {
        double Near(double value) => Math.Abs(value - Math.Round(value)) < RightAngle ? Math.Round(value) : value;
        return map with { Xx = Near(map.Xx), Yx = Near(map.Yx), Xy = Near(map.Xy), Yy = Near(map.Yy) };
    }
}
