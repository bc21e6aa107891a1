using System;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Lengths along a path, for patterns that follow it.</summary>
internal static class PathMeasure
{
    private const int CurveSteps = 8;

    /// <summary>Calls back for each segment with its ends; curves are flattened into a fixed number.</summary>
    internal static void ForEachSegment<TState>(PathBuffer path, ref TState state, SegmentAction<TState> action)
    {
        ReadOnlySpan<double> c = path.Coords;
        Vec2 current = default;
        Vec2 start = default;
        int at = 0;
        foreach (PathVerb verb in path.Verbs)
        {
            switch (verb)
            {
                case PathVerb.Move:
                    current = start = new Vec2(c[at], c[at + 1]);
                    at += 2;
                    break;
                case PathVerb.Line:
                    Step(new Vec2(c[at], c[at + 1]), ref current, ref state, action);
                    at += 2;
                    break;
                case PathVerb.Curve:
                    (Vec2 p0, Vec2 p1) = (current, new Vec2(c[at], c[at + 1]));
                    (Vec2 p2, Vec2 p3) = (new Vec2(c[at + 2], c[at + 3]), new Vec2(c[at + 4], c[at + 5]));
                    for (int i = 1; i <= CurveSteps; i++)
                    {
                        Step(Cubic.At(p0, p1, p2, p3, (double)i / CurveSteps), ref current, ref state, action);
                    }

                    at += 6;
                    break;
                default:
                    Step(start, ref current, ref state, action);
                    break;
            }
        }
    }

    internal static double Length(PathBuffer path)
    {
        double length = 0;
        ForEachSegment(path, ref length, static (ref double sum, Vec2 a, Vec2 b) => sum += (b - a).Length);
        return length;
    }

    private static void Step<TState>(Vec2 to, ref Vec2 current, ref TState state, SegmentAction<TState> action)
    {
        action(ref state, current, to);
        current = to;
    }
}

internal delegate void SegmentAction<TState>(ref TState state, Vec2 from, Vec2 to);
