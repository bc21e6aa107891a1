using System;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.DisplayList;

/// <content>Lines that reach far outside of the page. Devices have limits for coordinates, and a line whose end is
/// moved has another direction; so they are clipped before, with the dashes of the whole line. Dashed curves are
/// flattened for that: devices would walk all their dashes.</content>
internal sealed partial class DrawingList
{
    private readonly PathBuffer _piece = new();
    private readonly PathBuffer _whole = new();
    private Bounds2 _reach = Bounds2.Empty;
    private double _pieceOffset;

    /// <summary>Adds the parts of a line that are in a box. False for a line that is whole in it, and for curves
    /// without dashes.</summary>
    private bool TryAddNear(in DisplayItem item, in NearBox near)
    {
        bool isKept = item.Dash < 0 && VerbsOf(item).Contains(PathVerb.Curve);
        if (isKept || IsInside(item, near.Box))
        {
            return false;
        }

        PathOf(item, _whole);
        _piece.Clear();
        foreach (FlatLine line in FlatLine.Of(_whole, near.Tolerance))
        {
            double walked = item.DashOffset;
            for (int i = 0; i + 1 < line.Points.Length; i++)
            {
                AddNear(item, line.Points[i], line.Points[i + 1], near.Box, ref walked);
            }

            AddPiece(item);
        }

        return true;
    }

    private bool IsInside(in DisplayItem item, in Bounds2 box)
    {
        ReadOnlySpan<double> c = CoordsOf(item);
        int count = 0;
        foreach (PathVerb verb in VerbsOf(item))
        {
            count += verb switch { PathVerb.Curve => 6, PathVerb.Close => 0, _ => 2 };
        }

        for (int at = 0; at < count; at += 2)
        {
            if (!(c[at] >= box.MinX && c[at] <= box.MaxX && c[at + 1] >= box.MinY && c[at + 1] <= box.MaxY))
            {
                return false;
            }
        }

        return true;
    }

    private void AddNear(in DisplayItem item, Vec2 from, Vec2 to, in Bounds2 box, ref double walked)
    {
        double length = (to - from).Length;
        if (!Segments.TryClip(from, to, box, out double enter, out double leave))
        {
            AddPiece(item);
        }
        else
        {
            if (enter > 0 || _piece.IsEmpty)
            {
                AddPiece(item);
                _pieceOffset = walked + (enter * length);
                _piece.MoveTo(from + ((to - from) * enter));
            }

            _piece.LineTo(from + ((to - from) * leave));
            if (leave < 1)
            {
                AddPiece(item);
            }
        }

        walked += length;
    }

    /// <summary>Adds what was collected as a line of its own.</summary>
    private void AddPiece(in DisplayItem item)
    {
        if (_piece.IsEmpty)
        {
            return;
        }

        double period = 0;
        if (item.Dash >= 0)
        {
            Array.ForEach(_dashes[item.Dash], length => period += length);
        }

        ref DisplayItem piece = ref NewItem(item.Kind, item.Color, item.Layer);
        piece = item;
        piece.DashOffset = period > 0 ? (float)(_pieceOffset % period) : 0;
        Store(_piece, ref piece);
        _piece.Clear();
    }
}
