using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text.Json;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Scene3D;

namespace Korvan.CAD.Rendering.Meshes;

/// <summary>
/// Writes the GL transmission format 2.0 (ISO/IEC 12113). Its lengths are metres and its Y points up: a node above all
/// others rotates and scales the scene, and moves it to its place.
/// </summary>
internal sealed class GltfWriter
{
    private const int Triangles = 4;
    private const uint GlbMagic = 0x46546C67;
    private const uint GlbVersion = 2;
    private const uint JsonChunk = 0x4E4F534A;
    private const uint BinaryChunk = 0x004E4942;
    private const double MillimetresPerMetre = 1000;

    private const int FlushedBytes = 1 << 16;

    private readonly GltfBuffer _buffer = new();
    private readonly List<GltfNode> _nodes;
    private readonly Dictionary<Material, int> _materials = [];

    internal GltfWriter(Scene3D.Scene scene)
    {
        var nodes = new GltfNodes(_buffer);
        nodes.AddRoot(scene, ToFile(scene));
        _nodes = nodes.Nodes;
        foreach (MeshRange range in _buffer.Meshes.SelectMany(placed => placed.Mesh.Ranges))
        {
            _materials.TryAdd(range.Material, _materials.Count);
        }
    }

    internal void WriteText(Stream output, bool indented)
    {
        byte[] data = _buffer.Write();
        Budget.VerifyRoom(data.Length * 8L / 3); // of a string in Base64
        using var json = new Utf8JsonWriter(output, new JsonWriterOptions { Indented = indented });
        WriteJson(json, "data:application/octet-stream;base64," + Convert.ToBase64String(data));
    }

    internal void WriteBinary(Stream output)
    {
        byte[] data = _buffer.Write();
        using var text = new BoundedMemoryStream();
        using (var json = new Utf8JsonWriter(text))
        {
            WriteJson(json, null);
        }

        while (text.Length % 4 != 0)
        {
            text.WriteByte((byte)' ');
        }

        long total = 12 + 8 + text.Length + 8 + data.Length;
        if (total > uint.MaxValue)
        {
            throw new RenderException("The faces take more than 4 GB; a file of this format holds no more.");
        }

        WriteIntegers(output, GlbMagic, GlbVersion, (uint)total, (uint)text.Length, JsonChunk);
        text.Position = 0;
        text.CopyTo(output);
        WriteIntegers(output, (uint)data.Length, BinaryChunk);
        output.Write(data);
    }

    /// <summary>The map from a scene to metres and axes of which Y points up.</summary>
    private static Affine3 ToFile(Scene3D.Scene scene)
    {
        double k = (scene.MillimetresPerUnit ?? MillimetresPerMetre) / MillimetresPerMetre;
        return scene.Up == UpAxis.Y
            ? Affine3.Scaling(k, k, k)
            : new Affine3(new Vec3(k, 0, 0), new Vec3(0, 0, -k), new Vec3(0, k, 0), default);
    }

    private static void WriteIntegers(Stream output, params ReadOnlySpan<uint> values)
    {
        Span<byte> bytes = stackalloc byte[4];
        foreach (uint value in values)
        {
            BinaryPrimitives.WriteUInt32LittleEndian(bytes, value);
            output.Write(bytes);
        }
    }

    private void WriteJson(Utf8JsonWriter json, string? uri)
    {
        json.WriteStartObject();
        json.WriteStartObject("asset");
        json.WriteString("version", "2.0");
        json.WriteString("generator", "korvan.cad");
        json.WriteEndObject();
        json.WriteNumber("scene", 0);
        WriteArray(json, "scenes", [0], root => WriteNumbers(json, "nodes", [root]));
        WriteArray(json, "nodes", _nodes, node => WriteNode(json, node));
        WriteArray(json, "meshes", _buffer.Meshes, mesh => WriteMesh(json, mesh));
        WriteArray(json, "materials", _materials.Keys, material => WriteMaterial(json, material));
        WriteArray(json, "accessors", _buffer.Accessors, accessor => WriteAccessor(json, accessor));
        WriteArray(json, "bufferViews", _buffer.Views, view => WriteView(json, view));
        WriteArray(json, "buffers", [_buffer.Length], length =>
        {
            json.WriteNumber("byteLength", length);
            if (uri is not null)
            {
                json.WriteString("uri", uri);
            }
        });
        json.WriteEndObject();
    }

    private static void WriteArray<T>(Utf8JsonWriter json, string name, IEnumerable<T> items, Action<T> write)
    {
        json.WriteStartArray(name);
        foreach (T item in items)
        {
            json.WriteStartObject();
            write(item);
            json.WriteEndObject();
            if (json.BytesPending > FlushedBytes)
            {
                json.Flush(); // the writer gathers everything that it is not asked for
            }
        }

        json.WriteEndArray();
    }

    private static void WriteNumbers(Utf8JsonWriter json, string name, ReadOnlySpan<double> numbers)
    {
        json.WriteStartArray(name);
        foreach (double number in numbers)
        {
            json.WriteNumberValue(number);
        }

        json.WriteEndArray();
    }

    private static void WriteNode(Utf8JsonWriter json, GltfNode node)
    {
        if (node.Name.Length > 0)
        {
            json.WriteString("name", node.Name);
        }

        (Vec3 x, Vec3 y, Vec3 z, Vec3 o) = (
            node.Transform.AxisX, node.Transform.AxisY, node.Transform.AxisZ, node.Transform.Origin);
        bool isIdentity = x == Vec3.UnitX && y == Vec3.UnitY && z == Vec3.UnitZ;
        if (!isIdentity)
        {
            WriteNumbers(json, "matrix", [x.X, x.Y, x.Z, 0, y.X, y.Y, y.Z, 0, z.X, z.Y, z.Z, 0, o.X, o.Y, o.Z, 1]);
        }
        else if (o != default)
        {
            WriteNumbers(json, "translation", [o.X, o.Y, o.Z]);
        }

        if (node.Mesh != GltfNode.NoMesh)
        {
            json.WriteNumber("mesh", node.Mesh);
        }

        if (node.Children.Count > 0)
        {
            json.WriteStartArray("children");
            node.Children.ForEach(json.WriteNumberValue);
            json.WriteEndArray();
        }
    }

    private void WriteMesh(Utf8JsonWriter json, GltfMesh placed)
    {
        json.WriteString("name", placed.Mesh.Name);
        WriteArray(json, "primitives", placed.Mesh.Ranges.Zip(placed.Indices), primitive =>
        {
            (MeshRange range, int indices) = primitive;
            json.WriteStartObject("attributes");
            placed.Attributes.ForEach(attribute => json.WriteNumber(attribute.Name, attribute.Accessor));
            json.WriteEndObject();
            json.WriteNumber("indices", indices);
            json.WriteNumber("material", _materials[range.Material]);
            json.WriteNumber("mode", Triangles);
        });
    }

    private static void WriteMaterial(Utf8JsonWriter json, Material material)
    {
        Rgba color = material.Color;
        if (material.Name.Length > 0)
        {
            json.WriteString("name", material.Name);
        }

        json.WriteStartObject("pbrMetallicRoughness");
        double[] factors = [Linear(color.R), Linear(color.G), Linear(color.B), color.A / 255.0];
        WriteNumbers(json, "baseColorFactor", factors);
        json.WriteNumber("metallicFactor", material.Metallic);
        if (material.Roughness != 1)
        {
            json.WriteNumber("roughnessFactor", material.Roughness);
        }

        json.WriteEndObject();
        json.WriteBoolean("doubleSided", material.DoubleSided);
        if (color.A < 255)
        {
            json.WriteString("alphaMode", "BLEND");
        }
    }

    /// <summary>The format has linear light, not the encoded values of screens (IEC 61966-2-1).</summary>
    private static double Linear(byte component)
    {
        double c = component / 255.0;
        return Math.Round(c <= 0.04045 ? c / 12.92 : Math.Pow((c + 0.055) / 1.055, 2.4), 6);
    }

    private static void WriteAccessor(Utf8JsonWriter json, GltfAccessor accessor)
    {
        json.WriteNumber("bufferView", accessor.View);
        if (accessor.Offset > 0)
        {
            json.WriteNumber("byteOffset", accessor.Offset);
        }

        json.WriteNumber("componentType", accessor.ComponentType);
        json.WriteNumber("count", accessor.Count);
        json.WriteString("type", accessor.Type);
        if (accessor.Normalized)
        {
            json.WriteBoolean("normalized", true);
        }

        if (accessor.Bounds is Bounds3 bounds)
        {
            WriteNumbers(json, "min", Single(bounds.Min));
            WriteNumbers(json, "max", Single(bounds.Max));
        }
    }

    private static void WriteView(Utf8JsonWriter json, GltfView view)
    {
        json.WriteNumber("buffer", 0);
        json.WriteNumber("byteOffset", view.Offset);
        json.WriteNumber("byteLength", view.Length);
        json.WriteNumber("target", view.Target);
    }

    // The bounds are those of the stored values, which are single.
    private static double[] Single(Vec3 v) => [(float)v.X, (float)v.Y, (float)v.Z];
}
