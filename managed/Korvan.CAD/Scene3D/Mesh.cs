using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Scene3D;

/// <summary>A run of <see cref="Mesh.Indices"/> of one material.</summary>
internal readonly record struct MeshRange(int First, int Count, Material Material);

/// <summary>
/// Triangles between points. Normals, texture coordinates and colours are one for each point, or none at all.
/// </summary>
internal sealed class Mesh
{
    internal string Name { get; init; } = "";

    internal List<Vec3> Positions { get; } = [];

    internal List<Vec3> Normals { get; } = [];

    internal List<Vec2> TextureCoordinates { get; } = [];

    internal List<Rgba> Colors { get; } = [];

    /// <summary>Gets places in <see cref="Positions"/>, three for each triangle, counterclockwise from
    /// outside.</summary>
    internal List<int> Indices { get; } = [];

    /// <summary>Gets the materials of the triangles; the ranges cover all of them.</summary>
    internal List<MeshRange> Ranges { get; } = [];

    /// <summary>Gets places in <see cref="Positions"/>, two for each edge that is seen as a line.</summary>
    internal List<int> Edges { get; } = [];

    /// <summary>The triangles of a range as a map shows them; a mirror changes their sense, which is mended.</summary>
    internal IEnumerable<(Vec3 A, Vec3 B, Vec3 C)> Triangles(MeshRange range, Affine3 map)
    {
        bool mirror = map.IsMirror;
        for (int i = range.First; i < range.First + range.Count; i += 3)
        {
            Vec3 a = map.Point(Positions[Indices[i]]);
            Vec3 b = map.Point(Positions[Indices[i + 1]]);
            Vec3 c = map.Point(Positions[Indices[i + 2]]);
            yield return mirror ? (a, c, b) : (a, b, c);
        }
    }

    /// <summary>The box around all points; empty where there are none.</summary>
    internal Bounds3 Bounds() => Positions.Aggregate(Bounds3.Empty, static (box, point) => box.With(point));
}
