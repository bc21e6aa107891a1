using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A rational or plain B-spline curve.</summary>
[CadObject("SPLINE", Subclass = "AcDbSpline", HandWritten = true)]
public partial class CadSpline : CadEntityBase
{
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

    partial void OnReadCode(int code, DxfTagReader tags, ref bool taken)
    {
        taken = true;
        switch (code)
        {
            case 72:
                KnotValues.EnsureCapacity(tags.GetCount());
                break;
            case 73:
                ControlPoints.EnsureCapacity(tags.GetCount());
                break;
            case 74:
                FitPoints.EnsureCapacity(tags.GetCount());
                break;
            case 40:
                KnotValues.Add(tags.GetDouble());
                break;
            case 41:
                Weights.Add(tags.GetDouble());
                break;
            default:
                taken = PointLists.TryRead(code, 10, ControlPoints, tags)
                    || PointLists.TryRead(code, 11, FitPoints, tags);
                break;
        }
    }

    partial void OnWriteCodes(DxfTagWriter writer)
    {
        if (!ExtrusionDirection.Is(0, 0, 0))
        {
            writer.Write(210, ExtrusionDirection);
        }

        writer.Write(70, Flag);
        writer.Write(71, Degree);
        writer.Write(72, KnotValues.Count);
        writer.Write(73, ControlPoints.Count);
        writer.Write(74, FitPoints.Count);
        writer.Write(42, KnotTolerance);
        writer.Write(43, ControlPointTolerance);
        WriteFit(writer);
        KnotValues.ForEach(knot => writer.Write(40, knot));
        Weights.ForEach(weight => writer.Write(41, weight));
        ControlPoints.ForEach(point => writer.Write(10, point));
        FitPoints.ForEach(point => writer.Write(11, point));
    }

    private void WriteFit(DxfTagWriter writer)
    {
        if (FitPoints.Count > 0)
        {
            writer.Write(44, FitTolerance);
        }

        if (!StartTangent.Is(0, 0, 0))
        {
            writer.Write(12, StartTangent);
        }

        if (!EndTangent.Is(0, 0, 0))
        {
            writer.Write(13, EndTangent);
        }
    }
}
