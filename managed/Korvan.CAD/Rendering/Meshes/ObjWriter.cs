using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Scene3D;

namespace Korvan.CAD.Rendering.Meshes;

/// <summary>Writes Wavefront objects: points with their colours, and triangles in a group for each layer.</summary>
internal static class ObjWriter
{
    private const int BufferSize = 64 * 1024;

    internal static void Write(Scene3D.Scene scene, int precision, Stream output)
    {
        using var writer =
            new StreamWriter(output, new UTF8Encoding(false), BufferSize, leaveOpen: true) { NewLine = "\n" };
        string format = "F" + precision;
        writer.WriteLine("# korvan.cad");
        int before = 1;
        foreach ((Node node, Mesh mesh, Affine3 world) in scene.Instances())
        {
            writer.WriteLine($"g {Name(node.Layer)}");
            WritePoints(writer, mesh, world, format);
            (int second, int third) = world.IsMirror ? (2, 1) : (1, 2);
            List<int> indices = mesh.Indices;
            for (int i = 0; i < indices.Count; i += 3)
            {
                writer.WriteLine(
                    $"f {before + indices[i]} {before + indices[i + second]} {before + indices[i + third]}");
            }

            before += mesh.Positions.Count;
        }
    }

    private static void WritePoints(StreamWriter writer, Mesh mesh, Affine3 world, string format)
    {
        Rgba[] colors = ColorsOf(mesh);
        for (int i = 0; i < colors.Length; i++)
        {
            Vec3 p = world.Point(mesh.Positions[i]);
            Rgba c = colors[i];
            string color = $"{Component(c.R)} {Component(c.G)} {Component(c.B)}";
            writer.WriteLine($"v {Number(p.X, format)} {Number(p.Y, format)} {Number(p.Z, format)} {color}");
        }
    }

    /// <summary>The colour of each point: its own, or that of the last material which uses it.</summary>
    private static Rgba[] ColorsOf(Mesh mesh)
    {
        if (mesh.Colors.Count > 0)
        {
            return [.. mesh.Colors];
        }

        var colors = new Rgba[mesh.Positions.Count];
        foreach (MeshRange range in mesh.Ranges)
        {
            for (int i = range.First; i < range.First + range.Count; i++)
            {
                colors[mesh.Indices[i]] = range.Material.Color;
            }
        }

        return colors;
    }

    private static string Number(double value, string format) => value.ToString(format, CultureInfo.InvariantCulture);

    private static string Component(byte value) => (value / 255.0).ToString("0.####", CultureInfo.InvariantCulture);

    // White space would end the name.
    private static string Name(string layer) =>
        string.Concat(Array.ConvertAll(layer.ToCharArray(), c => char.IsWhiteSpace(c) ? "_" : c.ToString()));
}
