using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Meshes;

namespace Korvan.CAD.Formats.Mesh;

/// <summary>Wavefront OBJ, written from the faces of drawings.</summary>
internal static class ObjFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "OBJ",
        Formats = [FileFormat.Obj],
        Writers =
        [
            MeshWriters.For<ObjOptions>(
                static _ => new MeshRequest(MergeLayers: true), MeshExporter.WriteObj),
        ],
    };
}
