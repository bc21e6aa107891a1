using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>The parts of a hatch whose group codes depend on their position.</summary>
internal static class HatchFields
{
    internal static void ReadPaths(CadHatch hatch, FieldReader reader)
    {
        hatch.BoundaryPaths.EnsureCapacity(reader.GetCount());
        ReadMorePaths(hatch, reader);
    }

    /// <summary>Reads on in the paths after a field that is in none of them, from the current field on.</summary>
    /// <returns>Whether that one belongs to a path.</returns>
    internal static bool TryResumePaths(CadHatch hatch, FieldReader reader)
    {
        bool isOfPath = TryReadPathField(hatch, reader);
        if (isOfPath)
        {
            ReadMorePaths(hatch, reader);
        }

        return isOfPath;
    }

    private static void ReadMorePaths(CadHatch hatch, FieldReader reader)
    {
        while (reader.Next())
        {
            if (!TryReadPathField(hatch, reader))
            {
                reader.Unread();
                return;
            }
        }
    }

    private static bool TryReadPathField(CadHatch hatch, FieldReader reader)
    {
        if (reader.Code == 92)
        {
            hatch.BoundaryPaths.Add(CreatePath((CadBoundaryPathTypeFlag)reader.GetInt()));
            return true;
        }

        return hatch.BoundaryPaths.Count > 0 && ReadPathCode(hatch.BoundaryPaths[^1], reader);
    }

    internal static void ReadPattern(CadHatch hatch, FieldReader reader)
    {
        hatch.PatternDefinitions.EnsureCapacity(reader.GetCount());
        while (reader.Next())
        {
            if (reader.Code == 53)
            {
                hatch.PatternDefinitions.Add(new CadHatchPatternData { LineAngle = reader.GetAngle() });
            }
            else if (hatch.PatternDefinitions.Count == 0 || !ReadPatternCode(hatch.PatternDefinitions[^1], reader))
            {
                reader.Unread();
                return;
            }
        }
    }

    internal static void ReadSeeds(CadHatch hatch, FieldReader reader)
    {
        hatch.SeedPoints.EnsureCapacity(reader.GetCount());
        while (reader.Next())
        {
            if (!FieldLists.TryRead(reader.Code, 10, hatch.SeedPoints, reader))
            {
                reader.Unread();
                return;
            }
        }
    }

    internal static void Exchange(CadHatch hatch, ObjectExchange fields)
    {
        fields.Point(10, hatch.ElevationPoint);
        fields.Point(210, hatch.ExtrusionDirection);
        hatch.PatternName = fields.Text(2, hatch.PatternName);
        hatch.SolidFillFlag = fields.Int16(70, hatch.SolidFillFlag);
        hatch.AssociativityFlag = fields.Int16(71, hatch.AssociativityFlag);
        int paths = fields.Count(91, hatch.BoundaryPaths.Count);
        for (int i = 0; i < paths; i++)
        {
            ExchangePath(hatch, i, fields);
        }

        hatch.HatchStyle = fields.Int16(75, hatch.HatchStyle);
        hatch.PatternType = fields.Int16(76, hatch.PatternType);
        if (fields.Includes(0, hatch.SolidFillFlag == 0))
        {
            ExchangePattern(hatch, fields);
        }

        if (fields.Includes(0, hatch.PixelSize != 0))
        {
            hatch.PixelSize = fields.Double(47, hatch.PixelSize);
        }

        fields.Points(10, hatch.SeedPoints, fields.Count(98, hatch.SeedPoints.Count));
        if (fields.Includes(2004, hatch.IsGradient != 0 || hatch.GradientName.Length > 0))
        {
            ExchangeGradient(hatch, fields);
        }
    }

    internal static CadHatchBoundaryPathContainer CreatePath(CadBoundaryPathTypeFlag flag)
    {
        ICadBoundaryPath path = (flag & CadBoundaryPathTypeFlag.Polyline) != 0
            ? new CadPolylineBoundaryPath()
            : new CadEdgeBoundaryPath();
        return new CadHatchBoundaryPathContainer(path) { PathTypeFlag = flag };
    }

    private static bool ReadPathCode(CadHatchBoundaryPathContainer container, FieldReader reader)
    {
        switch (reader.Code)
        {
            case 97:
                // The number of fit points of a spline or of source entities: what follows tells.
                reader.GetCount();
                return true;
            case 330:
                container.SourceBoundaryObjects.Add(reader.GetHandleText());
                return true;
            case 75:
                return false;
            default:
                return container.BoundaryPath.ReadField(reader.Code, reader);
        }
    }

    private static bool ReadPatternCode(CadHatchPatternData line, FieldReader reader)
    {
        switch (reader.Code)
        {
            case 43:
                line.LineBasePoint.X = reader.GetDouble();
                return true;
            case 44:
                line.LineBasePoint.Y = reader.GetDouble();
                return true;
            case 45:
                line.LineOffset.X = reader.GetDouble();
                return true;
            case 46:
                line.LineOffset.Y = reader.GetDouble();
                return true;
            case 79:
                line.DashLengths.EnsureCapacity(reader.GetCount());
                return true;
            case 49:
                line.DashLengths.Add(reader.GetDouble());
                return true;
            default:
                return false;
        }
    }

    private static void ExchangePath(CadHatch hatch, int index, ObjectExchange fields)
    {
        CadBoundaryPathTypeFlag flag = fields.IsReading ? 0 : hatch.BoundaryPaths[index].PathTypeFlag;
        flag = (CadBoundaryPathTypeFlag)fields.Enum(92, (int)flag);
        if (fields.IsReading)
        {
            hatch.BoundaryPaths.Add(CreatePath(flag));
        }

        CadHatchBoundaryPathContainer container = hatch.BoundaryPaths[index];
        container.BoundaryPath.Exchange(fields);
        int sources = fields.Count(97, container.SourceBoundaryObjects.Count);
        fields.Handles(330, HandleRole.SoftPointer, container.SourceBoundaryObjects, sources);
    }

    private static void ExchangePattern(CadHatch hatch, ObjectExchange fields)
    {
        hatch.PatternAngle = fields.Angle(52, hatch.PatternAngle);
        hatch.PatternScale = fields.Double(41, hatch.PatternScale);
        hatch.DoubleFlag = fields.Int16(77, hatch.DoubleFlag);
        int count = fields.Count(78, hatch.PatternDefinitions.Count);
        for (int i = 0; i < count; i++)
        {
            CadHatchPatternData line = fields.Item(hatch.PatternDefinitions, i);
            line.LineAngle = fields.Angle(53, line.LineAngle);
            line.LineBasePoint.X = fields.Double(43, line.LineBasePoint.X);
            line.LineBasePoint.Y = fields.Double(44, line.LineBasePoint.Y);
            line.LineOffset.X = fields.Double(45, line.LineOffset.X);
            line.LineOffset.Y = fields.Double(46, line.LineOffset.Y);
            fields.Items(49, line.DashLengths, fields.Count(79, line.DashLengths.Count));
        }
    }

    private static void ExchangeGradient(CadHatch hatch, ObjectExchange fields)
    {
        hatch.IsGradient = fields.Int32(450, hatch.IsGradient);
        hatch.ReservedValues.GradientValue = fields.Int32(451, hatch.ReservedValues.GradientValue);
        hatch.GradientAngle = fields.Double(460, hatch.GradientAngle);
        hatch.GradientShift = fields.Double(461, hatch.GradientShift);
        hatch.SingleColorGradient = fields.Int32(452, hatch.SingleColorGradient);
        hatch.GradientTint = fields.Double(462, hatch.GradientTint);
        int count = fields.Count(453, hatch.GradientColors.Count);
        for (int i = 0; i < count; i++)
        {
            ExchangeGradientColor(hatch, i, fields);
        }

        hatch.GradientName = fields.Text(470, hatch.GradientName);
    }

    private static void ExchangeGradientColor(CadHatch hatch, int index, ObjectExchange fields)
    {
        (double position, short? colorId) = index < hatch.GradientStops.Count
            ? hatch.GradientStops[index]
            : ((double)index, null);
        position = fields.Double(463, position);
        if (fields.Includes(0, colorId is not null))
        {
            colorId = fields.Color(63, colorId ?? 0);
        }

        int color = fields.Int32(421, index < hatch.GradientColors.Count ? hatch.GradientColors[index] : 0);
        if (fields.IsReading)
        {
            hatch.GradientStops.Add((position, colorId));
            hatch.GradientColors.Add(color);
        }
    }
}
