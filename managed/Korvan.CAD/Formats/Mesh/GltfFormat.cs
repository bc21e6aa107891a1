using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Meshes;

namespace Korvan.CAD.Formats.Mesh;

/// <summary>JSON glTF 2.0, written from the faces of drawings.</summary>
internal static class GltfFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "glTF",
        Formats = [FileFormat.Gltf],
        Writers =
        [
            MeshWriters.For<GltfOptions>(
                static options => new MeshRequest(options.MergeLayers, options.DoubleSided), MeshExporter.WriteGltf),
        ],
    };
}
