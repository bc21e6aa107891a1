using System;
using System.Buffers.Binary;
using System.Globalization;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.Geometry;
using Korvan.CAD.Scene3D;

namespace Korvan.CAD.Rendering.Meshes;

/// <summary>Writes triangles for stereolithography, as bytes or as text.</summary>
internal static class StlWriter
{
    private const int HeaderLength = 80;
    private const int TriangleLength = 50;

    internal static void WriteBinary(Scene3D.Scene scene, Stream output)
    {
        // A header that begins with "solid" would pass for the text form.
        byte[] header = new byte[HeaderLength + 4];
        Encoding.ASCII.GetBytes("korvan.cad", header);
        BinaryPrimitives.WriteInt32LittleEndian(header.AsSpan(HeaderLength), Count(scene));
        output.Write(header);
        byte[] record = new byte[TriangleLength];
        ForEach(scene, (a, b, c) =>
        {
            Put(record, 0, Normal(a, b, c));
            Put(record, 12, a);
            Put(record, 24, b);
            Put(record, 36, c);
            output.Write(record);
        });
    }

    internal static void WriteText(Scene3D.Scene scene, Stream output)
    {
        using var writer =
            new StreamWriter(output, new UTF8Encoding(false), 64 * 1024, leaveOpen: true) { NewLine = "\n" };
        writer.WriteLine("solid drawing");
        ForEach(scene, (a, b, c) =>
        {
            writer.WriteLine($"facet normal {Text(Normal(a, b, c))}");
            writer.WriteLine(" outer loop");
            foreach (Vec3 corner in (ReadOnlySpan<Vec3>)[a, b, c])
            {
                writer.WriteLine($"  vertex {Text(corner)}");
            }

            writer.WriteLine(" endloop");
            writer.WriteLine("endfacet");
        });
        writer.WriteLine("endsolid drawing");
    }

    private static int Count(Scene3D.Scene scene) =>
        scene.Instances().Sum(instance => instance.Mesh.Indices.Count / 3);

    private static void ForEach(Scene3D.Scene scene, Action<Vec3, Vec3, Vec3> take)
    {
        foreach ((Node _, Mesh mesh, Affine3 world) in scene.Instances())
        {
            foreach ((Vec3 a, Vec3 b, Vec3 c) in mesh.Ranges.SelectMany(range => mesh.Triangles(range, world)))
            {
                take(a, b, c);
            }
        }
    }

    /// <summary>The unit normal of a triangle; zero for one without area.</summary>
    private static Vec3 Normal(Vec3 a, Vec3 b, Vec3 c) => Vec3.Cross(b - a, c - a).Unit();

    private static void Put(byte[] record, int at, Vec3 value)
    {
        BinaryPrimitives.WriteSingleLittleEndian(record.AsSpan(at), (float)value.X);
        BinaryPrimitives.WriteSingleLittleEndian(record.AsSpan(at + 4), (float)value.Y);
        BinaryPrimitives.WriteSingleLittleEndian(record.AsSpan(at + 8), (float)value.Z);
    }

    private static string Text(Vec3 v) => string.Create(CultureInfo.InvariantCulture, $"{v.X:R} {v.Y:R} {v.Z:R}");
}
