using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>Makes entities that every release has of the shapes that newer entities consist of.</summary>
internal sealed partial class PlainEntities : IGeometrySink
{
    private const double LevelTolerance = 1e-9;

    private readonly CadDrawing _drawing;
    private readonly PlainTexts _texts;
    private readonly FreeBlockNames _names;
    private readonly Func<CadText, double> _measure;
    private readonly int _release;
    private readonly Lazy<(Vec3 Center, double Size)> _extents;
    private List<CadEntityBase> _made = [];
    private CadEntityBase _source = new CadPoint();

    /// <summary>Creates the converter.</summary>
    /// <param name="drawing">The drawing, a copy that may be changed.</param>
    /// <param name="release">The release that is written, as a year.</param>
    /// <param name="measure">Returns the width of a line of text.</param>
    internal PlainEntities(CadDrawing drawing, int release, Func<CadText, double> measure)
    {
        _drawing = drawing;
        _release = release;
        _measure = measure;
        _texts = new PlainTexts(drawing, measure);
        _names = new FreeBlockNames(drawing, "*X");
        _extents = new Lazy<(Vec3, double)>(Extents);
    }

    /// <summary>Gets the blocks that hold the lines of hatches, to be added to the drawing.</summary>
    internal List<CadBlockEntity> Blocks { get; } = [];

    /// <summary>Returns what stands for an entity; nothing where its shape is not known.</summary>
    internal List<CadEntityBase> Of(CadEntityBase entity)
    {
        _source = entity;
        _made = [];
        switch (entity)
        {
            case CadLwPolyline polyline:
                Add(Polyline(polyline));
                break;
            case CadDimensionBase dimension:
                AddGraphics(dimension);
                break;
            default:
                EntityGeometry.Emit(entity, this);
                break;
        }

        return _made;
    }

    void IGeometrySink.Point(Vec3 at) => Add(new CadPoint { CenterPoint = ToPoint(at) });

    void IGeometrySink.Line(Vec3 from, Vec3 to, Vec3 thickness) => AddLine(from, to);

    void IGeometrySink.InfiniteLine(Vec3 from, Vec3 direction, bool bothWays)
    {
        (Vec3 center, double size) = _extents.Value;
        Vec3 reach = direction.Unit() * ((center - from).Length + size);
        AddLine(bothWays ? from - reach : from, from + reach);
    }

    void IGeometrySink.Arc(in PlanarArc arc)
    {
        PlanarArc own = arc;
        double size = arc.Plane.Vector(new Vec3(arc.Radius, arc.Radius, 0)).Length * 2;
        AddPolyline(SpaceCurve.Flatten(size, (in PathPen pen, double _) =>
        {
            var local = new EllipticArc(
                own.Plane.Point(own.Center),
                own.Plane.Vector(new Vec3(own.Radius, 0, 0)),
                own.Plane.Vector(new Vec3(0, own.Radius, 0)),
                own.Start,
                own.Sweep);
            Draw(pen, local);
        }), arc.IsCircle);
    }

    void IGeometrySink.EllipticArc(in EllipticArc arc)
    {
        EllipticArc own = arc;
        double size = 2 * (arc.Major.Length + arc.Minor.Length);
        AddPolyline(SpaceCurve.Flatten(size, (in PathPen pen, double _) => Draw(pen, own)), arc.IsWhole);
    }

    void IGeometrySink.Spline(in SplineCurve spline)
    {
        SplineCurve own = spline;
        double size = SpaceCurve.SizeOf(spline.Curve is null ? spline.Fit : spline.Control);
        List<Vec3> points = SpaceCurve.Flatten(
            size, (in PathPen pen, double tolerance) => own.TryDraw(pen, tolerance));
        bool closed = points.Count > 2 && (points[0] - points[^1]).Length <= size * 1e-9;
        AddPolyline(points, closed);
    }

    void IGeometrySink.Polyline(in PlanarPolyline polyline, ReadOnlySpan<PolyVertex> vertices)
    {
        var path = new PathBuffer();
        IGeometrySink outline = new OutlineSink(path, Affine3.Identity);
        outline.Polyline(polyline with { Plane = Affine3.Identity, Elevation = 0 }, vertices);
        foreach (FlatLine line in FlatLine.Of(path, Math.Max((path.Bounds.Width + path.Bounds.Height) * 1e-4, 1e-9)))
        {
            List<Vec3> points = [];
            foreach (Vec2 p in line.Points)
            {
                points.Add(polyline.Plane.Point(new Vec3(p.X, p.Y, polyline.Elevation)));
            }

            AddPolyline(points, polyline.IsClosed);
        }
    }

    void IGeometrySink.Polyline(ReadOnlySpan<Vec3> points, bool closed) => AddPolyline([.. points], closed);

    void IGeometrySink.Image(in ImageFrame image)
    {
        Vec3 corner = image.Corner;
        AddPolyline([corner, corner + image.Across, corner + image.Across + image.Up, corner + image.Up], true);
    }

    void IGeometrySink.Faces(FaceSet faces)
    {
        const int pointFlags = 192;
        CadPolyFaceMesh mesh = new();
        foreach (Vec3 point in faces.Points)
        {
            mesh.Vertices.Add(new CadVertexPolyFaceMesh { LocationPoint = ToPoint(point), VertexFlags = pointFlags });
        }

        foreach (FaceCorners face in faces.Faces)
        {
            AddFace(mesh, faces, face);
        }

        mesh.MeshMVertexCount = (short)Math.Min(faces.Points.Count, short.MaxValue);
        mesh.MeshNVertexCount = (short)Math.Min(mesh.Vertices.Count - faces.Points.Count, short.MaxValue);
        if (faces.Points.Count is > 0 and <= short.MaxValue)
        {
            Add(mesh);
        }
    }

    void IGeometrySink.Table(CadTableEntity table, in Affine3 map)
    {
        if (TableBlocks.HasBlock(_drawing, table))
        {
            Add(new CadInsertObject
            {
                Name = table.Name,
                InsertionPoint = ToPoint(map.Origin),
                RotationAngle = Angles.Degrees(Math.Atan2(map.AxisX.Y, map.AxisX.X)),
            });
        }
    }

    void IGeometrySink.MultiLine(CadMultiLine line)
    {
        int elements = 0;
        line.Vertices.ForEach(vertex => elements = Math.Max(elements, vertex.ElementParameters.Count));
        for (int element = 0; element < elements; element++)
        {
            List<Vec3> points = [];
            foreach (CadMultiLineVectorBlock vertex in line.Vertices)
            {
                List<double> lengths = element < vertex.ElementParameters.Count
                    ? vertex.ElementParameters[element]
                    : [];
                points.Add(vertex.Location.ToVec3()
                    + (vertex.Miter.ToVec3() * (lengths.Count > 0 ? lengths[0] : 0)));
            }

            AddPolyline(points, (line.Flags & CadMultiLineFlag.Closed) != 0);
        }
    }

    void IGeometrySink.Hatch(CadHatch hatch, in Affine3 plane)
    {
        CadBlockEntity? block = HatchBlock.Of(hatch, plane, made => Like(hatch, made));
        if (block is null)
        {
            return;
        }

        block.Name = block.NameAgain = _names.Next();
        Blocks.Add(block);
        Add(new CadInsertObject { Name = block.Name });
    }

    private static void Draw(in PathPen pen, in EllipticArc arc)
    {
        (double sin, double cos) = Math.SinCos(arc.Start);
        pen.MoveTo(arc.Center + (arc.Major * cos) + (arc.Minor * sin));
        pen.EllipseTo(arc.Center, arc.Major, arc.Minor, arc.Start, arc.Sweep);
    }

    // Faces of more than four corners become fans, whose inner edges are hidden.
    private static void AddFace(CadPolyFaceMesh mesh, FaceSet faces, FaceCorners face)
    {
        short Corner(int at, bool hidden)
        {
            short index = (short)(faces.Corners[face.First + at] + 1);
            return hidden ? (short)-index : index;
        }

        if (face.Count is 3 or 4)
        {
            mesh.Vertices.Add(new CadFaceRecord
            {
                VertexIndex1 = Corner(0, false),
                VertexIndex2 = Corner(1, false),
                VertexIndex3 = Corner(2, false),
                VertexIndex4 = face.Count == 4 ? Corner(3, false) : (short)0,
            });
            return;
        }

        for (int i = 1; i + 1 < face.Count; i++)
        {
            mesh.Vertices.Add(new CadFaceRecord
            {
                VertexIndex1 = Corner(0, i > 1),
                VertexIndex2 = Corner(i, false),
                VertexIndex3 = Corner(i + 1, i + 2 < face.Count),
            });
        }
    }

    private static CadPolyline Polyline(CadLwPolyline source)
    {
        CadPolyline polyline = new()
        {
            Flag = (source.IsClosed ? CadPolylineFlag.Closed : CadPolylineFlag.None)
                | ((source.Flag & CadLwPolylineFlag.Plinegen) != 0 ? CadPolylineFlag.Plinegen : CadPolylineFlag.None),
            Elevation = new Cad3DPoint(0, 0, source.Elevation),
            Thickness = source.Thickness,
            StartWidth = source.ConstantWidth,
            EndWidth = source.ConstantWidth,
            ExtrusionDirection = source.ExtrusionDirection,
        };
        for (int i = 0; i < source.Coordinates.Count; i++)
        {
            polyline.Vertices.Add(new Cad2DVertex
            {
                LocationPoint = new Cad3DPoint(source.Coordinates[i].X, source.Coordinates[i].Y, source.Elevation),
                StartWidth = source.StartWidthAt(i),
                EndWidth = source.EndWidthAt(i),
                Bulge = source.BulgeAt(i),
            });
        }

        return polyline;
    }

    private void AddGraphics(CadDimensionBase dimension)
    {
        if (_drawing.BlockEntities.Contains(dimension.BlockName))
        {
            Add(new CadInsertObject { Name = dimension.BlockName, InsertionPoint = dimension.InsertionPoint });
        }
    }

    private void AddLine(Vec3 from, Vec3 to) =>
        Add(new CadLine { FirstPoint = ToPoint(from), SecondPoint = ToPoint(to) });

    // Level ones are polylines of the plane, since those in space have no line type.
    private void AddPolyline(List<Vec3> points, bool closed)
    {
        if (closed && points.Count > 2 && points[0] == points[^1])
        {
            points.RemoveAt(points.Count - 1);
        }

        if (points.Count < 2)
        {
            return;
        }

        double rounding = LevelTolerance * SpaceCurve.SizeOf(points);
        bool level = points.TrueForAll(p => Math.Abs(p.Z - points[0].Z) <= rounding);
        CadPolylineBase polyline = level ? new CadPolyline() : new CadPolyline3D();
        polyline.Flag |= closed ? CadPolylineFlag.Closed : CadPolylineFlag.None;
        polyline.Elevation = new Cad3DPoint(0, 0, level ? points[0].Z : 0);
        foreach (Vec3 point in points)
        {
            CadVertexBase vertex = level ? new Cad2DVertex() : new Cad3DVertex();
            vertex.LocationPoint = ToPoint(level ? new Vec3(point.X, point.Y, points[0].Z) : point);
            polyline.Vertices.Add(vertex);
        }

        Add(polyline);
    }

    private void Add(CadEntityBase made)
    {
        Like(_source, made);
        if (made is CadPolylineBase polyline)
        {
            polyline.Vertices.ForEach(vertex => Like(_source, vertex));
        }

        _made.Add(made);
    }

    private static void Like(CadEntityBase source, CadEntityBase made)
    {
        made.StoredLayer = source.StoredLayer;
        made.LineTypeName = source.LineTypeName;
        made.LinetypeScale = source.LinetypeScale;
        made.LineWeight = source.LineWeight;
        made.StoredColor = source.StoredColor;
        made.ColorValue = source.ColorValue;
        made.ColorName = source.ColorName;
        made.Transparency = source.Transparency;
        made.SpaceMode = source.SpaceMode;
        made.LayoutTabName = source.LayoutTabName;
    }

    private (Vec3 Center, double Size) Extents()
    {
        (Cad3DPoint min, Cad3DPoint max) = DrawingExtents.OfModel(_drawing, null);
        Vec3 size = max.ToVec3() - min.ToVec3();
        return ((min.ToVec3() + max.ToVec3()) * 0.5, Math.Max(size.Length, 1));
    }

    private static Cad3DPoint ToPoint(Vec3 v) => v.ToPoint();
}
