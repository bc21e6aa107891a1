using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Acis;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The space that entities take; lines without end take none.</summary>
/// <param name="extents">Where it is added.</param>
/// <param name="texts">What knows the boxes of texts; without it a text takes no more than its insertion point.</param>
internal class EntityExtents(Extents extents, TextBoxes? texts = null) : IGeometrySink
{
    private const double SplineTolerance = 1e-6;
    private const double SmallestTolerance = 1e-9;

    protected Extents Extents => extents;

    internal static void Add(CadEntityBase entity, Extents extents) =>
        EntityGeometry.Emit(entity, new EntityExtents(extents));

    void IGeometrySink.Point(Vec3 at) => extents.Add(at);

    void IGeometrySink.Line(Vec3 from, Vec3 to, Vec3 thickness)
    {
        extents.Add(from);
        extents.Add(to);
    }

    void IGeometrySink.Arc(in PlanarArc arc) =>
        AddArc(arc.Plane, arc.Center, arc.Radius, arc.Start, arc.Sweep);

    void IGeometrySink.EllipticArc(in EllipticArc arc) =>
        extents.AddArc(arc.Center, arc.Major, arc.Minor, arc.Start, arc.Sweep);

    void IGeometrySink.Spline(in SplineCurve spline)
    {
        double size = 0;
        foreach (Vec3 point in spline.Control)
        {
            size = Math.Max(size, (point - spline.Control[0]).Length);
        }

        SplineCurve curve = spline;
        double tolerance = Math.Max(size * SplineTolerance, SmallestTolerance);
        bool drawn = false;
        extents.AddPath(pen => drawn = curve.TryDraw(pen, tolerance));
        if (!drawn)
        {
            spline.Control.ForEach(extents.Add);
            spline.Fit.ForEach(extents.Add);
        }
    }

    void IGeometrySink.Polyline(in PlanarPolyline polyline, ReadOnlySpan<PolyVertex> vertices)
    {
        for (int i = 0; i < vertices.Length; i++)
        {
            Vec2 from = vertices[i].Point;
            Vec2 to = vertices[(i + 1) % vertices.Length].Point;
            bool hasSegment = i + 1 < vertices.Length || polyline.IsClosed;
            extents.Add(polyline.Plane.Point(new Vec3(from.X, from.Y, polyline.Elevation)));
            if (hasSegment && BulgeArc.TryCreate(from, to, vertices[i].Bulge, out BulgeArc arc))
            {
                Vec3 center = new(arc.Center.X, arc.Center.Y, polyline.Elevation);
                AddArc(polyline.Plane, center, arc.Radius, arc.Start, arc.Sweep);
            }
        }
    }

    void IGeometrySink.Polyline(ReadOnlySpan<Vec3> points, bool closed) => AddAll(points);

    void IGeometrySink.Grid(in PointGrid grid) => grid.Points.ForEach(extents.Add);

    void IGeometrySink.Face(ReadOnlySpan<Vec3> corners, int hiddenEdges) => AddAll(corners);

    void IGeometrySink.Faces(FaceSet faces) => faces.Points.ForEach(extents.Add);

    void IGeometrySink.Quad(in FilledQuad quad)
    {
        foreach (Vec3 corner in (ReadOnlySpan<Vec3>)[quad.A, quad.B, quad.C, quad.D])
        {
            extents.Add(quad.Plane.Point(corner));
        }
    }

    void IGeometrySink.Hatch(CadHatch hatch, in Affine3 plane)
    {
        foreach (CadHatchBoundaryPathContainer boundary in hatch.BoundaryPaths)
        {
            EntityGeometry.EmitBoundary(boundary, plane, hatch.ElevationPoint.Z, this);
        }
    }

    void IGeometrySink.Edges(AcisWireframe edges) => EntityGeometry.EmitEdges(edges, this);

    void IGeometrySink.Text(in TextLine text)
    {
        if (!IsShown(text))
        {
            return;
        }

        if (texts is null || !texts.TryAdd(text, extents))
        {
            extents.Add(text.Plane.Point(text.Anchor));
        }
    }

    void IGeometrySink.Paragraphs(CadMText text, in Affine3 plane)
    {
        if (texts is null || !texts.TryAdd(text, plane, extents))
        {
            extents.Add(plane.Origin);
        }
    }

    void IGeometrySink.Tolerance(CadTolerance tolerance, in Affine3 plane) => extents.Add(plane.Origin);

    void IGeometrySink.Image(in ImageFrame image)
    {
        extents.Add(image.Corner);
        extents.Add(image.Corner + image.Across);
        extents.Add(image.Corner + image.Up);
        extents.Add(image.Corner + image.Across + image.Up);
    }

    void IGeometrySink.Frame(in ContentFrame frame) => AddAll(frame.Corners);

    void IGeometrySink.Leader(CadLeader leader, List<Vec3> points) => points.ForEach(extents.Add);

    void IGeometrySink.MultiLine(CadMultiLine line) =>
        line.Vertices.ForEach(vertex => extents.Add(vertex.Location.ToVec3()));

    void IGeometrySink.MultiLeader(CadMLeader leader)
    {
        foreach (CadMLeaderNode branch in leader.ContextData.LeaderNodes)
        {
            extents.Add(branch.LastLeaderLinePoint.ToVec3());
            branch.LeaderLines.ForEach(line => line.Vertices.ForEach(vertex => extents.Add(vertex.ToVec3())));
        }

        if (leader.ContextData.HasText)
        {
            extents.Add(leader.ContextData.TextLocation.ToVec3());
        }
    }

    void IGeometrySink.Table(CadTableEntity table, in Affine3 map)
    {
        extents.Add(map.Origin);
        AddTable(table, map);
    }

    void IGeometrySink.Shape(CadShape shape, Vec3 at) => extents.Add(at);

    void IGeometrySink.BlockReference(CadInsertObject insert) => AddReference(insert);

    void IGeometrySink.Dimension(CadDimensionBase dimension) => AddDimension(dimension);

    /// <summary>Whether a text is seen where it stands.</summary>
    protected virtual bool IsShown(in TextLine text) => true;

    /// <summary>Adds what a block reference shows; alone it has no block to show.</summary>
    protected virtual void AddReference(CadInsertObject insert)
    {
    }

    protected virtual void AddTable(CadTableEntity table, in Affine3 map)
    {
    }

    protected virtual void AddDimension(CadDimensionBase dimension)
    {
    }

    private void AddAll(ReadOnlySpan<Vec3> points)
    {
        foreach (Vec3 point in points)
        {
            extents.Add(point);
        }
    }

    private void AddArc(in Affine3 plane, Vec3 center, double radius, double start, double sweep) =>
        extents.AddArc(plane.Point(center), plane.AxisX * radius, plane.AxisY * radius, start, sweep);
}
