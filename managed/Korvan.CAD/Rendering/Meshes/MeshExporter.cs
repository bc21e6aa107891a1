using System.IO;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.Rendering.Meshes;

/// <summary>Writes the faces of a drawing in formats that hold nothing else.</summary>
internal static class MeshExporter
{
    internal static void WriteStl(CadDrawing drawing, StlOptions options, Stream output)
    {
        Scene3D.Scene scene = Read(drawing, options);
        if (options.Binary)
        {
            StlWriter.WriteBinary(scene, output);
        }
        else
        {
            StlWriter.WriteText(scene, output);
        }
    }

    internal static void WriteObj(CadDrawing drawing, ObjOptions options, Stream output) =>
        ObjWriter.Write(Read(drawing, options, mergeLayers: true), options.Precision, output);

    internal static void WriteGltf(CadDrawing drawing, GlbGltfOptionsBase options, Stream output)
    {
        var writer = new GltfWriter(Read(drawing, options, options.MergeLayers, options.DoubleSided));
        if (options is GltfOptions text)
        {
            writer.WriteText(output, text.Indented);
        }
        else
        {
            writer.WriteBinary(output);
        }
    }

    private static Scene3D.Scene Read(
        CadDrawing drawing, ImageOptionsBase options, bool mergeLayers = false, bool doubleSided = true)
    {
        Scene3D.Scene scene = DrawingMeshes.Read(drawing, options, mergeLayers, doubleSided);
        if (!scene.Instances().Any())
        {
            throw new RenderException(
                $"The drawing has no faces that show, and a file of the format {Verify.NameOf(options.TargetFormat)} "
                    + "holds nothing else: neither faces, meshes and solids nor anything that has a thickness.");
        }

        return scene;
    }
}
