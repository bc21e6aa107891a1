using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// The numbers of all entities of a kind, as rows of a table. Points are in world coordinates. Angles are as the format
/// has them: in degrees but for ellipses.
/// </summary>
/// <remarks>
/// Columns: LINE x1 y1 z1 x2 y2 z2; POINT x y z; CIRCLE centre, radius, normal; ARC as CIRCLE, start and end angle;
/// ELLIPSE centre, major axis, normal, ratio of the axes, start and end parameter; INSERT position, scale factors,
/// rotation, normal; 3DFACE, SOLID, TRACE four corners. An entity has one row of these, and one a vertex of these:
/// LWPOLYLINE, POLYLINE x y z bulge; SPLINE x y z weight of control points.
/// </remarks>
internal sealed class EntityRows
{
    private static readonly Dictionary<string, (int Width, Func<EntityRows, CadEntityBase, bool> Add)> Kinds = new()
    {
        ["LINE"] = (6, For<CadLine>(static (rows, line) =>
        {
            rows.Add(line.FirstPoint.ToVec3());
            rows.Add(line.SecondPoint.ToVec3());
        })),
        ["POINT"] = (3, For<CadPoint>(static (rows, point) => rows.Add(point.CenterPoint.ToVec3()))),
        ["CIRCLE"] = (7, For<CadCircle>(AddCircle)),
        ["ARC"] = (9, For<CadArc>(static (rows, arc) =>
        {
            AddCircle(rows, arc);
            rows.Add(arc.StartAngle, arc.EndAngle);
        })),
        ["ELLIPSE"] = (12, For<CadEllipse>(AddEllipse)),
        ["INSERT"] = (10, For<CadInsertObject>(AddInsert)),
        ["3DFACE"] = (12, For<Cad3DFace>(static (rows, f) =>
            rows.AddCorners(Affine3.Identity, f.FirstPoint, f.SecondPoint, f.ThirdPoint, f.FourthPoint))),
        ["SOLID"] = (12, For<CadSolid>(static (rows, s) => rows.AddCorners(
            s.ExtrusionDirection.ToPlane(), s.FirstPoint, s.SecondPoint, s.ThirdPoint, s.FourthPoint))),
        ["TRACE"] = (12, For<CadTrace>(static (rows, t) => rows.AddCorners(
            t.ExtrusionDirection.ToPlane(), t.FirstPoint, t.SecondPoint, t.ThirdPoint, t.FourthPoint))),
        ["LWPOLYLINE"] = (4, For<CadLwPolyline>(AddPolyline)),
        ["POLYLINE"] = (4, static (rows, entity) =>
            entity is CadPolyline or CadPolyline3D && AddPolyline(rows, (CadPolylineBase)entity)),
        ["SPLINE"] = (4, For<CadSpline>(AddSpline)),
    };

    private readonly List<double> _values = [];
    private readonly List<long> _ends = [];
    private readonly List<long> _indices = [];
    private readonly List<byte> _closed = [];

    private EntityRows(int width) => Width = width;

    /// <summary>Gets the number of columns.</summary>
    internal int Width { get; }

    /// <summary>Gets the rows, one after the other.</summary>
    internal ReadOnlySpan<double> Values => CollectionsMarshal.AsSpan(_values);

    /// <summary>Gets for each entity the number of rows up to its last one.</summary>
    internal ReadOnlySpan<long> Ends => CollectionsMarshal.AsSpan(_ends);

    /// <summary>Gets for each entity its index among those that were asked.</summary>
    internal ReadOnlySpan<long> Indices => CollectionsMarshal.AsSpan(_indices);

    /// <summary>Gets for each entity 1 if its last vertex leads to its first, else 0.</summary>
    internal ReadOnlySpan<byte> Closed => CollectionsMarshal.AsSpan(_closed);

    /// <summary>Collects the rows of the entities of a kind.</summary>
    /// <param name="entities">The entities.</param>
    /// <param name="kind">The keyword of the kind.</param>
    /// <param name="layers">The names of the layers, of which case is ignored; null for all.</param>
    /// <exception cref="ArgumentException">The kind has no rows.</exception>
    internal static EntityRows Of(IEnumerable<CadEntityBase> entities, string kind, string[]? layers)
    {
        if (!Kinds.TryGetValue(kind, out (int Width, Func<EntityRows, CadEntityBase, bool> Add) table))
        {
            throw new ArgumentException(
                $"Entities of the kind '{kind}' have no table of numbers; there are tables of "
                + $"{string.Join(", ", Kinds.Keys)}.");
        }

        var wanted = layers is null ? null : new HashSet<string>(layers, StringComparer.OrdinalIgnoreCase);
        var rows = new EntityRows(table.Width);
        long index = -1;
        foreach (CadEntityBase entity in entities)
        {
            index++;
            if (entity.DxfName == kind && (wanted is null || wanted.Contains(entity.LayerName))
                && table.Add(rows, entity))
            {
                rows._ends.Add(rows._values.Count / table.Width);
                rows._indices.Add(index);
                rows._closed.Add(IsClosed(entity) ? (byte)1 : (byte)0);
            }
        }

        return rows;
    }

    /// <summary>Collects the boxes of entities: the lowest X and Y, the highest X and Y. Entities that take no space
    /// have no row.</summary>
    /// <param name="drawing">The drawing.</param>
    /// <param name="entities">Entities of the drawing.</param>
    internal static EntityRows BoundsOf(CadDrawing drawing, IEnumerable<CadEntityBase> entities)
    {
        var rows = new EntityRows(4);
        long index = -1;
        foreach (Extents extents in DrawingExtents.OfEach(drawing, entities, null))
        {
            index++;
            if (!extents.IsEmpty)
            {
                rows.Add(extents.Min.X, extents.Min.Y);
                rows.Add(extents.Max.X, extents.Max.Y);
                rows._ends.Add(rows._indices.Count + 1);
                rows._indices.Add(index);
                rows._closed.Add(0);
            }
        }

        return rows;
    }

    /// <summary>Collects the digests of entities: two columns, to be read as integers of 64 bits.</summary>
    /// <param name="entities">The entities.</param>
    /// <param name="digits">The decimals that numbers are compared by.</param>
    internal static EntityRows DigestsOf(IEnumerable<CadEntityBase> entities, int digits)
    {
        var rows = new EntityRows(2);
        rows._values.AddRange(MemoryMarshal.Cast<ulong, double>(
            CollectionsMarshal.AsSpan(EntityDigests.Of(entities, digits))));
        return rows;
    }

    // A file may keep an entity of the name in another class, as polygon meshes are polylines by name.
    private static Func<EntityRows, CadEntityBase, bool> For<T>(Action<EntityRows, T> add)
        where T : CadEntityBase => (rows, entity) =>
        {
            if (entity is T typed)
            {
                add(rows, typed);
            }

            return entity is T;
        };

    private static bool IsClosed(CadEntityBase entity) => entity switch
    {
        CadLwPolyline polyline => polyline.IsClosed,
        CadPolylineBase polyline => polyline.IsClosed,
        CadSpline spline => spline.IsClosed,
        _ => false,
    };

    private static void AddCircle(EntityRows rows, CadCircle circle)
    {
        Affine3 plane = circle.ExtrusionDirection.ToPlane();
        rows.Add(plane.Point(circle.CenterPoint.ToVec3()));
        rows._values.Add(circle.Radius);
        rows.Add(plane.AxisZ);
    }

    private static void AddEllipse(EntityRows rows, CadEllipse ellipse)
    {
        rows.Add(ellipse.CenterPoint.ToVec3());
        rows.Add(ellipse.MajorEndPoint.ToVec3());
        rows.Add(ellipse.ExtrusionDirection.ToPlane().AxisZ);
        rows._values.Add(ellipse.AxisRatio);
        rows.Add(ellipse.StartAngle, ellipse.EndAngle);
    }

    private static void AddInsert(EntityRows rows, CadInsertObject insert)
    {
        Affine3 plane = insert.ExtrusionDirection.ToPlane();
        rows.Add(plane.Point(insert.InsertionPoint.ToVec3()));
        rows.Add(new Vec3(insert.ScaleX, insert.ScaleY, insert.ScaleZ));
        rows._values.Add(insert.RotationAngle);
        rows.Add(plane.AxisZ);
    }

    private static void AddPolyline(EntityRows rows, CadLwPolyline polyline)
    {
        Affine3 plane = polyline.ExtrusionDirection.ToPlane();
        for (int i = 0; i < polyline.Coordinates.Count; i++)
        {
            Cad2DPoint at = polyline.Coordinates[i];
            rows.Add(plane.Point(new Vec3(at.X, at.Y, polyline.Elevation)));
            rows._values.Add(polyline.BulgeAt(i));
        }
    }

    private static bool AddPolyline(EntityRows rows, CadPolylineBase polyline)
    {
        Affine3 plane = polyline is CadPolyline flat ? flat.ExtrusionDirection.ToPlane() : Affine3.Identity;
        double? elevation = (polyline as CadPolyline)?.Elevation.Z;
        foreach (CadVertexBase vertex in EntityGeometry.Drawn(polyline))
        {
            Vec3 at = vertex.LocationPoint.ToVec3();
            rows.Add(plane.Point(new Vec3(at.X, at.Y, elevation ?? at.Z)));
            rows._values.Add(vertex.Bulge);
        }

        return true;
    }

    private static void AddSpline(EntityRows rows, CadSpline spline)
    {
        for (int i = 0; i < spline.ControlPoints.Count; i++)
        {
            rows.Add(spline.ControlPoints[i].ToVec3());
            rows._values.Add(i < spline.Weights.Count ? spline.Weights[i] : 1);
        }
    }

    private void AddCorners(Affine3 plane, params ReadOnlySpan<Cad3DPoint> corners)
    {
        foreach (Cad3DPoint corner in corners)
        {
            Add(plane.Point(corner.ToVec3()));
        }
    }

    private void Add(Vec3 point)
    {
        _values.Add(point.X);
        _values.Add(point.Y);
        _values.Add(point.Z);
    }

    private void Add(double first, double second)
    {
        _values.Add(first);
        _values.Add(second);
    }
}
