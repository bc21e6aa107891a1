using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>An edge that is a spline.</summary>
public class CadBoundaryPathSpline : ICadBoundaryPathEntity
{
    private bool _hasTangents;

    /// <summary>Creates the edge with its defaults.</summary>
    public CadBoundaryPathSpline()
    {
    }

    /// <inheritdoc/>
    public CadHatchBoundaryType EdgeType => CadHatchBoundaryType.Spline;

    /// <summary>Gets or sets the degree. Group code 94.</summary>
    public int Degree { get; set; } = 3;

    /// <summary>Gets or sets whether control points have weights. Group code 73.</summary>
    public bool Rational { get; set; }

    /// <summary>Gets or sets whether the curve repeats. Group code 74.</summary>
    public bool Periodic { get; set; }

    /// <summary>Gets the knots. The list is live. Group code 40.</summary>
    public List<double> KnotValues { get; } = [];

    /// <summary>Gets the control points, in object coordinates. The list is live. Group codes 10, 20.</summary>
    public IList<Cad2DPoint> ControlPoints { get; } = new CheckedList<Cad2DPoint>("control_points");

    /// <summary>Gets the weights of the control points. The list is live. Group code 42.</summary>
    public List<double> Weights { get; } = [];

    /// <summary>Gets the points that the curve runs through. The list is live. Group codes 11, 21.</summary>
    public IList<Cad2DPoint> FitPoints { get; } = new CheckedList<Cad2DPoint>("fit_points");

    /// <summary>Gets or sets the tangent at the start. Group codes 12, 22.</summary>
    public Cad2DPoint StartTangent { get; set; } = new();

    /// <summary>Gets or sets the tangent at the end. Group codes 13, 23.</summary>
    public Cad2DPoint EndTangent { get; set; } = new();

    bool ICadBoundaryPathEntity.ReadField(int code, FieldReader reader)
    {
        switch (code)
        {
            case 94:
                Degree = reader.GetInt();
                return true;
            case 73:
                Rational = reader.GetInt() != 0;
                return true;
            case 74:
                Periodic = reader.GetInt() != 0;
                return true;
            case 95:
                KnotValues.EnsureCapacity(reader.GetCount());
                return true;
            case 96:
                ControlPoints.EnsureCapacity(reader.GetCount());
                return true;
            case 40:
                KnotValues.Add(reader.GetDouble());
                return true;
            case 42:
                Weights.Add(reader.GetDouble());
                return true;
            default:
                return FieldLists.TryRead(code, 10, ControlPoints, reader)
                    || FieldLists.TryRead(code, 11, FitPoints, reader)
                    || ReadTangents(code, reader);
        }
    }

    void ICadBoundaryPathEntity.Exchange(ObjectExchange fields)
    {
        Degree = fields.Int32(94, Degree);
        Rational = fields.Bool(73, Rational);
        Periodic = fields.Bool(74, Periodic);
        int knots = fields.Count(95, KnotValues.Count);
        int points = fields.Count(96, ControlPoints.Count);
        fields.Items(40, KnotValues, knots);
        for (int i = 0; i < points; i++)
        {
            fields.Point(10, fields.Item(ControlPoints, i));
            if (Rational)
            {
                fields.ItemAt(42, Weights, i, 1);
            }
        }

        if (fields.Includes(2010, true))
        {
            ExchangeFit(fields);
        }
    }

    private bool ReadTangents(int code, FieldReader reader)
    {
        switch (code)
        {
            case 12:
                StartTangent.X = reader.GetDouble();
                break;
            case 22:
                StartTangent.Y = reader.GetDouble();
                break;
            case 13:
                EndTangent.X = reader.GetDouble();
                break;
            case 23:
                EndTangent.Y = reader.GetDouble();
                break;
            default:
                return false;
        }

        _hasTangents = true;
        return true;
    }

    private void ExchangeFit(ObjectExchange fields)
    {
        fields.Points(11, FitPoints, fields.Count(97, FitPoints.Count));
        if (fields.Includes(0, _hasTangents || FitPoints.Count > 0))
        {
            _hasTangents |= fields.IsReading;
            fields.Point(12, StartTangent);
            fields.Point(13, EndTangent);
        }
    }

    /// <inheritdoc/>
    void ICadBoundaryPathEntity.ExchangeBits(BitExchange fields)
    {
        Degree = fields.BitLong(Degree);
        Rational = fields.Bit(Rational);
        Periodic = fields.Bit(Periodic);
        int knots = fields.CountLong(KnotValues.Count);
        int points = fields.CountLong(ControlPoints.Count);
        fields.Doubles(KnotValues, knots);
        fields.Resize(Weights, Rational ? points : 0);
        for (int i = 0; i < points; i++)
        {
            fields.RawPoint2(fields.Item(ControlPoints, i));
            if (Rational)
            {
                double weight = fields.BitDouble(i < Weights.Count ? Weights[i] : 1);
                if (fields.IsReading)
                {
                    Weights[i] = weight;
                }
            }
        }

        if (fields.Release >= 2010)
        {
            ExchangeFitBits(fields);
        }
    }

    private void ExchangeFitBits(BitExchange fields)
    {
        int count = fields.CountLong(FitPoints.Count);
        for (int i = 0; i < count; i++)
        {
            fields.RawPoint2(fields.Item(FitPoints, i));
        }

        if (count > 0)
        {
            _hasTangents |= fields.IsReading;
            fields.RawPoint2(StartTangent);
            fields.RawPoint2(EndTangent);
        }
    }
}
