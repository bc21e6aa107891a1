using System;
using System.Collections.Generic;
using System.Linq;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>The boundary of a face in the parameters of its surface: points along its edges, with the face on the left
/// of their direction.</summary>
internal sealed class AcisTrim
{
    private const double Smallest = 1e-9;

    private readonly List<(double U, double V)[]> _edges = [];

    internal bool IsEmpty => _edges.Count == 0;

    /// <summary>Adds points along an edge. Angles are continued, so that neighbours are less than half a turn
    /// apart.</summary>
    internal void Add(List<(double U, double V)> points, bool isPeriodicInV)
    {
        for (int i = 1; i < points.Count; i++)
        {
            (double u, double v) = points[i - 1];
            points[i] = (u + Math.IEEERemainder(points[i].U - u, Math.Tau),
                isPeriodicInV ? v + Math.IEEERemainder(points[i].V - v, Math.Tau) : points[i].V);
        }

        _edges.Add([.. points]);
    }

    /// <summary>Returns the parts of an isoline that are in the face.</summary>
    /// <param name="at">The parameter that the isoline has.</param>
    /// <param name="alongV">Whether the other parameter is the second one.</param>
    /// <param name="limits">The limits of the other parameter.</param>
    /// <param name="isPeriodic">Whether they are the same point.</param>
    /// <param name="isPeriodicAcross">Whether the parameter of the isoline is an angle.</param>
    /// <param name="isFlipped">Whether the face is on the right of its boundary.</param>
    internal List<(double From, double To)>? PartsOf(
        double at, bool alongV, (double From, double To) limits, bool isPeriodic, bool isPeriodicAcross, bool isFlipped)
    {
        List<(double Place, bool Enters)> crossings = [];
        foreach ((double U, double V)[] points in _edges)
        {
            for (int i = 1; i < points.Length; i++)
            {
                (double a, double b) = alongV ? points[i - 1] : (points[i - 1].V, points[i - 1].U);
                (double c, double d) = alongV ? points[i] : (points[i].V, points[i].U);
                double turns = isPeriodicAcross ? Math.Ceiling((Math.Min(a, c) - at) / Math.Tau) : 0;
                double target = at + (Math.Tau * turns);
                if ((a < target) != (c < target))
                {
                    double place = b + ((d - b) * (target - a) / (c - a));
                    crossings.Add((isPeriodic ? Wrapped(place, limits.From) : place, (c > a) == alongV != isFlipped));
                }
            }
        }

        crossings.Sort(static (a, b) => a.Place.CompareTo(b.Place));
        return crossings.Count == 0 ? null : Between(crossings, limits, isPeriodic);
    }

    private static double Wrapped(double angle, double from) =>
        angle - (Math.Tau * Math.Floor((angle - from) / Math.Tau));

    private static List<(double From, double To)> Between(
        List<(double Place, bool Enters)> crossings, (double From, double To) limits, bool isPeriodic)
    {
        List<(double From, double To)> parts = [];
        if (isPeriodic)
        {
            for (int i = 0; i < crossings.Count; i++)
            {
                (double place, bool enters) = crossings[(i + 1) % crossings.Count];
                if (crossings.Count == 1 || (crossings[i].Enters && !enters))
                {
                    parts.Add((crossings[i].Place, place + (i + 1 < crossings.Count ? 0 : Math.Tau)));
                }
            }
        }
        else
        {
            List<double> places = [.. crossings.Select(static crossing => crossing.Place)];
            bool isBounded = double.IsFinite(limits.From) && double.IsFinite(limits.To);
            if (isBounded ? !crossings[0].Enters : double.IsFinite(limits.From) && places.Count % 2 == 1)
            {
                places.Insert(0, limits.From);
            }

            if (double.IsFinite(limits.To) && places.Count % 2 == 1)
            {
                places.Add(limits.To);
            }

            for (int i = 0; i + 1 < places.Count; i += 2)
            {
                parts.Add((places[i], places[i + 1]));
            }
        }

        parts.RemoveAll(static part => !(part.To - part.From > Smallest));
        return parts;
    }
}
