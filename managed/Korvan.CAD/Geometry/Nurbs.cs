using System;
using System.Collections.Generic;

namespace Korvan.CAD.Geometry;

/// <summary>
/// Rational B-splines as cubic Béziers. The curve is cut at its knots; a cubic or lower polynomial span is carried
/// over exactly, any other span is followed by Hermite cubics that are halved until they lie on it.
/// Evaluation: L. Piegl, W. Tiller, The NURBS Book, 2nd ed., algorithms A2.1, A3.1 (de Boor form) and A5.6.
/// </summary>
internal sealed class Nurbs
{
    private const int HighestDegree = 25;
    private const int DeepestSplit = 12;
    private const int EvaluationsPerStep = 16;

    /// <summary>The degree from which an evaluation, whose work grows with the square, takes four times as
    /// long.</summary>
    private const int HighDegree = 12;

    private readonly int _degree;
    private readonly double[] _knots;
    private readonly Vec3[] _points;
    private readonly double[] _weights;
    private readonly bool _rational;
    private int _evaluations;

    private Nurbs(int degree, double[] knots, Vec3[] points, double[] weights)
    {
        _degree = degree;
        _knots = knots;
        _points = points;
        _weights = weights;
        _rational = Array.Exists(weights, w => Math.Abs(w - weights[0]) > 1e-12 * Math.Abs(weights[0]));
    }

    internal double First => _knots[_degree];

    internal double Last => _knots[_points.Length];

    /// <summary>Returns null for data that do not make a curve: too few points, falling knots, weights of no
    /// sign.</summary>
    internal static Nurbs? Create(
        int degree, IReadOnlyList<double> knots, IReadOnlyList<Vec3> points, IReadOnlyList<double>? weights)
    {
        if (degree < 1 || degree > HighestDegree || points.Count < degree + 1)
        {
            return null;
        }

        double[] vector = knots.Count == points.Count + degree + 1 ? Copy(knots) : Clamped(degree, points.Count);
        double[] w = weights != null && weights.Count == points.Count ? Copy(weights) : Ones(points.Count);
        for (int i = 1; i < vector.Length; i++)
        {
            if (!(vector[i] >= vector[i - 1]))
            {
                return null;
            }
        }

        var p = new Vec3[points.Count];
        for (int i = 0; i < p.Length; i++)
        {
            p[i] = points[i];
            if (!p[i].IsFinite || !(w[i] > 0) || !double.IsFinite(w[i]))
            {
                return null;
            }
        }

        var curve = new Nurbs(degree, vector, p, w);
        return curve.Last > curve.First ? curve : null;
    }

    internal Vec3 Start => At(First);

    internal Vec3 At(double t) => Evaluate(t, out _);

    /// <summary>Draws the whole curve; <paramref name="tolerance"/> is in the curve's own units.</summary>
    internal void Draw(in PathPen pen, double tolerance, bool move = true)
    {
        if (move)
        {
            pen.MoveTo(At(First));
        }

        DrawSpans(pen, tolerance, First, Last);
    }

    /// <summary>Draws the part between two parameters; all of it when they enclose no part.</summary>
    internal void Draw(in PathPen pen, double tolerance, double from, double to)
    {
        from = Math.Max(from, First);
        to = Math.Min(to, Last);
        (from, to) = to > from ? (from, to) : (First, Last);
        pen.MoveTo(At(from));
        DrawSpans(pen, tolerance, from, to);
    }

    private void DrawSpans(in PathPen pen, double tolerance, double from, double to)
    {
        for (int i = _degree; i < _points.Length; i++)
        {
            double a = Math.Max(_knots[i], from);
            double b = Math.Min(_knots[i + 1], to);
            if (b > a)
            {
                DrawSpan(pen, a, b, i, tolerance);
            }
        }
    }

    private void DrawSpan(in PathPen pen, double a, double b, int span, double tolerance)
    {
        Vec3 pa = Evaluate(a, span, out Vec3 da);
        Vec3 pb = Evaluate(b, span, out Vec3 db);
        if (_degree <= 3 && !_rational)
        {
            Hermite(pen, pa, da, pb, db, b - a);
        }
        else
        {
            Follow(pen, span, a, b, pa, da, pb, db, tolerance, 0);
        }
    }

    private void Follow(
        in PathPen pen, int span, double a, double b, Vec3 pa, Vec3 da, Vec3 pb, Vec3 db, double tolerance, int depth)
    {
        double mid = (a + b) / 2;
        Vec3 pm = Evaluate(mid, span, out Vec3 dm);
        if (depth > 0 && (depth >= DeepestSplit || !(Deviation(span, a, b, pa, da, pb, db) > tolerance)))
        {
            Hermite(pen, pa, da, pb, db, b - a);
            return;
        }

        Follow(pen, span, a, mid, pa, da, pm, dm, tolerance, depth + 1);
        Follow(pen, span, mid, b, pm, dm, pb, db, tolerance, depth + 1);
    }

    private double Deviation(int span, double a, double b, Vec3 pa, Vec3 da, Vec3 pb, Vec3 db)
    {
        double worst = 0;
        double h = b - a;
        for (int i = 1; i <= 3; i++)
        {
            double t = i / 4.0;
            double s = 1 - t;
            Vec3 p1 = pa + (da * (h / 3));
            Vec3 p2 = pb - (db * (h / 3));
            Vec3 onCubic = (pa * (s * s * s)) + (p1 * (3 * s * s * t)) + (p2 * (3 * s * t * t)) + (pb * (t * t * t));
            worst = Math.Max(worst, (Evaluate(a + (h * t), span, out _) - onCubic).Length);
        }

        return worst;
    }

    private static void Hermite(in PathPen pen, Vec3 pa, Vec3 da, Vec3 pb, Vec3 db, double h) =>
        pen.CurveTo(pa + (da * (h / 3)), pb - (db * (h / 3)), pb);

    private Vec3 Evaluate(double t, out Vec3 derivative) => Evaluate(t, FindSpan(t), out derivative);

    private int FindSpan(double t)
    {
        int low = _degree;
        int high = _points.Length;
        while (high - low > 1)
        {
            int mid = (low + high) / 2;
            (low, high) = t < _knots[mid] ? (low, mid) : (mid, high);
        }

        while (low > _degree && _knots[low] >= _knots[low + 1])
        {
            low--;
        }

        return low;
    }

    // De Boor's recursion in homogeneous coordinates; the last step but one gives the derivative as well.
    private Vec3 Evaluate(double t, int span, out Vec3 derivative)
    {
        Workload.Count(ref _evaluations, _degree < HighDegree ? EvaluationsPerStep : EvaluationsPerStep / 4);
        Span<Vec3> p = stackalloc Vec3[HighestDegree + 1];
        Span<double> w = stackalloc double[HighestDegree + 1];
        for (int j = 0; j <= _degree; j++)
        {
            w[j] = _weights[span - _degree + j];
            p[j] = _points[span - _degree + j] * w[j];
        }

        Vec3 dp = default;
        double dw = 0;
        for (int r = 1; r <= _degree; r++)
        {
            if (r == _degree)
            {
                double scale = _degree / (_knots[span + 1] - _knots[span]);
                dp = (p[_degree] - p[_degree - 1]) * scale;
                dw = (w[_degree] - w[_degree - 1]) * scale;
            }

            for (int j = _degree; j >= r; j--)
            {
                double left = _knots[span - _degree + j];
                double alpha = (t - left) / (_knots[span + 1 + j - r] - left);
                p[j] = (p[j - 1] * (1 - alpha)) + (p[j] * alpha);
                w[j] = (w[j - 1] * (1 - alpha)) + (w[j] * alpha);
            }
        }

        Vec3 point = p[_degree] * (1 / w[_degree]);
        derivative = (dp - (point * dw)) * (1 / w[_degree]);
        return point;
    }

    private static double[] Clamped(int degree, int count)
    {
        var knots = new double[count + degree + 1];
        for (int i = 0; i < knots.Length; i++)
        {
            knots[i] = Math.Clamp(i - degree, 0, count - degree);
        }

        return knots;
    }

    private static double[] Copy(IReadOnlyList<double> from)
    {
        var to = new double[from.Count];
        for (int i = 0; i < to.Length; i++)
        {
            to[i] = from[i];
        }

        return to;
    }

    private static double[] Ones(int count)
    {
        var ones = new double[count];
        Array.Fill(ones, 1.0);
        return ones;
    }
}
