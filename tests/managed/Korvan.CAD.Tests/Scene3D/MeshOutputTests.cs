using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Linq;
using System.Text;
using System.Text.Json;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Meshes;
using Korvan.CAD.Scene3D;
using Korvan.CAD.Tests.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.Scene3D;

/// <summary>Files of each mesh format, read back without the library, hold the triangles of the drawing.</summary>
public class MeshOutputTests
{
    private static readonly Material Plain = new(Rgba.Black);

    [Fact]
    public void All_formats_hold_the_same_triangles_in_the_same_sense()
    {
        CadImage drawing = TestPage.Drawing(Box(3), TestPage.Insert("B", 20, 5), Mirrored());
        TestPage.AddBlock(drawing, "B", new Cad3DFace
        {
            FirstPoint = new(0, 0, 0),
            SecondPoint = new(2, 0, 1),
            ThirdPoint = new(2, 3, 1),
            FourthPoint = new(0, 3, 0),
        });
        drawing.Header.InsUnits = 6; // metres, as glTF has
        List<Vec3[]> expected = Stl(Save(drawing, new StlOptions { Binary = true }));
        Assert.Equal(8 + 2 + 2, expected.Count); // the walls of the box, and the face twice
        Assert.Equal(3 * 4 * 10, expected.Take(8).Sum(Area), 4);
        Assert.Equal(Sorted(expected), Sorted(StlText(Save(drawing, new StlOptions { Binary = false }))));
        Assert.Equal(Sorted(expected), Sorted(Obj(Save(drawing, new ObjOptions { Precision = 6 }))));
        Assert.Equal(Sorted(expected), Sorted(Gltf(Save(drawing, new GlbOptions()))));
        Assert.Equal(Sorted(expected), Sorted(Gltf(Save(drawing, new GltfOptions { Indented = true }))));

        // The reference is mirrored: its face still looks up.
        Assert.Equal(4, expected.Count(t => Vec3.Cross(t[1] - t[0], t[2] - t[0]).Z > 1e-6));
    }

    [Theory]
    [InlineData(false, false, 2 * 3)]
    [InlineData(true, false, 3 * 3)]
    [InlineData(false, true, 2 * 4)]
    [InlineData(true, true, 3 * 4)]
    public void Polygon_meshes_have_a_face_in_each_cell_and_close(bool closeRows, bool closeColumns, int cells)
    {
        CadPolylineFlag flag = CadPolylineFlag.PolygonMesh | (closeRows ? CadPolylineFlag.Closed : 0)
            | (closeColumns ? CadPolylineFlag.ClosedN : 0);
        var mesh = new CadPolygonMesh { Flag = flag, MeshMVertexCount = 3, MeshNVertexCount = 4 };
        for (int m = 0; m < 3; m++)
        {
            for (int n = 0; n < 4; n++)
            {
                (double sin, double cos) = Math.SinCos(n * Math.PI / 2);
                Cad3DPoint at = new((3 + cos) * m, sin * (m + 1), m * m);
                mesh.Vertices.Add(new CadPolygonMeshVertex { LocationPoint = at, VertexFlags = 64 });
            }
        }

        Assert.Equal(2 * cells, Stl(Save(TestPage.Drawing(mesh), new StlOptions { Binary = true })).Count);
        mesh.Vertices.RemoveAt(11); // a grid with a hole has no faces
        Assert.ThrowsAny<Exception>(() => Save(TestPage.Drawing(mesh), new StlOptions()));
    }

    [Fact]
    public void Colours_normals_and_texture_coordinates_reach_the_binary_form()
    {
        var mesh = new Mesh { Name = "quad" };
        mesh.Positions.AddRange([new(0, 0, 0), new(2, 0, 0), new(2, 2, 0), new(0, 2, 0)]);
        mesh.Normals.AddRange(Enumerable.Repeat(Vec3.UnitZ, 4));
        mesh.TextureCoordinates.AddRange([new(0, 0), new(1, 0), new(1, 0.75), new(0, 1)]);
        mesh.Colors.AddRange([new(255, 0, 0), new(0, 255, 0), new(0, 0, 255), new(9, 8, 7, 6)]);
        mesh.Indices.AddRange([0, 1, 2, 0, 2, 3]);
        var glass = new Material(new Rgba(255, 128, 0, 127)) { Name = "glass", Roughness = 0.5, Metallic = 0.25 };
        mesh.Ranges.AddRange([new(0, 3, Plain), new(3, 3, glass)]);
        var scene = new Scene { MillimetresPerUnit = 1000, Up = UpAxis.Y };
        scene.Roots.Add(new Node { Mesh = mesh });
        using var file = new MemoryStream();
        new GltfWriter(scene).WriteBinary(file);
        (JsonElement root, byte[] data) = Chunks(file.ToArray());
        JsonElement[] primitives = [.. root.GetProperty("meshes")[0].GetProperty("primitives").EnumerateArray()];
        JsonElement attributes = primitives[0].GetProperty("attributes");
        Assert.Equal([1.0, 0.25], Values(root, data, attributes, "TEXCOORD_0").Skip(4).Take(2)); // downwards
        Assert.Equal([0.0, 0, 1], Values(root, data, attributes, "NORMAL").Take(3));
        Assert.Equal([9.0, 8, 7, 6], Values(root, data, attributes, "COLOR_0").Skip(12));
        Assert.Equal([0.0, 2, 3], Values(root, data, primitives[1], "indices"));
        JsonElement material = root.GetProperty("materials")[primitives[1].GetProperty("material").GetInt32()];
        Assert.Equal("glass", material.GetProperty("name").GetString());
        Assert.Equal("BLEND", material.GetProperty("alphaMode").GetString());
        JsonElement pbr = material.GetProperty("pbrMetallicRoughness");
        Assert.Equal((0.5, 0.25),
            (pbr.GetProperty("roughnessFactor").GetDouble(), pbr.GetProperty("metallicFactor").GetDouble()));
        double[] factors = [.. pbr.GetProperty("baseColorFactor").EnumerateArray().Select(f => f.GetDouble())];
        Assert.Equal([1, 0.2159, 0, 0.498], factors.Select(f => Math.Round(f, 4))); // linear light

        using var text = new MemoryStream();
        ObjWriter.Write(scene, 2, text);
        Assert.Contains("v 2.00 2.00 0.00 0 0 1\n", Encoding.UTF8.GetString(text.ToArray()), StringComparison.Ordinal);
    }

    [Fact]
    public void Meshes_of_many_vertices_have_wide_indices_and_names_of_layers_no_spaces()
    {
        var mesh = new Mesh();
        for (int i = 0; i < 70_000; i++)
        {
            mesh.Positions.Add(new(i, i % 2, 0));
        }

        mesh.Indices.AddRange([0, 65_536, 69_999]);
        mesh.Ranges.Add(new(0, 3, Plain));
        var scene = new Scene { MillimetresPerUnit = 1000, Up = UpAxis.Y };
        scene.Roots.Add(new Node { Mesh = mesh, Layer = "first floor" });
        using var file = new MemoryStream();
        new GltfWriter(scene).WriteBinary(file);
        Vec3[] triangle = Assert.Single(Gltf(file.ToArray()));
        Assert.Equal([0.0, 65_536, 69_999], triangle.Select(p => p.X));
        using var text = new MemoryStream();
        ObjWriter.Write(scene, 0, text);
        Assert.Contains("g first_floor\n", Encoding.UTF8.GetString(text.ToArray()), StringComparison.Ordinal);
    }

    /// <summary>A closed square of 10 with walls of a height.</summary>
    private static CadLwPolyline Box(double height)
    {
        var box = new CadLwPolyline { Flag = CadLwPolylineFlag.Closed, Thickness = height };
        box.Coordinates.AddRange([new(0, 0), new(10, 0), new(10, 10), new(0, 10)]);
        return box;
    }

    private static CadInsertObject Mirrored()
    {
        CadInsertObject insert = TestPage.Insert("B", -5, 0);
        (insert.ScaleX, insert.ScaleY, insert.RotationAngle) = (-1, 2, 90);
        return insert;
    }

    private static byte[] Save(CadImage drawing, ImageOptionsBase options)
    {
        using var file = new MemoryStream();
        drawing.Save(file, options);
        return file.ToArray();
    }

    private static List<Vec3[]> Stl(byte[] file)
    {
        int count = BinaryPrimitives.ReadInt32LittleEndian(file.AsSpan(80));
        Assert.Equal(84 + (50 * count), file.Length);
        List<Vec3[]> triangles = [];
        for (int i = 0; i < count; i++)
        {
            Vec3[] read = [.. Enumerable.Range(0, 4).Select(v => Vector(file, 84 + (50 * i) + (12 * v)))];
            Assert.Equal(0, (Vec3.Cross(read[2] - read[1], read[3] - read[1]).Unit() - read[0]).Length, 1e-5);
            triangles.Add(read[1..]);
        }

        return triangles;
    }

    private static List<Vec3[]> StlText(byte[] file) =>
    [
        .. Lines(file, "  vertex ").Select(Numbers).Chunk(3),
    ];

    private static List<Vec3[]> Obj(byte[] file)
    {
        Vec3[] points = [.. Lines(file, "v ").Select(Numbers)];
        return
        [
            .. Lines(file, "f ").Select(line =>
                line.Split(' ').Select(i => points[int.Parse(i, CultureInfo.InvariantCulture) - 1]).ToArray()),
        ];
    }

    private static IEnumerable<string> Lines(byte[] file, string keyword) =>
        Encoding.UTF8.GetString(file).Split('\n').Where(line => line.StartsWith(keyword, StringComparison.Ordinal))
            .Select(line => line[keyword.Length..]);

    private static Vec3 Numbers(string text)
    {
        double[] n = [.. text.Split(' ', StringSplitOptions.RemoveEmptyEntries)
            .Select(number => double.Parse(number, CultureInfo.InvariantCulture))];
        return new Vec3(n[0], n[1], n[2]);
    }

    private static List<Vec3[]> Gltf(byte[] file)
    {
        (JsonElement root, byte[] data) = Chunks(file);
        List<Vec3[]> triangles = [];
        Walk(root.GetProperty("scenes")[0].GetProperty("nodes")[0].GetInt32(), Affine3.Identity);
        return triangles;

        void Walk(int index, Affine3 parent)
        {
            JsonElement node = root.GetProperty("nodes")[index];
            Affine3 world = parent * TransformOf(node);
            foreach (JsonElement primitive in node.TryGetProperty("mesh", out JsonElement mesh)
                ? root.GetProperty("meshes")[mesh.GetInt32()].GetProperty("primitives").EnumerateArray() : default)
            {
                Vec3[] points = [.. Values(root, data, primitive.GetProperty("attributes"), "POSITION").Chunk(3)
                    .Select(p => world.Point(new Vec3(p[0], p[1], p[2]))).Select(ToDrawing)];
                IEnumerable<Vec3[]> read = Values(root, data, primitive, "indices").Chunk(3)
                    .Select(t => t.Select(i => points[(int)i]).ToArray());
                triangles.AddRange(world.IsMirror ? read.Select(t => new[] { t[0], t[2], t[1] }) : read);
            }

            foreach (JsonElement child in node.TryGetProperty("children", out JsonElement all)
                ? all.EnumerateArray() : default)
            {
                Walk(child.GetInt32(), world);
            }
        }
    }

    /// <summary>From y up to z up.</summary>
    private static Vec3 ToDrawing(Vec3 p) => new(p.X, -p.Z, p.Y);

    private static Affine3 TransformOf(JsonElement node)
    {
        if (node.TryGetProperty("translation", out JsonElement by))
        {
            return Affine3.Translation(new Vec3(by[0].GetDouble(), by[1].GetDouble(), by[2].GetDouble()));
        }

        double[] m = node.TryGetProperty("matrix", out JsonElement matrix)
            ? [.. matrix.EnumerateArray().Select(n => n.GetDouble())]
            : [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];
        Vec3 Column(int at) => new(m[at], m[at + 1], m[at + 2]);
        return new Affine3(Column(0), Column(4), Column(8), Column(12));
    }

    private static (JsonElement Root, byte[] Data) Chunks(byte[] file)
    {
        if (file[0] == '{')
        {
            JsonElement text = JsonDocument.Parse(file).RootElement;
            string uri = text.GetProperty("buffers")[0].GetProperty("uri").GetString()!;
            return (text, Convert.FromBase64String(uri[(uri.IndexOf(',', StringComparison.Ordinal) + 1)..]));
        }

        int length = BinaryPrimitives.ReadInt32LittleEndian(file.AsSpan(12));
        Assert.Equal(file.Length, BinaryPrimitives.ReadInt32LittleEndian(file.AsSpan(8)));
        return (JsonDocument.Parse(file.AsMemory(20, length)).RootElement, file[(28 + length)..]);
    }

    private static double[] Values(JsonElement root, byte[] data, JsonElement owner, string name)
    {
        JsonElement accessor = root.GetProperty("accessors")[owner.GetProperty(name).GetInt32()];
        JsonElement view = root.GetProperty("bufferViews")[accessor.GetProperty("bufferView").GetInt32()];
        int at = view.GetProperty("byteOffset").GetInt32()
            + (accessor.TryGetProperty("byteOffset", out JsonElement offset) ? offset.GetInt32() : 0);
        string type = accessor.GetProperty("type").GetString()!;
        int count = accessor.GetProperty("count").GetInt32() * (type == "SCALAR" ? 1 : type[3] - '0');
        return [.. Enumerable.Range(0, count).Select(i => accessor.GetProperty("componentType").GetInt32() switch
        {
            5121 => data[at + i],
            5123 => BinaryPrimitives.ReadUInt16LittleEndian(data.AsSpan(at + (2 * i))),
            5125 => BinaryPrimitives.ReadUInt32LittleEndian(data.AsSpan(at + (4 * i))),
            _ => (double)BinaryPrimitives.ReadSingleLittleEndian(data.AsSpan(at + (4 * i))),
        })];
    }

    private static Vec3 Vector(byte[] file, int at) => new(
        BinaryPrimitives.ReadSingleLittleEndian(file.AsSpan(at)),
        BinaryPrimitives.ReadSingleLittleEndian(file.AsSpan(at + 4)),
        BinaryPrimitives.ReadSingleLittleEndian(file.AsSpan(at + 8)));

    private static double Area(Vec3[] t) => Vec3.Cross(t[1] - t[0], t[2] - t[0]).Length / 2;

    /// <summary>Triangles as text, each from its least corner on, in order.</summary>
    private static List<string> Sorted(List<Vec3[]> triangles)
    {
        return [.. triangles.Select(triangle =>
        {
            string[] t = [.. triangle.Select(p => FormattableString.Invariant(
                $"({Math.Round(p.X, 3) + 0.0} {Math.Round(p.Y, 3) + 0.0} {Math.Round(p.Z, 3) + 0.0})"))];
            int first = Array.IndexOf(t, t.Min(StringComparer.Ordinal));
            return t[first] + t[(first + 1) % 3] + t[(first + 2) % 3];
        }).Order(StringComparer.Ordinal)];
    }
}
