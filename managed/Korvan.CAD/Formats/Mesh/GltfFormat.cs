using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Mesh;

namespace Korvan.CAD.Formats.Mesh;

/// <summary>JSON glTF 2.0, written from the faces of drawings.</summary>
internal static class GltfFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "glTF",
        Formats = [FileFormat.Gltf],
        Writers = [MeshWriters.For<GltfOptions>(MeshExporter.WriteGltf)],
    };
}
