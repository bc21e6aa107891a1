using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Geometry.Triangulation;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>Hatches as releases up to 13 have them: a block without a name that holds the lines of the pattern, or
/// filled triangles.</summary>
internal static class HatchBlock
{
    private const int MaxLines = 100_000;

    /// <summary>Makes the block of a hatch; nothing for one without area or with too many lines.</summary>
    /// <param name="hatch">The hatch.</param>
    /// <param name="plane">The map from the plane of the hatch to world coordinates.</param>
    /// <param name="style">Gives an entity the layer and colour of the hatch.</param>
    internal static CadBlockEntity? Of(CadHatch hatch, in Affine3 plane, Action<CadEntityBase> style)
    {
        List<HatchLoop> loops = HatchLoops.Select(
            HatchAreas.Loops(hatch), (HatchStyle)Math.Clamp((int)hatch.HatchStyle, 0, 2));
        List<Vec2[]> rings = loops.ConvertAll(static loop => loop.Ring);
        CadBlockEntity block = new() { Flags = BlockNames.Anonymous };
        if (hatch.SolidFillFlag != 0 || hatch.IsGradient != 0)
        {
            AddTriangles(hatch, rings, block);
        }
        else
        {
            AddLines(hatch, rings, plane, block);
        }

        block.Entities.ForEach(style);
        return block.Entities.Count > 0 ? block : null;
    }

    private static void AddTriangles(CadHatch hatch, List<Vec2[]> rings, CadBlockEntity block)
    {
        if (rings.Count == 0 || PolygonTriangulator.TryTriangulate(rings, FillRule.EvenOdd) is not { } filled)
        {
            return;
        }

        List<Vec2> corners = [];
        rings.ForEach(corners.AddRange);
        corners.AddRange(Array.ConvertAll(filled.Added, static added => added.At));
        for (int i = 0; i + 2 < filled.Triangles.Length; i += 3)
        {
            Budget.Step();
            block.Entities.Add(new CadSolid
            {
                FirstPoint = At(filled.Triangles[i]),
                SecondPoint = At(filled.Triangles[i + 1]),
                ThirdPoint = At(filled.Triangles[i + 2]),
                FourthPoint = At(filled.Triangles[i + 2]),
                ExtrusionDirection = hatch.ExtrusionDirection,
            });
        }

        Cad3DPoint At(int corner) => new(corners[corner].X, corners[corner].Y, hatch.ElevationPoint.Z);
    }

    private static void AddLines(CadHatch hatch, List<Vec2[]> rings, Affine3 plane, CadBlockEntity block)
    {
        var path = new PathBuffer();
        if (!PatternFill.TryFill(rings, HatchAreas.Lines(hatch), path) || path.Verbs.Length > 2 * MaxLines)
        {
            return;
        }

        ReadOnlySpan<double> at = path.Coords;
        for (int i = 0; i + 3 < at.Length; i += 4)
        {
            block.Entities.Add(new CadLine
            {
                FirstPoint = At(at[i], at[i + 1]),
                SecondPoint = At(at[i + 2], at[i + 3]),
            });
        }

        Cad3DPoint At(double x, double y)
        {
            Vec3 point = plane.Point(new Vec3(x, y, hatch.ElevationPoint.Z));
            return new Cad3DPoint(point.X, point.Y, point.Z);
        }
    }
}
