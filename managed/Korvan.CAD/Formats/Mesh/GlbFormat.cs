using System;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Meshes;

namespace Korvan.CAD.Formats.Mesh;

/// <summary>Binary glTF 2.0, written from the faces of drawings.</summary>
internal static class GlbFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "GLB",
        Formats = [FileFormat.Glb],
        Detect = static source => source.FirstBytes.StartsWith("glTF"u8) ? FileFormat.Glb : FileFormat.Undefined,
        Writers =
        [
            MeshWriters.For<GlbOptions>(
                static options => new MeshRequest(options.MergeLayers, options.DoubleSided), MeshExporter.WriteGltf),
        ],
    };
}
