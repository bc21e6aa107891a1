using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Mesh;

namespace Korvan.CAD.Formats.Mesh;

/// <summary>Wavefront OBJ, written from the faces of drawings.</summary>
internal static class ObjFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "OBJ",
        Formats = [FileFormat.Obj],
        Writers = [MeshWriters.For<ObjOptions>(MeshExporter.WriteObj)],
    };
}
