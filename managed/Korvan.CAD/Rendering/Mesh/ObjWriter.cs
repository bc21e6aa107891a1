using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Text;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Mesh;

/// <summary>Writes Wavefront objects: points with their colours, and triangles in a group for each part.</summary>
internal static class ObjWriter
{
    internal static void Write(List<MeshPart> parts, int precision, Stream output)
    {
        using var writer = new StreamWriter(output, new UTF8Encoding(false), 64 * 1024, leaveOpen: true) { NewLine = "\n" };
        string format = "F" + precision;
        writer.WriteLine("# korvan.cad");
        int before = 1;
        foreach (MeshPart part in parts)
        {
            writer.WriteLine($"g {Name(part.Layer)}");
            string color = $"{Part(part.Color.R)} {Part(part.Color.G)} {Part(part.Color.B)}";
            foreach (Vec3 p in part.Points)
            {
                writer.WriteLine($"v {Number(p.X, format)} {Number(p.Y, format)} {Number(p.Z, format)} {color}");
            }

            for (int i = 0; i < part.Triangles.Count; i += 3)
            {
                writer.WriteLine($"f {before + part.Triangles[i]} {before + part.Triangles[i + 1]} {before + part.Triangles[i + 2]}");
            }

            before += part.Points.Count;
        }
    }

    private static string Number(double value, string format) => value.ToString(format, CultureInfo.InvariantCulture);

    private static string Part(byte value) => (value / 255.0).ToString("0.####", CultureInfo.InvariantCulture);

    // A blank would end the name.
    private static string Name(string layer) => string.Concat(Array.ConvertAll(layer.ToCharArray(), c => char.IsWhiteSpace(c) ? "_" : c.ToString()));
}
