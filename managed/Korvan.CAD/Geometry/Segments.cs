using System;

namespace Korvan.CAD.Geometry;

/// <summary>Straight lines between two points.</summary>
internal static class Segments
{
    /// <summary>Finds the part of a line that is in a box (Liang and Barsky, 1984).</summary>
    /// <param name="from">The start.</param>
    /// <param name="to">The end.</param>
    /// <param name="box">The box.</param>
    /// <param name="enter">Where the part begins, as a share of the line.</param>
    /// <param name="leave">Where it ends.</param>
    /// <returns>Whether any of the line is in the box.</returns>
    internal static bool TryClip(Vec2 from, Vec2 to, in Bounds2 box, out double enter, out double leave)
    {
        Vec2 way = to - from;
        (enter, leave) = (0, 1);
        return Narrow(-way.X, from.X - box.MinX, ref enter, ref leave)
            && Narrow(way.X, box.MaxX - from.X, ref enter, ref leave)
            && Narrow(-way.Y, from.Y - box.MinY, ref enter, ref leave)
            && Narrow(way.Y, box.MaxY - from.Y, ref enter, ref leave);
    }

    /// <summary>Narrows the part of a line by an edge; false where nothing is left.</summary>
    private static bool Narrow(double speed, double distance, ref double enter, ref double leave)
    {
        if (speed == 0)
        {
            return distance >= 0;
        }

        double at = distance / speed;
        if (speed < 0)
        {
            enter = Math.Max(enter, at);
        }
        else
        {
            leave = Math.Min(leave, at);
        }

        return enter <= leave;
    }
}
