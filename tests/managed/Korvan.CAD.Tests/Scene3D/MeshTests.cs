using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text.Json;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Meshes;
using Korvan.CAD.Scene3D;
using Korvan.CAD.Tests.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.Scene3D;

public class MeshTests
{
    private static readonly Material Black = new(Rgba.Black);

    [Fact]
    public void A_concave_face_is_triangulated_within_its_outline_in_its_own_sense()
    {
        Vec3[] arrow = [new(0, 0, 5), new(4, 0, 5), new(4, 4, 5), new(2, 1, 5), new(0, 4, 5)];
        foreach ((Vec3[] ring, double sense) in new[] { (arrow, 1.0), ([.. arrow.Reverse()], -1) })
        {
            Mesh mesh = Face(ring);
            Assert.Equal(3, mesh.Indices.Count / 3);
            Assert.Equal(10 * sense, UpwardArea(mesh), 9);
        }
    }

    [Fact]
    public void Faces_of_many_corners_and_faces_with_holes_are_filled_right()
    {
        Vec3[] star = [.. Enumerable.Range(0, 20_000).Select(i => Polar(Math.Tau * i / 20_000, 5 + (5 * (i % 2)), 0))];
        Assert.Equal(50 * Math.Sin(Math.Tau / 20_000) / 2 * 20_000, UpwardArea(Face(star)), 6);

        var builder = new MeshBuilder();
        Vec3[] square = [new(0, 0, 1), new(9, 0, 1), new(9, 9, 1), new(0, 9, 1)];
        builder.Add(square,
            [[new(1, 1, 1), new(2, 1, 1), new(2, 2, 1), new(1, 2, 1)], [new(5, 5, 1), new(5, 7, 1), new(7, 5, 1)]]);
        Assert.Equal(81 - 1 - 2, UpwardArea(builder.Build("", Black)), 9);
    }

    [Fact]
    public void A_face_that_crosses_itself_is_two_faces_with_the_crossing_between()
    {
        Mesh mesh = Face([new(0, 0, 0), new(4, 0, 4), new(4, 4, 4), new(0, 4, 0), new(4, 2, 4), new(0, 2, 0)]);
        Assert.All(mesh.Positions, p => Assert.Equal(p.X, p.Z, 9));
        Assert.Equal([], Face([new(0, 0, 0), new(1, 0, 0), new(2, 0, 0)]).Indices);
        Assert.Equal([], Face([new(0, 0, 0), new(1, 0, 0), new(1, 0, 0), new(0, 0, 0)]).Indices);
        Assert.Equal(3, Face([new(0, 0, 0), new(1, 0, 0), new(1, 1, 0), new(1, 1, 0)]).Indices.Count);

        // Both halves of the tie run the other way round: no normal, but two triangles.
        Assert.Equal(6, Face([new(0, 0, 0), new(0, 4, 4), new(0, 4, 0), new(0, 0, 4)]).Indices.Count);
    }

    [Fact]
    public void References_share_the_meshes_of_their_block_unless_it_inherits_something_else()
    {
        CadImage drawing = TestPage.Drawing(
            Insert("fixed", 0, 1), Insert("fixed", 10, 2), Insert("by block", 0, 1), Insert("by block", 10, 1),
                Insert("by block", 20, 2));
        TestPage.AddLayer(drawing, "own", 3);
        TestPage.AddBlock(drawing, "fixed", TestPage.Square(0, 0, 1, 5, "own"), TestPage.Square(2, 0, 1, 6, "own"));
        TestPage.AddBlock(drawing, "by block", TestPage.Square(0, 0, 1, 0, "own"));
        Scene scene = DrawingMeshes.Read(drawing.Drawing, null, new MeshRequest());
        Assert.Equal(5, scene.Roots.Count);
        Assert.Equal(7, scene.Instances().Count());
        Assert.Equal(2 + 2, scene.Instances().Select(instance => instance.Mesh).Distinct().Count());
        Assert.Equal(
            [0.0, 0, 0, 10, 10, 10, 20], scene.Instances().Select(instance => instance.World.Origin.X).Order());
    }

    [Fact]
    public void A_file_holds_shared_meshes_once_near_their_origin_and_with_short_indices()
    {
        CadImage drawing = TestPage.Drawing([.. Enumerable.Range(0, 100).Select(i => Insert("far", i, 1))]);
        CadBlockEntity block = TestPage.AddBlock(drawing, "far", TestPage.Square(5e6, 5e6, 1, 1));
        block.BasePoint = new Cad3DPoint(5e6, 5e6, 0);
        JsonElement root = Gltf(drawing);
        JsonElement mesh = Assert.Single(root.GetProperty("meshes").EnumerateArray());
        JsonElement[] accessors = [.. root.GetProperty("accessors").EnumerateArray()];
        JsonElement primitive = mesh.GetProperty("primitives")[0];
        JsonElement positions = accessors[primitive.GetProperty("attributes").GetProperty("POSITION").GetInt32()];
        Assert.Equal(0.5, positions.GetProperty("max")[0].GetDouble());
        Assert.Equal(
            5123, accessors[primitive.GetProperty("indices").GetInt32()].GetProperty("componentType").GetInt32());
        JsonElement[] nodes = [.. root.GetProperty("nodes").EnumerateArray()];
        Assert.Equal(1 + 200, nodes.Length);
        Assert.All(nodes[1..], node => Assert.InRange(Math.Abs(Translation(node)), 0, 100));
    }

    [Fact]
    public void Colours_are_materials_each_once()
    {
        CadImage drawing = TestPage.Drawing(
            [.. Enumerable.Range(0, 600).Select(i => TestPage.Square(i, 0, 1, (short)(1 + (i % 7))))]);
        Assert.Equal(7, Gltf(drawing).GetProperty("materials").GetArrayLength());
    }

    [Fact]
    public void Entities_of_mirrored_references_keep_their_outside()
    {
        CadInsertObject insert = Insert("block", 10, 1);
        insert.ScaleX = -2;
        CadImage drawing = TestPage.Drawing(insert);
        TestPage.AddBlock(drawing, "block", TestPage.Square(0, 0, 1, 5));
        DrawingEntity3D faces = Assert.Single(drawing.GetEntities3D());
        Assert.Equal("SOLID", faces.TypeNameText);
        Assert.Equal(2.0, faces.GetArea());
        Assert.Equal((8.0, 10.0), (faces.MinPoint.X, faces.MaxPoint.X));
        Vec3[] corners = [.. faces.Triangles.Select(i => new Vec3(faces.Vertices[i].X, faces.Vertices[i].Y, 0))];
        Assert.True(Vec3.Cross(corners[1] - corners[0], corners[2] - corners[0]).Z > 0);
    }

    [Fact]
    public void Nodes_are_where_their_insertions_are()
    {
        CadInsertObject first = Insert("one", 3, 1);
        (first.InsertionPoint.Y, first.InsertionPoint.Z) = (5, 7);
        CadImage drawing = TestPage.Drawing(first, Insert("one", 0, 1));
        TestPage.AddBlock(drawing, "one", TestPage.Square(-1, -1, 2, 1));
        JsonElement[] nodes = [.. Gltf(drawing).GetProperty("nodes").EnumerateArray()];
        Vec3 By(JsonElement node) => node.TryGetProperty("translation", out JsonElement by)
            ? new Vec3(by[0].GetDouble(), by[1].GetDouble(), by[2].GetDouble())
            : default;

        // The root is in the middle of both.
        IEnumerable<JsonElement> placed = nodes[0].GetProperty("children").EnumerateArray()
            .Select(child => nodes[child.GetInt32()]);
        Assert.Equal([new Vec3(1.5, 2.5, 3.5), new Vec3(-1.5, -2.5, -3.5)], placed.Select(By));
    }

    private static CadInsertObject Insert(string block, double x, short color) => TestPage.Insert(block, x, 0, color);

    private static JsonElement Gltf(CadImage drawing)
    {
        using var file = new MemoryStream();
        drawing.Save(file, new GltfOptions());
        return JsonDocument.Parse(file.ToArray()).RootElement;
    }

    private static double Translation(JsonElement node) =>
        node.TryGetProperty("translation", out JsonElement by) ? by[0].GetDouble()
        : node.TryGetProperty("matrix", out JsonElement matrix) ? matrix[12].GetDouble() : 0;

    private static Vec3 Polar(double angle, double radius, double z) =>
        new(radius * Math.Cos(angle), radius * Math.Sin(angle), z);

    private static Mesh Face(Vec3[] ring)
    {
        var builder = new MeshBuilder();
        builder.Add(ring);
        return builder.Build("", Black);
    }

    private static double UpwardArea(Mesh mesh) =>
        mesh.Triangles(mesh.Ranges[0], Affine3.Identity).Sum(t => Vec3.Cross(t.B - t.A, t.C - t.A).Z / 2);
}
