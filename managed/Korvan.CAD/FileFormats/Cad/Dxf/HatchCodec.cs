using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>The parts of a hatch whose codes mean different things by their place.</summary>
internal static class HatchCodec
{
    internal static void ReadPaths(CadHatch hatch, DxfTagReader tags)
    {
        hatch.BoundaryPaths.EnsureCapacity(tags.GetCount());
        CadHatchBoundaryPathContainer? container = null;
        while (tags.Next())
        {
            if (tags.Code == 92)
            {
                container = CreatePath(tags);
                hatch.BoundaryPaths.Add(container);
            }
            else if (container is null || !ReadPathCode(container, tags))
            {
                tags.Unread();
                return;
            }
        }
    }

    internal static void ReadPattern(CadHatch hatch, DxfTagReader tags)
    {
        hatch.PatternDefinitions.EnsureCapacity(tags.GetCount());
        while (tags.Next())
        {
            if (tags.Code == 53)
            {
                hatch.PatternDefinitions.Add(new CadHatchPatternData { LineAngle = tags.GetDouble() });
            }
            else if (hatch.PatternDefinitions.Count == 0 || !ReadPatternCode(hatch.PatternDefinitions[^1], tags))
            {
                tags.Unread();
                return;
            }
        }
    }

    internal static void ReadSeeds(CadHatch hatch, DxfTagReader tags)
    {
        hatch.SeedPoints.EnsureCapacity(tags.GetCount());
        while (tags.Next())
        {
            if (!PointLists.TryRead(tags.Code, 10, hatch.SeedPoints, tags))
            {
                tags.Unread();
                return;
            }
        }
    }

    internal static void Write(CadHatch hatch, DxfTagWriter writer)
    {
        writer.Write(10, hatch.ElevationPoint);
        writer.Write(210, hatch.ExtrusionDirection);
        writer.Write(2, hatch.PatternName);
        writer.Write(70, hatch.SolidFillFlag);
        writer.Write(71, hatch.AssociativityFlag);
        writer.Write(91, hatch.BoundaryPaths.Count);
        foreach (CadHatchBoundaryPathContainer container in hatch.BoundaryPaths)
        {
            WritePath(container, writer);
        }

        writer.Write(75, hatch.HatchStyle);
        writer.Write(76, hatch.PatternType);
        if (hatch.SolidFillFlag == 0)
        {
            WritePattern(hatch, writer);
        }

        if (hatch.PixelSize != 0)
        {
            writer.Write(47, hatch.PixelSize);
        }

        writer.Write(98, hatch.SeedPoints.Count);
        hatch.SeedPoints.ForEach(point => writer.Write(10, point));
        if (writer.Release >= 2004 && (hatch.IsGradient != 0 || hatch.GradientName.Length > 0))
        {
            WriteGradient(hatch, writer);
        }
    }

    private static CadHatchBoundaryPathContainer CreatePath(DxfTagReader tags)
    {
        CadBoundaryPathTypeFlag flag = (CadBoundaryPathTypeFlag)tags.GetInt();
        ICadBoundaryPath path = (flag & CadBoundaryPathTypeFlag.Polyline) != 0
            ? new CadPolylineBoundaryPath()
            : new CadEdgeBoundaryPath();
        return new CadHatchBoundaryPathContainer(path) { PathTypeFlag = flag };
    }

    private static bool ReadPathCode(CadHatchBoundaryPathContainer container, DxfTagReader tags)
    {
        switch (tags.Code)
        {
            case 97:
                // The number of fit points of a spline or of source entities: what follows tells.
                tags.GetCount();
                return true;
            case 330:
                container.SourceBoundaryObjects.Add(tags.GetString());
                return true;
            case 75:
                return false;
            default:
                return container.BoundaryPath.ReadCode(tags.Code, tags);
        }
    }

    private static bool ReadPatternCode(CadHatchPatternData line, DxfTagReader tags)
    {
        switch (tags.Code)
        {
            case 43:
                line.LineBasePoint.X = tags.GetDouble();
                return true;
            case 44:
                line.LineBasePoint.Y = tags.GetDouble();
                return true;
            case 45:
                line.LineOffset.X = tags.GetDouble();
                return true;
            case 46:
                line.LineOffset.Y = tags.GetDouble();
                return true;
            case 79:
                line.DashLengths.EnsureCapacity(tags.GetCount());
                return true;
            case 49:
                line.DashLengths.Add(tags.GetDouble());
                return true;
            default:
                return false;
        }
    }

    private static void WritePath(CadHatchBoundaryPathContainer container, DxfTagWriter writer)
    {
        writer.Write(92, (int)container.PathTypeFlag);
        container.BoundaryPath.WriteCodes(writer);
        writer.Write(97, container.SourceBoundaryObjects.Count);
        container.SourceBoundaryObjects.ForEach(handle => writer.Write(330, handle));
    }

    private static void WritePattern(CadHatch hatch, DxfTagWriter writer)
    {
        writer.Write(52, hatch.PatternAngle);
        writer.Write(41, hatch.PatternScale);
        writer.Write(77, hatch.DoubleFlag);
        writer.Write(78, hatch.PatternDefinitions.Count);
        foreach (CadHatchPatternData line in hatch.PatternDefinitions)
        {
            writer.Write(53, line.LineAngle);
            writer.Write(43, line.LineBasePoint.X);
            writer.Write(44, line.LineBasePoint.Y);
            writer.Write(45, line.LineOffset.X);
            writer.Write(46, line.LineOffset.Y);
            writer.Write(79, line.DashLengths.Count);
            line.DashLengths.ForEach(length => writer.Write(49, length));
        }
    }

    private static void WriteGradient(CadHatch hatch, DxfTagWriter writer)
    {
        writer.Write(450, hatch.IsGradient);
        writer.Write(451, 0);
        writer.Write(460, hatch.GradientAngle);
        writer.Write(461, hatch.GradientShift);
        writer.Write(452, hatch.SingleColorGradient);
        writer.Write(462, hatch.GradientTint);
        writer.Write(453, hatch.GradientColors.Count);
        for (int i = 0; i < hatch.GradientColors.Count; i++)
        {
            (double place, short? colorId) = i < hatch.GradientStops.Count
                ? hatch.GradientStops[i]
                : ((double)i, null);
            writer.Write(463, place);
            if (colorId is not null)
            {
                writer.Write(63, colorId.Value);
            }

            writer.Write(421, hatch.GradientColors[i]);
        }

        writer.Write(470, hatch.GradientName);
    }
}
