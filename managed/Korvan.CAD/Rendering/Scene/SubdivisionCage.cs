using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The control mesh of a subdivision mesh: its vertices, then faces as counts followed by indices.</summary>
internal sealed record SubdivisionCage(IReadOnlyList<Vec3> Points, IReadOnlyList<int> Indexes)
{
    internal static SubdivisionCage Read(CadMesh mesh) =>
        new(mesh.Vertices.ConvertAll(static p => new Vec3(p.X, p.Y, p.Z)), mesh.FaceList);

    /// <summary>The corners of each face; faces with missing corners are left out.</summary>
    internal IEnumerable<Vec3[]> Faces()
    {
        for (int i = 0; i < Indexes.Count && Indexes[i] > 1 && i + Indexes[i] < Indexes.Count; i += Indexes[i] + 1)
        {
            var corners = new Vec3[Indexes[i]];
            bool whole = true;
            for (int k = 0; k < corners.Length; k++)
            {
                int index = Indexes[i + 1 + k];
                whole &= index >= 0 && index < Points.Count;
                corners[k] = whole ? Points[index] : default;
            }

            if (whole)
            {
                yield return corners;
            }
        }
    }
}
