using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Vectorizing;

/// <summary>Converts an image to a drawing.</summary>
internal sealed class Vectorizer
{
    private const double MillimetresPerInch = 25.4;
    private const double DefaultResolution = 96;
    private const int Millimetres = 4;

    /// <summary>The standard line weights of drawings, in hundredths of a millimetre.</summary>
    private static readonly short[] Weights =
        [0, 5, 9, 13, 15, 18, 20, 25, 30, 35, 40, 50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211];

    private readonly VectorizationOptions _options;
    private readonly CadDrawing _drawing = new(DrawingSeed.Standard);
    private readonly double _unit;
    private readonly int _height;

    private Vectorizer(PixelGrid pixels, double statedResolution, VectorizationOptions options)
    {
        _options = options;
        double resolution = options.DotsPerInch > 0 ? options.DotsPerInch : statedResolution;
        _unit = MillimetresPerInch / (resolution > 0 ? resolution : DefaultResolution);
        _height = pixels.Height;
        _drawing.Header.InsUnits = Millimetres;
    }

    /// <summary>Traces pixels.</summary>
    /// <param name="pixels">The pixels.</param>
    /// <param name="resolution">Pixels per inch, used where the options state none.</param>
    /// <param name="options">The methods and tolerances.</param>
    internal static CadDrawing Trace(PixelGrid pixels, double resolution, VectorizationOptions options)
    {
        var tracer = new Vectorizer(pixels, resolution, options);
        if ((options.Method & VectorizationMethod.Contour) != 0)
        {
            tracer.AddContours(ForegroundMask.FromPixels(pixels, options.Threshold));
        }

        if ((options.Method & VectorizationMethod.PaperToCad) != 0)
        {
            tracer.AddStrokes(ForegroundMask.FromPixels(pixels, options.Threshold));
        }

        return tracer._drawing;
    }

    private void AddContours(ForegroundMask mask)
    {
        ContourOptions options = _options.ContourOptions;
        var hatch = new CadHatch { LayerName = _options.LayerName };
        foreach (List<Vec2> contour in ContourTracer.Trace(mask))
        {
            if (Math.Abs(Polygons.SignedArea(contour.ToArray())) < options.MinimumArea)
            {
                continue;
            }

            List<Cad2DPoint> points = Simplifier.Ring(contour, options.Tolerance).ConvertAll(Placed);
            Add(points, closed: true, weight: -1);
            hatch.BoundaryPaths.Add(Boundary(points));
        }

        if (options.Fill && hatch.BoundaryPaths.Count > 0)
        {
            _drawing.Entities.Add(hatch);
        }
    }

    private void AddStrokes(ForegroundMask mask)
    {
        PaperToCadOptions options = _options.PaperToCadOptions;
        foreach (TracedStroke stroke in Skeleton.Trace(mask, options.MinimumLength))
        {
            List<Vec2> line = stroke.IsClosed
                ? Simplifier.Ring(stroke.Points, options.Tolerance) : Simplifier.Open(stroke.Points, options.Tolerance);
            double hundredths = stroke.Width * _unit * 100;
            short weight = Weights.MinBy(one => Math.Abs(one - hundredths));
            Add(line.ConvertAll(Placed), stroke.IsClosed, options.KeepLineWeights ? weight : (short)-1);
        }
    }

    private Cad2DPoint Placed(Vec2 p) => new(p.X * _unit, (_height - p.Y) * _unit);

    private void Add(List<Cad2DPoint> points, bool closed, short weight)
    {
        var line = new CadLwPolyline { LayerName = _options.LayerName, LineWeight = weight };
        line.Flag = closed ? CadLwPolylineFlag.Closed : CadLwPolylineFlag.None;
        line.Coordinates.AddRange(points);
        _drawing.Entities.Add(line);
    }

    private static CadHatchBoundaryPathContainer Boundary(List<Cad2DPoint> points)
    {
        var path = new CadPolylineBoundaryPath();
        path.Vertices.AddRange(points.ConvertAll(p => new Cad2DPoint(p.X, p.Y)));
        return new CadHatchBoundaryPathContainer(path) { PathTypeFlag = CadBoundaryPathTypeFlag.Polyline };
    }
}
