using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Hatch;

internal enum HatchStyle
{
    /// <summary>Every other nested area is filled.</summary>
    Normal = 0,

    /// <summary>Only the area between the outermost loops and their first islands.</summary>
    Outer = 1,

    /// <summary>Islands are ignored.</summary>
    Ignore = 2,
}

/// <summary>Where the plane of a hatch lies: the map to the page, and the hatch's own z.</summary>
internal readonly record struct HatchPlane(Affine3 Map, double Elevation);

/// <summary>One closed loop of a boundary, with its curves and flattened.</summary>
internal sealed class HatchLoop
{
    internal HatchLoop(PathBuffer path, double tolerance)
    {
        Path = path;
        List<Vec2[]> rings = Polygons.Flatten(path, tolerance);
        Ring = rings.Count > 0 ? rings[0] : [];
    }

    internal PathBuffer Path { get; }

    internal Vec2[] Ring { get; }

    /// <summary>How many loops lie around this one.</summary>
    internal int Depth { get; set; }
}

internal static class HatchLoops
{
    private const int MostNested = 2000;

    /// <summary>The loops that bound ink under a style; filled by the even-odd rule they give the hatched area.</summary>
    internal static List<HatchLoop> Select(List<HatchLoop> loops, HatchStyle style)
    {
        loops.RemoveAll(l => l.Ring.Length < 3);
        if (style == HatchStyle.Normal || loops.Count < 2 || loops.Count > MostNested)
        {
            return loops;
        }

        foreach (HatchLoop loop in loops)
        {
            Vec2 probe = Interior(loop.Ring);
            foreach (HatchLoop other in loops)
            {
                if (other != loop && other.Path.Bounds.Contains(probe.X, probe.Y)
                    && Math.Abs(Polygons.SignedArea(other.Ring)) > Math.Abs(Polygons.SignedArea(loop.Ring))
                    && Polygons.Contains(other.Ring, probe))
                {
                    loop.Depth++;
                }
            }
        }

        int deepest = style == HatchStyle.Outer ? 1 : 0;
        return loops.FindAll(l => l.Depth <= deepest);
    }

    /// <summary>A point just inside the ring: beside the middle of its longest side.</summary>
    private static Vec2 Interior(Vec2[] ring)
    {
        int best = 0;
        double longest = -1;
        for (int i = 0; i < ring.Length; i++)
        {
            double length = (ring[(i + 1) % ring.Length] - ring[i]).Length;
            if (length > longest)
            {
                (best, longest) = (i, length);
            }
        }

        Vec2 a = ring[best];
        Vec2 b = ring[(best + 1) % ring.Length];
        double side = Polygons.SignedArea(ring) >= 0 ? 1 : -1;
        return Vec2.Lerp(a, b, 0.5) + ((b - a).Left * (side * 1e-4));
    }
}
