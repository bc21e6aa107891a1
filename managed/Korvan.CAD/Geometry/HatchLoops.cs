using System.Collections.Generic;
using Korvan.CAD.Geometry.Triangulation;

namespace Korvan.CAD.Geometry;

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

    /// <summary>Gets whether it is the box of a text, which is left out and never filled.</summary>
    internal bool IsTextBox { get; init; }
}

internal static class HatchLoops
{
    private const int CornersPerStep = 1024;
    private const int AreasPerStep = 512;

    /// <summary>The loops that bound the hatched area under a style, which is filled by the even-odd rule.</summary>
    internal static List<HatchLoop> Select(List<HatchLoop> loops, HatchStyle style)
    {
        loops.RemoveAll(l => l.Ring.Length < 3);
        if (loops.Exists(static l => l.IsTextBox))
        {
            List<HatchLoop> areas = loops.FindAll(static l => !l.IsTextBox);
            int tests = 0;
            loops.RemoveAll(l => l.IsTextBox && !IsFilled(areas, Polygons.Center(l.Ring), ref tests));
        }

        if (style == HatchStyle.Normal || loops.Count < 2
            || RingNesting.TryDepths(loops.ConvertAll(l => l.Ring)) is not int[] depths)
        {
            return loops;
        }

        int deepest = style == HatchStyle.Outer ? 1 : 0;
        int at = 0;
        loops.RemoveAll(_ => depths[at++] > deepest);
        return loops;
    }

    private static bool IsFilled(List<HatchLoop> areas, Vec2 at, ref int tests)
    {
        bool isFilled = false;
        foreach (HatchLoop area in areas)
        {
            Workload.Count(ref tests, AreasPerStep);
            if (area.Path.Bounds.Contains(at.X, at.Y))
            {
                Workload.Step(area.Ring.Length / CornersPerStep);
                isFilled ^= Polygons.Contains(area.Ring, at);
            }
        }

        return isFilled;
    }
}
