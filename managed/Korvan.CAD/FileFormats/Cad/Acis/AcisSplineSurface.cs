using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>
/// A surface of splines. Its parameters run from 0 to 1, or over a whole turn where both ends are the same points.
/// Evaluation: L. Piegl, W. Tiller, The NURBS Book, 2nd ed., algorithms A2.2 and A4.3.
/// </summary>
internal sealed class AcisSplineSurface
{
    private const int HighestDegree = 25;
    private const int MaxPoints = 1 << 20;

    /// <summary>Within this part of its size a point is on a surface, as edges are approximated.</summary>
    private const double Tolerance = 1e-3;
    private const int GridSize = 16;
    private const int MaxSteps = 12;

    private readonly Direction _u;
    private readonly Direction _v;
    private readonly Vec3[] _points;
    private readonly double[] _weights;
    private readonly double _size;
    private Vec3[]? _grid;
    private (double U, double V) _last;

    private AcisSplineSurface(Direction u, Direction v, Vec3[] points, double[] weights)
    {
        (_u, _v, _points, _weights) = (u, v, points, weights);
        Bounds3 box = Bounds3.Empty;
        Array.ForEach(points, point => box = box.With(point));
        _size = (box.Max - box.Min).Length;
        PeriodU = IsClosed(t => At(0, t), t => At(1, t)) ? Math.Tau : 0;
        PeriodV = IsClosed(t => At(t, 0), t => At(t, 1)) ? Math.Tau : 0;
    }

    /// <summary>Gets the whole turn of a parameter whose ends are the same points, else 0.</summary>
    internal double PeriodU { get; private set; }

    internal double PeriodV { get; private set; }

    /// <summary>Reads the first surface of a definition. Texts do not state whether control points run along the first
    /// or the second parameter: both are returned, and the edges of the face are on one of them.</summary>
    internal static IEnumerable<AcisSplineSurface> Read(SatRecord record, int from)
    {
        int at = Array.FindIndex(record.Tokens, from, static token => token is "nubs" or "nurbs");
        if (at < 0)
        {
            yield break;
        }

        bool hasWeights = record.Tokens[at] == "nurbs";
        (double degreeU, double degreeV) = (record.Number(at + 1), record.Number(at + 2));
        for (at += 3; at < record.Tokens.Length && double.IsNaN(record.Number(at)); at++)
        {
            // Keywords: weights, closures and poles.
        }

        (double countU, double countV) = (record.Number(at), record.Number(at + 1));
        at += 2;
        Direction? u = Direction.Read(record, ref at, degreeU, countU);
        Direction? v = u is null ? null : Direction.Read(record, ref at, degreeV, countV);
        if (u is null || v is null || (long)u.Points * v.Points > MaxPoints
            || at + ((long)u.Points * v.Points * (hasWeights ? 4 : 3)) > record.Tokens.Length)
        {
            yield break;
        }

        foreach (bool alongU in (bool[])[false, true])
        {
            if (Create(record, at, u, v, alongU, hasWeights) is { } surface)
            {
                yield return surface;
            }
        }
    }

    private static AcisSplineSurface? Create(
        SatRecord record, int at, Direction u, Direction v, bool alongU, bool hasWeights)
    {
        var points = new Vec3[u.Points * v.Points];
        double[] weights = new double[points.Length];
        Workload.Step(1 + (points.Length / 64));
        for (int i = 0; i < points.Length; i++, at += hasWeights ? 4 : 3)
        {
            int place = alongU ? (i % u.Points * v.Points) + (i / u.Points) : i;
            points[place] = record.Vector(at);
            weights[place] = hasWeights ? record.Number(at + 3) : 1;
            if (!points[place].IsFinite || !(weights[place] > 0) || !double.IsFinite(weights[place]))
            {
                return null;
            }
        }

        return new AcisSplineSurface(u, v, points, weights);
    }

    /// <summary>Returns the point of two parameters; a turn is taken for a closed direction.</summary>
    internal Vec3 Point(double u, double v) => At(Share(u, PeriodU), Share(v, PeriodV));

    /// <summary>Returns the parameters of a point, beginning with those of the point before; null for one that is not
    /// on the surface.</summary>
    internal (double U, double V)? Find(Vec3 point)
    {
        if (!TryApproach(point, _last) && !TryApproach(point, NearestOfGrid(point)))
        {
            return null;
        }

        return (_last.U * (PeriodU > 0 ? PeriodU : 1), _last.V * (PeriodV > 0 ? PeriodV : 1));
    }

    private static double Share(double value, double period) =>
        period > 0 ? (value / period) - Math.Floor(value / period) : Math.Clamp(value, 0, 1);

    private bool IsClosed(Func<double, Vec3> first, Func<double, Vec3> last)
    {
        const int samples = 8;
        for (int i = 0; i <= samples; i++)
        {
            double t = (double)i / samples;
            if (!((first(t) - last(t)).Length <= 1e-6 * _size))
            {
                return false;
            }
        }

        return true;
    }

    // Steps of Gauss and Newton towards the foot of the perpendicular.
    private bool TryApproach(Vec3 target, (double U, double V) start)
    {
        const double h = 1e-5;
        (double u, double v) = start;
        for (int step = 0; step < MaxSteps; step++)
        {
            (double du, double dv) = (u + h <= 1 ? h : -h, v + h <= 1 ? h : -h);
            Vec3 at = At(u, v);
            Vec3 off = target - at;
            if (off.Length <= Tolerance * _size * 1e-3)
            {
                break;
            }

            Vec3 a = (At(u + du, v) - at) * (1 / du);
            Vec3 b = (At(u, v + dv) - at) * (1 / dv);
            (double aa, double ab, double bb) = (Vec3.Dot(a, a), Vec3.Dot(a, b), Vec3.Dot(b, b));
            double determinant = (aa * bb) - (ab * ab);
            if (!(Math.Abs(determinant) > 1e-12 * aa * bb))
            {
                break;
            }

            (double x, double y) = (Vec3.Dot(off, a), Vec3.Dot(off, b));
            u = Moved(u, ((x * bb) - (y * ab)) / determinant, PeriodU);
            v = Moved(v, ((y * aa) - (x * ab)) / determinant, PeriodV);
        }

        bool isFound = (At(u, v) - target).Length <= Tolerance * _size;
        _last = isFound ? (u, v) : _last;
        return isFound;
    }

    private static double Moved(double from, double by, double period)
    {
        double to = from + Math.Clamp(by, -0.25, 0.25);
        return period > 0 ? to - Math.Floor(to) : Math.Clamp(to, 0, 1);
    }

    private (double U, double V) NearestOfGrid(Vec3 target)
    {
        if (_grid is null)
        {
            _grid = new Vec3[(GridSize + 1) * (GridSize + 1)];
            for (int i = 0; i < _grid.Length; i++)
            {
                _grid[i] = At((double)(i / (GridSize + 1)) / GridSize, (double)(i % (GridSize + 1)) / GridSize);
            }
        }

        int best = 0;
        for (int i = 1; i < _grid.Length; i++)
        {
            best = (_grid[i] - target).Length < (_grid[best] - target).Length ? i : best;
        }

        return ((double)(best / (GridSize + 1)) / GridSize, (double)(best % (GridSize + 1)) / GridSize);
    }

    private Vec3 At(double u, double v)
    {
        Workload.Step(1);
        Span<double> basisU = stackalloc double[HighestDegree + 1];
        Span<double> basisV = stackalloc double[HighestDegree + 1];
        int firstU = _u.Basis(u, basisU);
        int firstV = _v.Basis(v, basisV);
        Vec3 sum = default;
        double weight = 0;
        for (int i = 0; i <= _u.Degree; i++)
        {
            for (int j = 0; j <= _v.Degree; j++)
            {
                int place = ((firstU + i) * _v.Points) + firstV + j;
                double share = basisU[i] * basisV[j] * _weights[place];
                sum += _points[place] * share;
                weight += share;
            }
        }

        return sum * (1 / weight);
    }

    /// <summary>The knots along one parameter.</summary>
    private sealed record Direction(int Degree, double[] Knots)
    {
        internal int Points => Knots.Length - Degree - 1;

        /// <summary>Reads knots, each with its multiplicity; the outer ones lack one.</summary>
        internal static Direction? Read(SatRecord record, ref int at, double degree, double count)
        {
            if (!(degree is >= 1 and <= HighestDegree) || !(count >= 2) || count > record.Tokens.Length)
            {
                return null;
            }

            List<double> knots = [];
            for (int i = 0; i < count; i++, at += 2)
            {
                double knot = record.Number(at);
                double multiplicity = record.Number(at + 1) + (i == 0 || i == (int)count - 1 ? 1 : 0);
                bool isUsable = double.IsFinite(knot) && multiplicity is >= 1 and <= HighestDegree + 1
                    && (knots.Count == 0 || knot >= knots[^1]);
                if (!isUsable)
                {
                    return null;
                }

                for (int repeat = 0; repeat < multiplicity; repeat++)
                {
                    knots.Add(knot);
                }
            }

            var direction = new Direction((int)degree, [.. knots]);
            int points = direction.Points;
            return points > degree && direction.Knots[points] > direction.Knots[(int)degree] ? direction : null;
        }

        /// <summary>Computes what is not zero of the basis at a parameter from 0 to 1; returns the index of the first
        /// point that it belongs to.</summary>
        internal int Basis(double share, Span<double> basis)
        {
            double t = Knots[Degree] + (share * (Knots[Points] - Knots[Degree]));
            int low = Degree, high = Points;
            while (high - low > 1)
            {
                int middle = (low + high) / 2;
                (low, high) = t < Knots[middle] ? (low, middle) : (middle, high);
            }

            // The last span that has a length.
            for (; low > Degree && Knots[low] >= Knots[low + 1]; low--)
            {
            }

            basis[0] = 1;
            for (int j = 1; j <= Degree; j++)
            {
                double saved = 0;
                for (int r = 0; r < j; r++)
                {
                    double right = Knots[low + r + 1] - t;
                    double left = t - Knots[low + 1 - j + r];
                    double part = right + left == 0 ? 0 : basis[r] / (right + left);
                    basis[r] = saved + (right * part);
                    saved = left * part;
                }

                basis[j] = saved;
            }

            return low - Degree;
        }
    }
}
