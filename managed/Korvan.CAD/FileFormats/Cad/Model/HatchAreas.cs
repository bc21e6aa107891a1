using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The area of a hatch and its pattern, in the plane of the hatch.</summary>
internal static class HatchAreas
{
    private const double Tolerance = 1e-4;

    internal static List<HatchLoop> Loops(CadHatch hatch)
    {
        var loops = new List<HatchLoop>(hatch.BoundaryPaths.Count);
        foreach (CadHatchBoundaryPathContainer container in hatch.BoundaryPaths)
        {
            var path = new PathBuffer();
            EntityGeometry.EmitBoundary(container, Affine3.Identity, 0, new OutlineSink(path, Affine3.Identity));
            if (!path.IsEmpty && path.Bounds.IsFinite)
            {
                path.Close();
                double size = Math.Max(path.Bounds.Width, path.Bounds.Height);
                loops.Add(new HatchLoop(path, Math.Max(size * Tolerance, 1e-9))
                {
                    IsTextBox = (container.PathTypeFlag & CadBoundaryPathTypeFlag.Textbox) != 0,
                });
            }
        }

        return loops;
    }

    internal static List<HatchLine> Lines(CadHatch hatch)
    {
        var lines = new List<HatchLine>(hatch.PatternDefinitions.Count);
        foreach (CadHatchPatternData line in hatch.PatternDefinitions)
        {
            double angle = Angles.Radians(line.LineAngle);
            lines.Add(new HatchLine(angle, line.LineBasePoint.ToVec2(), line.LineOffset.ToVec2(), line.DashLengths));
        }

        return lines;
    }
}
