using System.IO;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.Rendering.Meshes;

/// <summary>Writes scenes in formats that hold meshes and nothing else.</summary>
internal static class MeshExporter
{
    internal static void WriteStl(Scene3D.Scene scene, StlOptions options, Stream output)
    {
        if (options.Binary)
        {
            StlWriter.WriteBinary(scene, output);
        }
        else
        {
            StlWriter.WriteText(scene, output);
        }
    }

    internal static void WriteObj(Scene3D.Scene scene, ObjOptions options, Stream output) =>
        ObjWriter.Write(scene, options.Precision, output);

    internal static void WriteGltf(Scene3D.Scene scene, GlbGltfOptionsBase options, Stream output)
    {
        var writer = new GltfWriter(scene);
        if (options is GltfOptions text)
        {
            writer.WriteText(output, text.Indented);
        }
        else
        {
            writer.WriteBinary(output);
        }
    }
}
