using System;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Pdf;

/// <content>Lines that begin or end far outside of the page: they are clipped, as coordinates have limits, and a line
/// with an end that was moved would have another direction.</content>
internal sealed partial class PdfPainter
{
    /// <summary>Past the largest page, and within the numbers of archives.</summary>
    private const double FarAway = 20_000;

    private Vec2 _lastClipped;

    /// <summary>Whether the path that was mapped reaches far outside of the page.</summary>
    private bool IsFar => _box.MinX < -FarAway || _box.MinY < -FarAway || _box.MaxX > FarAway || _box.MaxY > FarAway;

    /// <summary>Replaces the path that was mapped by the parts of its lines that can show; one with curves stays.
    /// </summary>
    private void ClipLines(ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> c, double margin)
    {
        if (verbs.Contains(PathVerb.Curve))
        {
            return;
        }

        Bounds2 clip = _state.Clip;
        Bounds2 box = Bounds2.Of(clip.MinX - margin, clip.MinY - margin, clip.MaxX + margin, clip.MaxY + margin);
        EnsureRoom(2 * verbs.Length);
        _verbCount = 0;
        Vec2 start = default, last = default;
        int at = 0;
        int used = 0;
        foreach (PathVerb verb in verbs)
        {
            Vec2 next = start;
            if (verb != PathVerb.Close)
            {
                next = _map.Point(c[at], c[at + 1]);
                at += 2;
            }

            if (verb == PathVerb.Move)
            {
                start = next;
            }
            else
            {
                AddClipped(last, next, box, ref used);
            }

            last = next;
        }
    }

    /// <summary>Adds the part of a line within a box.</summary>
    private void AddClipped(Vec2 from, Vec2 to, in Bounds2 box, ref int used)
    {
        if (!Segments.TryClip(from, to, box, out double enter, out double leave))
        {
            return;
        }

        Vec2 way = to - from;
        Vec2 first = from + (way * enter);
        if (_verbCount == 0 || enter > 0 || first != _lastClipped)
        {
            AddClippedPoint(PathVerb.Move, first, ref used);
        }

        AddClippedPoint(PathVerb.Line, from + (way * leave), ref used);
        _lastClipped = to;
    }

    private void AddClippedPoint(PathVerb verb, Vec2 p, ref int used)
    {
        _verbs[_verbCount++] = verb;
        _points[used++] = (long)Math.Round(p.X * _precision);
        _points[used++] = (long)Math.Round(p.Y * _precision);
    }
}
