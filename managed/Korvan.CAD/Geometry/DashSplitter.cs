using System;

namespace Korvan.CAD.Geometry;

/// <summary>Splits a path into its dashes, for formats whose line types have no phase or whose readers differ over
/// them.</summary>
internal static class DashSplitter
{
    /// <summary>Past this a line is drawn whole: its dashes could not be told apart.</summary>
    private const int MaxDashes = 200_000;
    private const int SegmentsPerStep = 64;

    /// <summary>Puts the dashes into the target; lengths alternate between dash and gap. False when there are too
    /// many.</summary>
    /// <param name="path">The path.</param>
    /// <param name="lengths">The lengths of dashes and gaps.</param>
    /// <param name="offset">Where in the pattern the path begins.</param>
    /// <param name="tolerance">The distance of chords from curves.</param>
    /// <param name="target">Receives the dashes.</param>
    /// <param name="visible">The region outside of which dashes are left out; null for none.</param>
    internal static bool TrySplit(
        PathBuffer path, double[] lengths, double offset, double tolerance, PathBuffer target,
        Bounds2? visible = null)
    {
        double period = 0;
        Array.ForEach(lengths, length => period += length);
        target.Clear();
        int dashes = 0;
        int segments = 0;
        foreach (FlatLine line in FlatLine.Of(path, tolerance))
        {
            var walk = new Walk(lengths, period, offset, visible);
            for (int i = 0; i + 1 < line.Points.Length; i++)
            {
                Workload.Count(ref segments, SegmentsPerStep);
                if (!walk.AddSegment(line.Points[i], line.Points[i + 1], target, ref dashes))
                {
                    return false;
                }
            }
        }

        return true;
    }

    private struct Walk
    {
        private readonly double[] _lengths;
        private readonly double _period;
        private readonly Bounds2? _visible;
        private int _place;
        private double _left;
        private bool _down;

        internal Walk(double[] lengths, double period, double offset, Bounds2? visible)
        {
            _lengths = lengths;
            _period = period;
            _visible = visible;
            double at = offset % period;
            at = at < 0 ? at + period : at;
            while (_place < lengths.Length - 1 && at >= lengths[_place])
            {
                at -= lengths[_place++];
            }

            _left = Math.Max(0, lengths[_place] - at);
        }

        /// <summary>Adds the dashes of a segment; none of those that the region leaves out are walked.</summary>
        internal bool AddSegment(Vec2 from, Vec2 to, PathBuffer target, ref int dashes)
        {
            double length = (to - from).Length;
            if (_visible is not Bounds2 region || !(length > 2 * _period))
            {
                return AddVisible(from, to, target, ref dashes);
            }

            if (!region.TryClip(from, to, out double first, out double last))
            {
                Skip(length);
                return true;
            }

            Skip(first * length);
            bool fits = AddVisible(Vec2.Lerp(from, to, first), Vec2.Lerp(from, to, last), target, ref dashes);
            Skip((1 - last) * length);
            return fits;
        }

        private void Skip(double distance)
        {
            if (!(distance > 0))
            {
                return;
            }

            _down = false;
            distance %= _period;
            while (distance >= _left)
            {
                distance -= _left;
                _place = (_place + 1) % _lengths.Length;
                _left = _lengths[_place];
            }

            _left -= distance;
        }

        private bool AddVisible(Vec2 from, Vec2 to, PathBuffer target, ref int dashes)
        {
            double length = (to - from).Length;
            double done = 0;
            while (true)
            {
                bool isDash = _place % 2 == 0;
                double step = Math.Min(_left, length - done);
                if (isDash)
                {
                    if (!_down)
                    {
                        target.MoveTo(At(from, to, length, done));
                        _down = true;
                        dashes++;
                    }

                    target.LineTo(At(from, to, length, done + step));
                }

                done += step;
                _left -= step;
                if (_left > 0)
                {
                    return dashes <= MaxDashes;
                }

                _place = (_place + 1) % _lengths.Length;
                _left = _lengths[_place];
                _down = false;
                if (dashes > MaxDashes || (done >= length && _left > 0))
                {
                    return dashes <= MaxDashes;
                }
            }
        }

        private static Vec2 At(Vec2 from, Vec2 to, double length, double at) =>
            length > 0 ? Vec2.Lerp(from, to, at / length) : from;
    }
}
