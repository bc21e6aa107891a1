using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The cage of a subdivision mesh: its vertices, then faces as counts followed by indexes.</summary>
internal sealed record SubdivisionCage(List<Vec3> Points, List<int> Indexes)
{
    internal static SubdivisionCage Read(TagCursor tags)
    {
        var cage = new SubdivisionCage([], []);
        bool inFaces = false;
        while (tags.Next())
        {
            switch (tags.Code)
            {
                case 10 when !inFaces:
                    cage.Points.Add(tags.Point());
                    break;
                case 93:
                    inFaces = true;
                    break;
                case 94:
                    inFaces = false;
                    break;
                case 90 when inFaces:
                    cage.Indexes.Add(tags.Integer);
                    break;
            }
        }

        return cage;
    }

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
