using System;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.DisplayList;

/// <content>Lines that reach far outside of the page. Devices have limits for coordinates, and a line whose end is
/// moved has another direction; so they are clipped before, with the dashes of the whole line.</content>
internal sealed partial class DrawingList
{
    private readonly PathBuffer _piece = new();
    private Bounds2 _reach = Bounds2.Empty;
    private double _pieceOffset;

    /// <summary>Adds the parts of a line that are in a box. False for a line that is whole in it, and for
    /// curves.</summary>
    private bool TryAddNear(in DisplayItem item, in Bounds2 box)
    {
        ReadOnlySpan<PathVerb> verbs = VerbsOf(item);
        if (verbs.Contains(PathVerb.Curve) || IsInside(item, box))
        {
            return false;
        }

        // The arrays grow while parts are added, so the line is read by index.
        int at = item.FirstCoord;
        double walked = item.DashOffset;
        Vec2 start = default, last = default;
        _piece.Clear();
        for (int i = item.FirstVerb; i < item.FirstVerb + item.VerbCount; i++)
        {
            PathVerb verb = _verbs[i];
            Vec2 next = start;
            if (verb != PathVerb.Close)
            {
                next = new Vec2(_coords[at], _coords[at + 1]);
                at += 2;
            }

            if (verb == PathVerb.Move)
            {
                AddPiece(item);
                (start, walked) = (next, item.DashOffset);
            }
            else
            {
                AddNear(item, last, next, box, ref walked);
            }

            last = next;
        }

        AddPiece(item);
        return true;
    }

    private bool IsInside(in DisplayItem item, in Bounds2 box)
    {
        ReadOnlySpan<double> c = CoordsOf(item);
        int at = 0;
        foreach (PathVerb verb in VerbsOf(item))
        {
            if (verb == PathVerb.Close)
            {
                continue;
            }

            if (!(c[at] >= box.MinX && c[at] <= box.MaxX && c[at + 1] >= box.MinY && c[at + 1] <= box.MaxY))
            {
                return false;
            }

            at += 2;
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
