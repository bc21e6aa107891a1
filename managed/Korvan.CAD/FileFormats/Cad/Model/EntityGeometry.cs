using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;
using Korvan.CAD.FileFormats.Cad.Model.Proxy;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Says what an entity consists of.</summary>
internal static partial class EntityGeometry
{
    private static readonly Dictionary<Type, Action<CadEntityBase, IGeometrySink>> Emitters = new()
    {
        On<CadPoint>((point, sink) => sink.Point(point.CenterPoint.ToVec3())),
        On<CadLine>(EmitLine),
        On<CadRay>((ray, sink) => sink.InfiniteLine(ray.FirstPoint.ToVec3(), ray.UnitDirection.ToVec3(), false)),
        On<CadXLine>((line, sink) => sink.InfiniteLine(line.FirstPoint.ToVec3(), line.UnitDirection.ToVec3(), true)),
        On<CadCircle>(EmitCircle),
        On<CadArc>(EmitArc),
        On<CadEllipse>(EmitEllipse),
        On<CadSpline>((spline, sink) => sink.Spline(SplineOf(spline))),
        On<CadLwPolyline>(EmitPolyline),
        On<CadPolyline>(EmitPolyline),
        On<CadPolyline3D>(EmitPolyline),
        On<CadPolygonMesh>(EmitGrid),
        On<CadPolyFaceMesh>(EmitFaces),
        On<CadMesh>(EmitFaces),
        On<CadSolid>((s, sink) => sink.Quad(QuadOf(s, s.FirstPoint, s.SecondPoint, s.ThirdPoint, s.FourthPoint))),
        On<CadTrace>((t, sink) => sink.Quad(QuadOf(t, t.FirstPoint, t.SecondPoint, t.ThirdPoint, t.FourthPoint))),
        On<Cad3DFace>(EmitFace),
        On<CadHatch>((hatch, sink) => sink.Hatch(hatch, hatch.ExtrusionDirection.ToPlane())),
        On<CadText>((text, sink) => EmitText(text, TextRole.Text, sink)),
        On<CadAttrib>((text, sink) => EmitText(text, TextRole.Attribute, sink)),
        On<CadAttDef>((text, sink) => EmitText(text, TextRole.AttributeDefinition, sink)),
        On<CadMText>((text, sink) => sink.Paragraphs(text, PlaneOf(text))),
        On<CadTolerance>((tolerance, sink) => sink.Tolerance(tolerance, PlaneOf(tolerance))),
        On<CadShape>((shape, sink) => sink.Shape(shape, shape.InsertionPoint.ToVec3())),
        On<CadRasterImage>((i, sink) => sink.Image(ImageOf(i, i.InsertionPoint, i.VectorU, i.VectorV, i.ImageSize))),
        On<CadWipeoutBase>((i, sink) => sink.Image(ImageOf(i, i.InsertionPoint, i.VectorU, i.VectorV, i.ImageSize))),
        On<CadUnderlay>(EmitUnderlay),
        On<CadOle2Frame>(EmitOleFrame),
        On<CadLeader>((leader, sink) => sink.Leader(leader, leader.Coordinates.ConvertAll(ModelVectors.ToVec3))),
        On<CadMLeader>((leader, sink) => sink.MultiLeader(leader)),
        On<CadTableEntity>((table, sink) => sink.Table(table, MapOf(table))),
        On<CadMultiLine>((line, sink) => sink.MultiLine(line)),
        On<CadInsertObject>((insert, sink) => sink.BlockReference(insert)),
        On<CadDimensionBase>((dimension, sink) => sink.Dimension(dimension)),
        On<CadViewport>(static (_, _) => { }),
    };

    /// <summary>Passes the shapes of an entity to a sink. False for entities whose shape is not known.</summary>
    internal static bool Emit(CadEntityBase entity, IGeometrySink sink)
    {
        bool isDrawn = entity switch
        {
            CadObjectWithAcisData solid => EmitSolid(solid.AcisData, solid.DataRecord?.Data ?? [], sink),
            RawEntity raw => EmitRaw(raw, sink),
            _ => false,
        };
        if (isDrawn)
        {
            return true;
        }

        for (Type? type = entity.GetType(); type != typeof(CadEntityBase) && type is not null; type = type.BaseType)
        {
            if (Emitters.TryGetValue(type, out Action<CadEntityBase, IGeometrySink>? emit))
            {
                emit(entity, sink);
                return true;
            }
        }

        return ProxyGraphics.Emit(entity, sink);
    }

    private static void Add<T>(
        this Dictionary<Type, Action<CadEntityBase, IGeometrySink>> emitters, Action<T, IGeometrySink> emit)
        where T : CadEntityBase => emitters.Add(typeof(T), (entity, sink) => emit((T)entity, sink));

    private static Action<T, IGeometrySink> On<T>(Action<T, IGeometrySink> emit) => emit;

    // The ends of a line are in world coordinates even where it has a normal, which then only directs its thickness.
    private static void EmitLine(CadLine line, IGeometrySink sink)
    {
        Vec3 thickness = line.Thickness == 0 ? default : line.ExtrusionDirection.ToVec3().Unit() * line.Thickness;
        sink.Line(line.FirstPoint.ToVec3(), line.SecondPoint.ToVec3(), thickness);
    }

    private static void EmitCircle(CadCircle circle, IGeometrySink sink) => sink.Arc(ArcOf(circle, 0, Math.Tau) with
    {
        IsCircle = true,
    });

    private static void EmitArc(CadArc arc, IGeometrySink sink)
    {
        double start = Angles.Radians(arc.StartAngle);
        sink.Arc(ArcOf(arc, start, Angles.Sweep(start, Angles.Radians(arc.EndAngle))));
    }

    private static PlanarArc ArcOf(CadCircle circle, double start, double sweep)
    {
        Affine3 plane = circle.ExtrusionDirection.ToPlane();
        return new PlanarArc(plane, circle.CenterPoint.ToVec3(), circle.Radius, start, sweep)
        {
            Thickness = circle.Thickness,
        };
    }

    private static void EmitEllipse(CadEllipse ellipse, IGeometrySink sink)
    {
        Vec3 major = ellipse.MajorEndPoint.ToVec3();
        Vec3 minor = Vec3.Cross(ellipse.ExtrusionDirection.ToPlane().AxisZ, major) * ellipse.AxisRatio;
        double sweep = Angles.Sweep(ellipse.StartAngle, ellipse.EndAngle);
        sink.EllipticArc(new EllipticArc(ellipse.CenterPoint.ToVec3(), major, minor, ellipse.StartAngle, sweep));
    }

    private static SplineCurve SplineOf(CadSpline spline)
    {
        List<Vec3> control = spline.ControlPoints.ConvertAll(ModelVectors.ToVec3);
        Nurbs? curve = control.Count > spline.Degree
            ? Nurbs.Create(spline.Degree, spline.KnotValues, control, spline.Weights)
            : null;
        return new SplineCurve(curve, control, spline.FitPoints.ConvertAll(ModelVectors.ToVec3))
        {
            StartTangent = spline.StartTangent.ToVec3(),
            EndTangent = spline.EndTangent.ToVec3(),
            IsClosed = spline.IsClosed,
        };
    }

    // The corners are written in the order of a Z, not around.
    private static FilledQuad QuadOf(
        CadExtrudedEntityBase entity, Cad3DPoint first, Cad3DPoint second, Cad3DPoint third, Cad3DPoint fourth) => new(
            entity.ExtrusionDirection.ToPlane(),
            first.ToVec3(),
            second.ToVec3(),
            fourth.ToVec3(),
            third.ToVec3(),
            entity.Thickness);

    private static void EmitFace(Cad3DFace face, IGeometrySink sink)
    {
        ReadOnlySpan<Vec3> corners =
            [face.FirstPoint.ToVec3(), face.SecondPoint.ToVec3(), face.ThirdPoint.ToVec3(), face.FourthPoint.ToVec3()];
        sink.Face(corners, face.InvisibleEdges);
    }

    private static void EmitText(CadText text, TextRole role, IGeometrySink sink) =>
        sink.Text(new TextLine(text, text.ExtrusionDirection.ToPlane(), role));

    /// <summary>
    /// The text's own axes: its direction vector where it has one, else the rotated x axis of the world, which holds
    /// even for text that is seen from below; only a plane that stands on that axis takes its object axes.
    /// </summary>
    internal static Affine3 PlaneOf(CadMText text)
    {
        Affine3 ocs = text.ExtrusionDirection.ToPlane();
        Vec3 direction = text.TextDirection.ToVec3();
        if (direction == default || !direction.IsFinite)
        {
            (double sin, double cos) = Math.SinCos(Angles.Radians(text.TextRotation));
            direction = new Vec3(cos, sin, 0);
        }

        if (Vec3.Cross(ocs.AxisZ, direction).Length < 1e-9 * direction.Length)
        {
            direction = ocs.AxisX;
        }

        Vec3 x = direction.Unit();
        return new Affine3(x, Vec3.Cross(ocs.AxisZ, x).Unit(), ocs.AxisZ, text.InsertionPoint.ToVec3());
    }

    private static Affine3 MapOf(CadTableEntity table)
    {
        Vec3 direction = table.HorizontalDirection.ToVec3();
        return Affine3.Translation(table.InsertionPoint.ToVec3())
            * Affine3.RotationZ(Math.Atan2(direction.Y, direction.X));
    }

    private static Affine3 PlaneOf(CadTolerance tolerance)
    {
        Vec3 normal = tolerance.ExtrusionDirection.ToVec3().Unit();
        Vec3 x = tolerance.DirectionVector.ToVec3().Unit();
        return new Affine3(x, Vec3.Cross(normal, x), normal, tolerance.InsertionPoint.ToVec3());
    }

    private static ImageFrame ImageOf(
        CadEntityBase entity, Cad3DPoint corner, Cad3DPoint u, Cad3DPoint v, Cad2DPoint size) =>
        new(corner.ToVec3(), u.ToVec3(), v.ToVec3(), size, entity);
}
