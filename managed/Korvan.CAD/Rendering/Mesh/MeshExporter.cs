using System.Collections.Generic;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Rendering.Mesh;

/// <summary>Writes the faces of a drawing in formats that hold nothing else.</summary>
internal static class MeshExporter
{
    internal static void WriteStl(CadDrawing drawing, StlOptions options, ExportContext context, Stream output)
    {
        List<MeshPart> parts = Collect(drawing, context);
        if (options.Binary)
        {
            StlWriter.WriteBinary(parts, output);
        }
        else
        {
            StlWriter.WriteText(parts, output);
        }
    }

    internal static void WriteObj(CadDrawing drawing, ObjOptions options, ExportContext context, Stream output) =>
        ObjWriter.Write(MeshScene.MergeLayers(Collect(drawing, context)), options.Precision, output);

    internal static void WriteGltf(CadDrawing drawing, GlbGltfOptionsBase options, ExportContext context, Stream output)
    {
        List<MeshPart> parts = Collect(drawing, context);
        double metres = (LengthUnits.Millimetres(drawing.UnitType) ?? 1000) / 1000;
        var writer = new GltfWriter(options.MergeLayers ? MeshScene.MergeLayers(parts) : parts, options.DoubleSided, metres);
        if (options is GltfOptions text)
        {
            writer.WriteText(output, text.Indented);
        }
        else
        {
            writer.WriteBinary(output);
        }
    }

    private static List<MeshPart> Collect(CadDrawing drawing, ExportContext context)
    {
        List<MeshPart> parts = MeshScene.Collect(drawing, context);
        if (parts.Count == 0)
        {
            throw new RenderException(
                $"The drawing has no faces that show, and a file of the format {Verify.NameOf(context.Options.TargetFormat)} "
                    + $"holds nothing else: "
                + "neither faces, meshes and solids nor anything that has a thickness.");
        }

        return parts;
    }

    /// <summary>The unit normal of a triangle; zero for one without area.</summary>
    internal static Vec3 Normal(Vec3 a, Vec3 b, Vec3 c) => Vec3.Cross(b - a, c - a).Unit();
}
