using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>
/// The splines of a text. A definition is in braces; where it is used again, its index in the order of the text is in
/// braces after the keyword "ref".
/// </summary>
internal sealed class SatSplines
{
    private const string Open = "{";
    private const string Reference = "ref";
    private const int MaxKnotCount = 1 << 20;

    private readonly List<(int Record, int Token)> _definitions = [];
    private readonly Dictionary<(string[] Tokens, int At), AcisSpline?> _read = [];
    private readonly List<SatRecord> _records;
    private readonly Affine3 _map;

    internal SatSplines(List<SatRecord> records, in Affine3 map)
    {
        (_records, _map) = (records, map);
        for (int i = 0; i < records.Count; i++)
        {
            string[] tokens = records[i].Tokens;
            for (int at = Array.IndexOf(tokens, Open); at >= 0; at = Array.IndexOf(tokens, Open, at + 1))
            {
                if (at + 1 < tokens.Length && tokens[at + 1] != Reference)
                {
                    _definitions.Add((i, at));
                }
            }
        }
    }

    /// <summary>Returns the spline of a curve that has one; null for other definitions.</summary>
    internal AcisSpline? Of(in SatRecord curve) =>
        DefinitionOf(curve) is var (record, token) ? Shared(record, token) : null;

    /// <summary>Returns the record and the token where the definition of a curve or surface begins; null for one
    /// without a definition.</summary>
    internal (SatRecord Record, int Token)? DefinitionOf(in SatRecord user)
    {
        int at = user.Find(Open);
        if (at < 0 || at + 1 >= user.Tokens.Length)
        {
            return null;
        }

        if (user.Tokens[at + 1] != Reference)
        {
            return (user, at);
        }

        double index = user.Number(at + 2);
        if (!(index >= 0) || index >= _definitions.Count)
        {
            return null;
        }

        (int record, int token) = _definitions[(int)index];
        return (_records[record], token);
    }

    // Any number of edges may point to one curve.
    private AcisSpline? Shared(in SatRecord record, int from)
    {
        if (!_read.TryGetValue((record.Tokens, from), out AcisSpline? spline))
        {
            spline = Read(record, from);
            _read.Add((record.Tokens, from), spline);
        }

        return spline;
    }

    /// <summary>
    /// Reads the first curve of a definition: keyword, degree, form, the number of knots, each knot with its
    /// multiplicity, and the control points, with weights where the keyword says so. The outer knots lack one.
    /// </summary>
    private AcisSpline? Read(in SatRecord record, int from)
    {
        int at = Array.FindIndex(record.Tokens, from, static token => token is "nubs" or "nurbs");
        if (at < 0)
        {
            return null;
        }

        bool hasWeights = record.Tokens[at] == "nurbs";
        double degree = record.Number(at + 1);
        double count = record.Number(at + 3);
        if (!(degree is >= 1 and <= 100) || !(count >= 2) || count > record.Tokens.Length)
        {
            return null;
        }

        int next = at + 4;
        List<double>? knots = ReadKnots(record, ref next, (int)count);
        if (knots is null)
        {
            return null;
        }

        int size = hasWeights ? 4 : 3;
        int points = knots.Count - (int)degree - 1;
        if (points < 2 || next + ((long)points * size) > record.Tokens.Length)
        {
            return null;
        }

        List<Vec3> control = [];
        List<double> weights = [];
        for (int i = 0; i < points; i++, next += size)
        {
            control.Add(_map.Point(record.Vector(next)));
            weights.Add(hasWeights ? record.Number(next + 3) : 1);
        }

        Nurbs? curve = Nurbs.Create((int)degree, knots, control, weights);
        return curve is null ? null : new AcisSpline(curve, control);
    }

    private static List<double>? ReadKnots(in SatRecord record, ref int next, int count)
    {
        List<double> knots = [];
        for (int i = 0; i < count; i++, next += 2)
        {
            double knot = record.Number(next);
            double multiplicity = record.Number(next + 1) + (i == 0 || i == count - 1 ? 1 : 0);
            if (!double.IsFinite(knot) || !(multiplicity >= 1) || knots.Count + multiplicity > MaxKnotCount)
            {
                return null;
            }

            for (int repeat = 0; repeat < multiplicity; repeat++)
            {
                knots.Add(knot);
            }
        }

        return knots;
    }
}
