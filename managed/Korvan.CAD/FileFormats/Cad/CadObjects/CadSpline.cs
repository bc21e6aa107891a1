using System;
using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A rational or plain B-spline curve.</summary>
[CadObject("SPLINE", Subclass = "AcDbSpline", HandWritten = true)]
[CadBits("ExchangeSpline()")]
public partial class CadSpline : CadEntityBase
{
    private const int FitDegree = 3;

    // What records of fit points do not state.
    private const short PlanarFromFit = 0x428;
    private const double KnotOfFit = 1e-9;
    private const double PointOfFit = 1e-10;

    /// <summary>Creates the object with its defaults.</summary>
    public CadSpline()
    {
    }

    /// <summary>Gets or sets the unit normal of the plane of a flat curve; (0, 0, 0) for none. Group codes 210, 220,
    /// 230.</summary>
    [Cad3DPoint(210)]
    public Cad3DPoint ExtrusionDirection { get; set; } = new();

    /// <summary>Gets or sets bits: 1 closed, 2 periodic, 4 rational, 8 flat, 16 straight. Group code 70.</summary>
    [CadShort(70)]
    public short Flag { get; set; }

    /// <summary>Gets or sets the degree. Group code 71.</summary>
    [CadShort(71)]
    public short Degree { get; set; } = 3;

    /// <summary>Gets or sets how near knots have to be to count as equal. Group code 42.</summary>
    [CadDouble(42)]
    public double KnotTolerance { get; set; } = 1e-7;

    /// <summary>Gets or sets how near control points have to be to count as equal. Group code 43.</summary>
    [CadDouble(43)]
    public double ControlPointTolerance { get; set; } = 1e-7;

    /// <summary>Gets or sets how near the curve comes to its fit points. Group code 44.</summary>
    [CadDouble(44)]
    public double FitTolerance { get; set; } = 1e-10;

    /// <summary>Gets or sets the tangent at the start of a curve through fit points; (0, 0, 0) for none. Group codes
    /// 12, 22, 32.</summary>
    [Cad3DPoint(12)]
    public Cad3DPoint StartTangent { get; set; } = new();

    /// <summary>Gets or sets the tangent at the end of a curve through fit points; (0, 0, 0) for none. Group codes
    /// 13, 23, 33.</summary>
    [Cad3DPoint(13)]
    public Cad3DPoint EndTangent { get; set; } = new();

    /// <summary>Gets the knots. The list is live. Group code 40.</summary>
    public List<double> KnotValues { get; } = [];

    /// <summary>Gets the weights of the control points; empty where all are 1. The list is live. Group code
    /// 41.</summary>
    public List<double> Weights { get; } = [];

    /// <summary>Gets the control points, in world coordinates. The list is live. Group codes 10, 20, 30.</summary>
    public IList<Cad3DPoint> ControlPoints { get; } = new CheckedList<Cad3DPoint>("control_points");

    /// <summary>Gets the points that the curve runs through, in world coordinates. The list is live. Group codes 11,
    /// 21, 31.</summary>
    public IList<Cad3DPoint> FitPoints { get; } = new CheckedList<Cad3DPoint>("fit_points");

    /// <summary>Gets whether the curve is closed.</summary>
    public bool IsClosed => (Flag & 1) != 0;

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        taken = true;
        switch (code)
        {
            case 72:
                KnotValues.EnsureCapacity(reader.GetCount());
                break;
            case 73:
                ControlPoints.EnsureCapacity(reader.GetCount());
                break;
            case 74:
                FitPoints.EnsureCapacity(reader.GetCount());
                break;
            case 40:
                KnotValues.Add(reader.GetDouble());
                break;
            case 41:
                Weights.Add(reader.GetDouble());
                break;
            default:
                taken = FieldLists.TryRead(code, 10, ControlPoints, reader)
                    || FieldLists.TryRead(code, 11, FitPoints, reader);
                break;
        }
    }

    partial void OnExchange(ObjectExchange fields)
    {
        if (fields.Includes(0, !ExtrusionDirection.Is(0, 0, 0)))
        {
            fields.Point(210, ExtrusionDirection);
        }

        Flag = fields.Int16(70, Flag);
        Degree = fields.Int16(71, Degree);
        (List<double> knotValues, IList<Cad3DPoint> points) = (KnotValues, ControlPoints);
        if (fields.HasWholeSplines && ControlPoints.Count == 0 && Degree == FitDegree)
        {
            (knotValues, List<Vec3> derived) = DeriveControlPoints();
            points = derived.ConvertAll(ModelVectors.ToPoint);
        }

        int knots = fields.Count(72, knotValues.Count);
        int controlPoints = fields.Count(73, points.Count);
        int fitPoints = fields.Count(74, FitPoints.Count);
        KnotTolerance = fields.Double(42, KnotTolerance);
        ControlPointTolerance = fields.Double(43, ControlPointTolerance);
        ExchangeFit(fields, fitPoints);
        fields.Items(40, knotValues, knots);
        fields.Items(41, Weights, fields.Count(0, Weights.Count));
        fields.Points(10, points, controlPoints);
        fields.Points(11, FitPoints, fitPoints);
    }

    private void ExchangeFit(ObjectExchange fields, int points)
    {
        if (fields.Includes(0, points > 0))
        {
            FitTolerance = fields.Double(44, FitTolerance);
        }

        if (fields.Includes(0, !StartTangent.Is(0, 0, 0)))
        {
            fields.Point(12, StartTangent);
        }

        if (fields.Includes(0, !EndTangent.Is(0, 0, 0)))
        {
            fields.Point(13, EndTangent);
        }
    }

    private void ExchangeSpline(BitExchange fields)
    {
        const int controlPoints = 1;
        const int onlyFitPoints = 2;
        const int closedSince2013 = 4;
        const int customKnots = 15;
        bool isFit = !fields.IsReading && FitPoints.Count > 0 && (ControlPoints.Count == 0 || FollowsFitPoints());
        bool isClosedFit = false;
        if (isFit && IsClosed && fields.Release < 2013 && ControlPoints.Count == 0)
        {
            // Older records of fit points do not say that the curve is closed.
            WithControlPoints().ExchangeSpline(fields);
            return;
        }

        int scenario = fields.BitLong(isFit ? onlyFitPoints : controlPoints);
        if (fields.Release >= 2013)
        {
            int flags = fields.BitLong(isFit ? 1 | (IsClosed ? closedSince2013 : 0) : 0);
            int knots = fields.BitLong(isFit ? 0 : customKnots);
            scenario = fields.IsReading && (flags & 1) != 0 && knots != customKnots ? onlyFitPoints : scenario;
            isClosedFit = (flags & closedSince2013) != 0;
        }

        Degree = (short)fields.BitLong(Degree);
        if (scenario == onlyFitPoints)
        {
            ExchangeFitPoints(fields);
            Flag |= (short)(fields.IsReading && isClosedFit ? 1 : 0);
        }
        else
        {
            ExchangeControlPoints(fields);
        }
    }

    private void ExchangeFitPoints(BitExchange fields)
    {
        FitTolerance = fields.BitDouble(FitTolerance);
        fields.Point3(StartTangent);
        fields.Point3(EndTangent);
        fields.Points3(FitPoints, fields.CountLong(FitPoints.Count));
        if (fields.IsReading)
        {
            (Flag, KnotTolerance, ControlPointTolerance) = (PlanarFromFit, KnotOfFit, PointOfFit);
        }
    }

    private CadSpline WithControlPoints()
    {
        (List<double> knots, List<Vec3> points) = DeriveControlPoints();
        CadSpline spline = new() { Flag = Flag, Degree = FitDegree };
        spline.KnotValues.AddRange(knots);
        points.ForEach(point => spline.ControlPoints.Add(point.ToPoint()));
        return spline;
    }

    private (List<double> Knots, List<Vec3> Points) DeriveControlPoints() => FitSpline.ControlsOf(
        FitPoints.ConvertAll(static point => point.ToVec3()), StartTangent.ToVec3(), EndTangent.ToVec3(), IsClosed);

    // Records have either; those that follow from the others are not lost.
    private bool FollowsFitPoints()
    {
        const double tolerance = 1e-7;
        bool isUsual = (Flag, KnotTolerance, ControlPointTolerance) == (PlanarFromFit, KnotOfFit, PointOfFit);
        if (!isUsual || Degree != FitDegree || Weights.Count > 0 || FitPoints.Count + 2 != ControlPoints.Count)
        {
            return false;
        }

        (List<double> knots, List<Vec3> points) = DeriveControlPoints();
        double room = knots.Count > 0 ? knots[^1] * tolerance : 0;
        bool follows = knots.Count == KnotValues.Count && points.Count == ControlPoints.Count;
        for (int i = 0; follows && i < points.Count; i++)
        {
            follows = (points[i] - ControlPoints[i].ToVec3()).Length <= room;
        }

        for (int i = 0; follows && i < knots.Count; i++)
        {
            follows = Math.Abs(knots[i] - KnotValues[i]) <= room;
        }

        return follows;
    }

    private void ExchangeControlPoints(BitExchange fields)
    {
        const int closed = 1;
        const int periodic = 2;
        const int rational = 4;
        const int planar = 8;
        bool isRational = fields.Bit((Flag & rational) != 0);
        bool isClosed = fields.Bit((Flag & closed) != 0);
        bool isPeriodic = fields.Bit((Flag & periodic) != 0);
        KnotTolerance = fields.BitDouble(KnotTolerance);
        ControlPointTolerance = fields.BitDouble(ControlPointTolerance);
        int knots = fields.CountLong(KnotValues.Count);
        int points = fields.CountLong(ControlPoints.Count);
        bool hasWeights = fields.Bit(Weights.Count > 0);
        fields.Doubles(KnotValues, knots);
        fields.Resize(Weights, hasWeights ? points : 0);
        for (int i = 0; i < points; i++)
        {
            fields.Point3(fields.Item(ControlPoints, i));
            if (hasWeights)
            {
                Weights[i] = fields.BitDouble(Weights[i]);
            }
        }

        Flag = fields.IsReading ? (short)(planar | (isRational ? rational : 0) | (isClosed ? closed : 0)
            | (isPeriodic ? periodic : 0)) : Flag;
    }
}
