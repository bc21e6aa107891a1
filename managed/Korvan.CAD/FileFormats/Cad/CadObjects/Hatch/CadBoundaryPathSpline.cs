using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dxf;

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

    bool ICadBoundaryPathEntity.ReadCode(int code, DxfTagReader tags)
    {
        switch (code)
        {
            case 94:
                Degree = tags.GetInt();
                return true;
            case 73:
                Rational = tags.GetInt() != 0;
                return true;
            case 74:
                Periodic = tags.GetInt() != 0;
                return true;
            case 95:
                KnotValues.EnsureCapacity(tags.GetCount());
                return true;
            case 96:
                ControlPoints.EnsureCapacity(tags.GetCount());
                return true;
            case 40:
                KnotValues.Add(tags.GetDouble());
                return true;
            case 42:
                Weights.Add(tags.GetDouble());
                return true;
            default:
                return PointLists.TryRead(code, 10, ControlPoints, tags)
                    || PointLists.TryRead(code, 11, FitPoints, tags)
                    || ReadTangents(code, tags);
        }
    }

    void ICadBoundaryPathEntity.WriteCodes(DxfTagWriter writer)
    {
        writer.Write(94, Degree);
        writer.Write(73, Rational ? 1 : 0);
        writer.Write(74, Periodic ? 1 : 0);
        writer.Write(95, KnotValues.Count);
        writer.Write(96, ControlPoints.Count);
        KnotValues.ForEach(knot => writer.Write(40, knot));
        for (int i = 0; i < ControlPoints.Count; i++)
        {
            writer.Write(10, ControlPoints[i]);
            if (Rational)
            {
                writer.Write(42, i < Weights.Count ? Weights[i] : 1);
            }
        }

        if (writer.Release >= 2010)
        {
            WriteFit(writer);
        }
    }

    private bool ReadTangents(int code, DxfTagReader tags)
    {
        switch (code)
        {
            case 12:
                StartTangent.X = tags.GetDouble();
                break;
            case 22:
                StartTangent.Y = tags.GetDouble();
                break;
            case 13:
                EndTangent.X = tags.GetDouble();
                break;
            case 23:
                EndTangent.Y = tags.GetDouble();
                break;
            default:
                return false;
        }

        _hasTangents = true;
        return true;
    }

    private void WriteFit(DxfTagWriter writer)
    {
        writer.Write(97, FitPoints.Count);
        FitPoints.ForEach(point => writer.Write(11, point));
        if (_hasTangents || FitPoints.Count > 0)
        {
            writer.Write(12, StartTangent);
            writer.Write(13, EndTangent);
        }
    }
}
