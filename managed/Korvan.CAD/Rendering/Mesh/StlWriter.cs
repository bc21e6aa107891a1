using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Text;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Mesh;

/// <summary>Writes triangles for stereolithography, as bytes or as words.</summary>
internal static class StlWriter
{
    private const int HeadLength = 80;
    private const int TriangleLength = 50;

    internal static void WriteBinary(List<MeshPart> parts, Stream output)
    {
        // A head that begins with "solid" would pass for the form of words.
        byte[] head = new byte[HeadLength + 4];
        Encoding.ASCII.GetBytes("korvan.cad", head);
        BinaryPrimitives.WriteInt32LittleEndian(head.AsSpan(HeadLength), Count(parts));
        output.Write(head);
        byte[] record = new byte[TriangleLength];
        ForEach(parts, (a, b, c) =>
        {
            Put(record, 0, MeshExporter.Normal(a, b, c));
            Put(record, 12, a);
            Put(record, 24, b);
            Put(record, 36, c);
            output.Write(record);
        });
    }

    internal static void WriteText(List<MeshPart> parts, Stream output)
    {
        using var writer = new StreamWriter(output, new UTF8Encoding(false), 64 * 1024, leaveOpen: true) { NewLine = "\n" };
        writer.WriteLine("solid drawing");
        ForEach(parts, (a, b, c) =>
        {
            writer.WriteLine($"facet normal {Words(MeshExporter.Normal(a, b, c))}");
            writer.WriteLine(" outer loop");
            foreach (Vec3 corner in (ReadOnlySpan<Vec3>)[a, b, c])
            {
                writer.WriteLine($"  vertex {Words(corner)}");
            }

            writer.WriteLine(" endloop");
            writer.WriteLine("endfacet");
        });
        writer.WriteLine("endsolid drawing");
    }

    private static int Count(List<MeshPart> parts)
    {
        int count = 0;
        parts.ForEach(part => count += part.Triangles.Count / 3);
        return count;
    }

    private static void ForEach(List<MeshPart> parts, Action<Vec3, Vec3, Vec3> take)
    {
        foreach (MeshPart part in parts)
        {
            for (int i = 0; i < part.Triangles.Count; i += 3)
            {
                (Vec3 a, Vec3 b, Vec3 c) = part.Triangle(i);
                take(a, b, c);
            }
        }
    }

    private static void Put(byte[] record, int at, Vec3 value)
    {
        BinaryPrimitives.WriteSingleLittleEndian(record.AsSpan(at), (float)value.X);
        BinaryPrimitives.WriteSingleLittleEndian(record.AsSpan(at + 4), (float)value.Y);
        BinaryPrimitives.WriteSingleLittleEndian(record.AsSpan(at + 8), (float)value.Z);
    }

    private static string Words(Vec3 v) => string.Create(CultureInfo.InvariantCulture, $"{v.X:R} {v.Y:R} {v.Z:R}");
}
