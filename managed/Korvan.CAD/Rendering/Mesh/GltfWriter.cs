using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using System.Text.Json;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Mesh;

/// <summary>
/// Writes the GL transmission format 2.0 (ISO/IEC 12113). Its lengths are metres and its Y points up: a node above all
/// others turns and scales the drawing, and moves it, so that the points themselves stay near the origin, where the
/// format's single precision is fine.
/// </summary>
internal sealed class GltfWriter
{
    private const int ArrayBuffer = 34962;
    private const int ElementArrayBuffer = 34963;
    private const int Float = 5126;
    private const int UnsignedInt = 5125;
    private const int Triangles = 4;

    private readonly List<MeshPart> _parts;
    private readonly bool _doubleSided;
    private readonly double _metres;
    private readonly Vec3 _origin;
    private readonly List<Rgba> _colors = [];

    internal GltfWriter(List<MeshPart> parts, bool doubleSided, double metres)
    {
        _parts = parts;
        _doubleSided = doubleSided;
        _metres = metres;
        _origin = Origin(parts);
        foreach (MeshPart part in parts)
        {
            if (!_colors.Contains(part.Color))
            {
                _colors.Add(part.Color);
            }
        }
    }

    internal void WriteText(Stream output, bool indented)
    {
        byte[] data = Data();
        using var json = new Utf8JsonWriter(output, new JsonWriterOptions { Indented = indented });
        WriteJson(json, data.Length, "data:application/octet-stream;base64," + Convert.ToBase64String(data));
    }

    internal void WriteBinary(Stream output)
    {
        byte[] data = Data();
        using var text = new MemoryStream();
        using (var json = new Utf8JsonWriter(text))
        {
            WriteJson(json, data.Length, null);
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

        Words(output, 0x46546C67, 2, (uint)total, (uint)text.Length, 0x4E4F534A);
        text.Position = 0;
        text.CopyTo(output);
        Words(output, (uint)data.Length, 0x004E4942);
        output.Write(data);
    }

    private static void Words(Stream output, params ReadOnlySpan<uint> words)
    {
        Span<byte> bytes = stackalloc byte[4];
        foreach (uint word in words)
        {
            BinaryPrimitives.WriteUInt32LittleEndian(bytes, word);
            output.Write(bytes);
        }
    }

    private static Vec3 Origin(List<MeshPart> parts)
    {
        (Vec3 min, Vec3 max) = parts[0].Bounds();
        foreach (MeshPart part in parts)
        {
            (Vec3 low, Vec3 high) = part.Bounds();
            min = new Vec3(Math.Min(min.X, low.X), Math.Min(min.Y, low.Y), Math.Min(min.Z, low.Z));
            max = new Vec3(Math.Max(max.X, high.X), Math.Max(max.Y, high.Y), Math.Max(max.Z, high.Z));
        }

        return (min + max) * 0.5;
    }

    /// <summary>For each part its points, then the corners of its triangles.</summary>
    private byte[] Data()
    {
        long length = 0;
        _parts.ForEach(part => length += (part.Points.Count * 12L) + (part.Triangles.Count * 4L));
        if (length > Array.MaxLength)
        {
            throw new RenderException("The faces take more than 2 GB; write the drawing layer by layer.");
        }

        byte[] data = new byte[length];
        int at = 0;
        foreach (MeshPart part in _parts)
        {
            foreach (Vec3 point in part.Points)
            {
                Vec3 near = point - _origin;
                BinaryPrimitives.WriteSingleLittleEndian(data.AsSpan(at), (float)near.X);
                BinaryPrimitives.WriteSingleLittleEndian(data.AsSpan(at + 4), (float)near.Y);
                BinaryPrimitives.WriteSingleLittleEndian(data.AsSpan(at + 8), (float)near.Z);
                at += 12;
            }

            foreach (int corner in part.Triangles)
            {
                BinaryPrimitives.WriteInt32LittleEndian(data.AsSpan(at), corner);
                at += 4;
            }
        }

        return data;
    }

    private void WriteJson(Utf8JsonWriter json, int length, string? uri)
    {
        json.WriteStartObject();
        json.WriteStartObject("asset");
        json.WriteString("version", "2.0");
        json.WriteString("generator", "korvan.cad");
        json.WriteEndObject();
        json.WriteNumber("scene", 0);
        WriteArray(json, "scenes", 1, _ => WriteNumbers(json, "nodes", [0]));
        WriteNodes(json);
        WriteMeshes(json);
        WriteMaterials(json);
        WriteAccessors(json);
        WriteArray(json, "buffers", 1, _ =>
        {
            json.WriteNumber("byteLength", length);
            if (uri is not null)
            {
                json.WriteString("uri", uri);
            }
        });
        json.WriteEndObject();
    }

    private static void WriteArray(Utf8JsonWriter json, string name, int count, Action<int> write)
    {
        json.WriteStartArray(name);
        for (int i = 0; i < count; i++)
        {
            json.WriteStartObject();
            write(i);
            json.WriteEndObject();
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

    private void WriteNodes(Utf8JsonWriter json)
    {
        WriteArray(json, "nodes", _parts.Count + 1, i =>
        {
            if (i > 0)
            {
                json.WriteString("name", _parts[i - 1].Layer);
                json.WriteNumber("mesh", i - 1);
                return;
            }

            // Column by column: x stays, z becomes y, y becomes -z; then metres, and the place of the drawing.
            double k = _metres;
            WriteNumbers(json, "matrix", [k, 0, 0, 0, 0, 0, -k, 0, 0, k, 0, 0, k * _origin.X, k * _origin.Z, -k * _origin.Y, 1]);
            json.WriteStartArray("children");
            for (int child = 1; child <= _parts.Count; child++)
            {
                json.WriteNumberValue(child);
            }

            json.WriteEndArray();
        });
    }

    private void WriteMeshes(Utf8JsonWriter json)
    {
        WriteArray(json, "meshes", _parts.Count, i =>
        {
            json.WriteString("name", _parts[i].Handle.Length > 0 ? $"{_parts[i].TypeName} {_parts[i].Handle}" : _parts[i].TypeName);
            WriteArray(json, "primitives", 1, _ =>
            {
                json.WriteStartObject("attributes");
                json.WriteNumber("POSITION", 2 * i);
                json.WriteEndObject();
                json.WriteNumber("indices", (2 * i) + 1);
                json.WriteNumber("material", _colors.IndexOf(_parts[i].Color));
                json.WriteNumber("mode", Triangles);
            });
        });
    }

    private void WriteMaterials(Utf8JsonWriter json)
    {
        WriteArray(json, "materials", _colors.Count, i =>
        {
            Rgba color = _colors[i];
            json.WriteStartObject("pbrMetallicRoughness");
            WriteNumbers(json, "baseColorFactor", [Linear(color.R), Linear(color.G), Linear(color.B), color.A / 255.0]);
            json.WriteNumber("metallicFactor", 0);
            json.WriteEndObject();
            json.WriteBoolean("doubleSided", _doubleSided);
            if (color.A < 255)
            {
                json.WriteString("alphaMode", "BLEND");
            }
        });
    }

    /// <summary>The format counts light, not the steps of screens (IEC 61966-2-1).</summary>
    private static double Linear(byte part)
    {
        double c = part / 255.0;
        return Math.Round(c <= 0.04045 ? c / 12.92 : Math.Pow((c + 0.055) / 1.055, 2.4), 6);
    }

    private void WriteAccessors(Utf8JsonWriter json)
    {
        WriteArray(json, "accessors", 2 * _parts.Count, i =>
        {
            MeshPart part = _parts[i / 2];
            bool points = i % 2 == 0;
            json.WriteNumber("bufferView", i);
            json.WriteNumber("componentType", points ? Float : UnsignedInt);
            json.WriteNumber("count", points ? part.Points.Count : part.Triangles.Count);
            json.WriteString("type", points ? "VEC3" : "SCALAR");
            if (points)
            {
                (Vec3 min, Vec3 max) = part.Bounds();
                WriteNumbers(json, "min", Single(min - _origin));
                WriteNumbers(json, "max", Single(max - _origin));
            }
        });
        long at = 0;
        WriteArray(json, "bufferViews", 2 * _parts.Count, i =>
        {
            MeshPart part = _parts[i / 2];
            long length = i % 2 == 0 ? part.Points.Count * 12L : part.Triangles.Count * 4L;
            json.WriteNumber("buffer", 0);
            json.WriteNumber("byteOffset", at);
            json.WriteNumber("byteLength", length);
            json.WriteNumber("target", i % 2 == 0 ? ArrayBuffer : ElementArrayBuffer);
            at += length;
        });
    }

    // The bounds are those of the stored values, which are single.
    private static double[] Single(Vec3 v) => [(float)v.X, (float)v.Y, (float)v.Z];
}
