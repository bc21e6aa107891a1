using System;
using System.Collections.Generic;
using System.Runtime.CompilerServices;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <content>Polylines in a plane and in space, polygon meshes and polyface meshes.</content>
internal static partial class EntityGeometry
{
    // Group code 70 of a vertex.
    private const int SplineFrameVertex = 16;
    private const int PolyfacePoint = 64;
    private const int MaxOnStack = 64;

    private static void EmitPolyline(CadLwPolyline polyline, IGeometrySink sink)
    {
        int count = polyline.Coordinates.Count;
        Budget.VerifyRoom((long)count * Unsafe.SizeOf<PolyVertex>());
        Span<PolyVertex> vertices = count <= MaxOnStack ? stackalloc PolyVertex[count] : new PolyVertex[count];
        for (int i = 0; i < count; i++)
        {
            Vec2 at = polyline.Coordinates[i].ToVec2();
            vertices[i] = new PolyVertex(
                at, polyline.StartWidthAt(i), polyline.EndWidthAt(i), polyline.BulgeAt(i));
        }

        Affine3 plane = polyline.ExtrusionDirection.ToPlane();
        var shape = new PlanarPolyline(plane, polyline.Elevation, polyline.Thickness, polyline.IsClosed)
        {
            HasContinuousPattern = (polyline.Flag & CadLwPolylineFlag.Plinegen) != 0,
        };
        sink.Polyline(shape, vertices);
    }

    private static void EmitPolyline(CadPolyline polyline, IGeometrySink sink)
    {
        List<CadVertexBase> drawn = Drawn(polyline);
        Budget.VerifyRoom((long)drawn.Count * Unsafe.SizeOf<PolyVertex>());
        var vertices = new PolyVertex[drawn.Count];
        for (int i = 0; i < vertices.Length; i++)
        {
            CadVertexBase vertex = drawn[i];
            double start = vertex.StartWidth != 0 ? vertex.StartWidth : polyline.StartWidth;
            double end = vertex.EndWidth != 0 ? vertex.EndWidth : vertex.StartWidth != 0 ? 0 : polyline.EndWidth;
            vertices[i] = new PolyVertex(vertex.LocationPoint.ToVec3().Xy, start, end, vertex.Bulge);
        }

        Affine3 plane = polyline.ExtrusionDirection.ToPlane();
        var shape = new PlanarPolyline(plane, polyline.Elevation.Z, polyline.Thickness, polyline.IsClosed)
        {
            HasContinuousPattern = (polyline.Flag & CadPolylineFlag.Plinegen) != 0,
        };
        sink.Polyline(shape, vertices);
    }

    private static void EmitPolyline(CadPolyline3D polyline, IGeometrySink sink)
    {
        Vec3[] points = [.. Drawn(polyline).ConvertAll(static vertex => vertex.LocationPoint.ToVec3())];
        sink.Polyline(points, polyline.IsClosed);
    }

    /// <summary>The vertices that show: the frame of a fitted curve is in files, but no part of the line.</summary>
    internal static List<CadVertexBase> Drawn(CadPolylineBase polyline) =>
        polyline.Vertices.FindAll(static vertex => (vertex.VertexFlags & SplineFrameVertex) == 0);

    private static void EmitGrid(CadPolygonMesh mesh, IGeometrySink sink)
    {
        bool smooth = (mesh.Flag & CadPolylineFlag.SplineFit) != 0
            && mesh.SurfaceMDensity > 1 && mesh.SurfaceNDensity > 1;
        IList<CadVertexBase> vertices = smooth ? Drawn(mesh) : mesh.Vertices;
        sink.Grid(new PointGrid(
            vertices.ConvertAll(static vertex => vertex.LocationPoint.ToVec3()),
            smooth ? mesh.SurfaceMDensity : mesh.MeshMVertexCount,
            smooth ? mesh.SurfaceNDensity : mesh.MeshNVertexCount,
            (mesh.Flag & CadPolylineFlag.ClosedN) != 0,
            mesh.IsClosed));
    }

    private static void EmitFaces(CadPolyFaceMesh mesh, IGeometrySink sink)
    {
        var faces = new FaceSet([]);
        foreach (CadVertexBase vertex in mesh.Vertices)
        {
            if ((vertex.VertexFlags & PolyfacePoint) != 0)
            {
                faces.Points.Add(vertex.LocationPoint.ToVec3());
            }
        }

        foreach (CadVertexBase vertex in mesh.Vertices)
        {
            if (vertex is CadFaceRecord face)
            {
                AddFace(faces, face);
            }
        }

        sink.Faces(faces);
    }

    /// <summary>The control mesh: faces are counts, each followed by its indices; one with missing corners is left
    /// out.</summary>
    private static void EmitFaces(CadMesh mesh, IGeometrySink sink)
    {
        var faces = new FaceSet(mesh.Vertices.ConvertAll(ModelVectors.ToVec3));
        List<int> list = mesh.FaceList;
        for (int i = 0; i < list.Count && list[i] > 1 && i + list[i] < list.Count; i += list[i] + 1)
        {
            List<int> corners = list.GetRange(i + 1, list[i]);
            if (corners.TrueForAll(corner => corner >= 0 && corner < faces.Points.Count))
            {
                faces.Faces.Add(new FaceCorners(faces.Corners.Count, corners.Count, 0));
                faces.Corners.AddRange(corners);
            }
        }

        sink.Faces(faces);
    }

    // Indices count from one; a negative one hides the edge that leaves its vertex.
    private static void AddFace(FaceSet faces, CadFaceRecord face)
    {
        ReadOnlySpan<int> indices = [face.VertexIndex1, face.VertexIndex2, face.VertexIndex3, face.VertexIndex4];
        int first = faces.Corners.Count;
        int hidden = 0;
        foreach (int index in indices)
        {
            int at = Math.Abs(index) - 1;
            if (at >= 0 && at < faces.Points.Count)
            {
                hidden |= index < 0 ? 1 << (faces.Corners.Count - first) : 0;
                faces.Corners.Add(at);
            }
        }

        faces.Faces.Add(new FaceCorners(first, faces.Corners.Count - first, hidden));
    }
}
