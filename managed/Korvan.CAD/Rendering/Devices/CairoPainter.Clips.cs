using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Raster.Pixels;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Devices;

/// <content>Clips: by cairo, and those of many edges by masks.</content>
internal sealed unsafe partial class CairoPainter
{
    private ClipMask? _lastMask;

    /// <summary>Frees the pixels under masks that have not ended, as a page was refused.</summary>
    public void Dispose()
    {
        _clip.Mask?.Before.Dispose();
        while (_clips.TryPop(out ClipArea clip))
        {
            clip.Mask?.Before.Dispose();
        }

        _clip = default;
    }

    protected override void BeginClip(in DisplayItem item)
    {
        UseCairo();
        _clips.Push(_clip);
        Cairo.Save(_cr);
        Bounds2 box = BoxOf(item, out bool isBox);
        if (!isBox && item.VerbCount >= ClipMask.MinVerbs)
        {
            BeginMask(item);
            return;
        }

        int steps = isBox ? 0 : item.VerbCount / FillEdgesPerStep;
        _clip = new ClipArea(box.Clip(_clip.Box), _clip.IsBox && isBox, _clip.Steps + steps);
        Trace(item);
        Cairo.SetFillRule(_cr, item.EvenOdd ? CairoFillRule.EvenOdd : CairoFillRule.Winding);
        Cairo.Clip(_cr);
    }

    protected override void EndClip()
    {
        ClipArea ended = _clip;
        UseCairo();
        Cairo.Restore(_cr);
        ForgetState();
        _clip = _clips.Pop();
        if (ended.Mask is not null)
        {
            EndMask(ended.Mask);
        }
    }

    /// <summary>Keeps the pixels of the box around a path, and lets everything in the box be drawn.</summary>
    private void BeginMask(in DisplayItem item)
    {
        PixelBox box = PixelBox.Around(AroundPath(item).Clip(_clip.Box).Clip(
            Bounds2.Of(0, _rows.First, _target.ThinLines.Width, _rows.End)));
        Bounds2 bounds = Bounds2.Of(box.Left, box.Top, box.Right, box.Bottom);
        Cairo.Rectangle(_cr, box.Left, box.Top, box.Width, box.Height);
        Cairo.Clip(_cr);
        MaskedPixels? mask = null;
        if (!box.IsEmpty)
        {
            UsePixels();
            mask = new MaskedPixels(MaskOf(item, box), new PixelBlock(box.Area));
            for (int row = 0; row < box.Height; row++)
            {
                RowOf(mask, row).CopyTo(BeforeOf(mask, row));
            }
        }

        _clip = new ClipArea(bounds, _clip.IsBox, _clip.Steps, mask);
    }

    private void EndMask(MaskedPixels masked)
    {
        using PixelBlock before = masked.Before;
        UsePixels();
        PixelBox box = masked.Mask.Box;
        Budget.Step(1 + (box.Area / ClipMask.PixelsPerStep));
        for (int row = 0; row < box.Height; row++)
        {
            masked.Mask.Restore(row, RowOf(masked, row), BeforeOf(masked, row));
        }
    }

    private Span<int> RowOf(MaskedPixels masked, int row) =>
        _target.ThinLines.Row(masked.Mask.Box.Top + row).Slice(masked.Mask.Box.Left, masked.Mask.Box.Width);

    private static Span<int> BeforeOf(MaskedPixels masked, int row) =>
        new(masked.Before.Data + ((long)row * masked.Mask.Box.Width), masked.Mask.Box.Width);

    /// <summary>The mask of a path; an external drawing or a block is often placed again with its clip.</summary>
    private ClipMask MaskOf(in DisplayItem item, PixelBox box)
    {
        ReadOnlySpan<PathVerb> verbs = List.VerbsOf(item);
        ReadOnlySpan<double> coords = List.CoordsOf(item)[..CoordCount(item)];
        if (_lastMask?.IsOf(box, verbs, coords, item.EvenOdd) == true)
        {
            return _lastMask;
        }

        double edges = EdgesOf(item, out double rows);
        int subRows = SubRowsOf(edges, rows);
        CountDense(edges, rows, subRows, box.Width);
        _lastMask = ClipMask.Of(
            box, verbs, coords, _map, item.EvenOdd, DefaultTolerance * _settings.Coarseness, subRows,
            _settings.Sharp);
        return _lastMask;
    }

    private Bounds2 AroundPath(in DisplayItem item)
    {
        Bounds2 box = Bounds2.Empty;
        ReadOnlySpan<double> c = List.CoordsOf(item);
        int count = CoordCount(item);
        for (int at = 0; at < count; at += 2)
        {
            Vec2 point = _map.Point(c[at], c[at + 1]);
            box.Add(point.X, point.Y);
        }

        return box;
    }
}

/// <summary>A mask and the pixels that were there before what it limits was drawn.</summary>
internal sealed record MaskedPixels(ClipMask Mask, PixelBlock Before);
