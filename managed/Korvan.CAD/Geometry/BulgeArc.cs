using System;

namespace Korvan.CAD.Geometry;

/// <summary>
/// The arc between two polyline vertices. A bulge is the tangent of a quarter of the included angle, negative when
/// the arc runs clockwise; 0 is a straight segment and 1 a half circle.
/// </summary>
internal readonly record struct BulgeArc(Vec2 Center, double Radius, double Start, double Sweep)
{
    private const double Straight = 1e-9;

    internal static bool TryCreate(Vec2 from, Vec2 to, double bulge, out BulgeArc arc)
    {
        Vec2 chord = to - from;
        double length = chord.Length;
        if (!(Math.Abs(bulge) > Straight) || !double.IsFinite(bulge) || length == 0)
        {
            arc = default;
            return false;
        }

        double radius = length * (1 + (bulge * bulge)) / (4 * Math.Abs(bulge));
        double fromMiddle = length * (1 - (bulge * bulge)) / (4 * bulge);
        Vec2 center = Vec2.Lerp(from, to, 0.5) + (chord.Left * (fromMiddle / length));
        Vec2 toStart = from - center;
        arc = new BulgeArc(center, radius, Math.Atan2(toStart.Y, toStart.X), 4 * Math.Atan(bulge));
        return true;
    }

    internal Vec2 At(double fraction) => Center + Vec2.Polar(Start + (Sweep * fraction), Radius);
}
