using System;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Meshes;

namespace Korvan.CAD.Formats.Mesh;

/// <summary>Stereolithography, written from the faces of drawings.</summary>
internal static class StlFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "STL",
        Formats = [FileFormat.Stl],
        Detect = static source => source.FirstBytes.StartsWith("solid "u8) ? FileFormat.Stl : FileFormat.Undefined,
        Writers =
        [
            MeshWriters.For<StlOptions>(
                static _ => new MeshRequest(), MeshExporter.WriteStl),
        ],
    };
}
