using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>Carries the fields of hatches as drawing databases have them. Source: Open Design Specification for .dwg
/// files, 5.4.1, section 20.4.75.</summary>
internal static class HatchBits
{
    private const CadBoundaryPathTypeFlag Derived = (CadBoundaryPathTypeFlag)4;

    internal static void Exchange(CadHatch hatch, BitExchange fields)
    {
        if (fields.Release >= 2004)
        {
            ExchangeGradient(hatch, fields);
        }

        hatch.ElevationPoint.Z = fields.BitDouble(hatch.ElevationPoint.Z);
        fields.Point3(hatch.ExtrusionDirection);
        hatch.PatternName = fields.Text(hatch.PatternName);
        hatch.SolidFillFlag = (short)fields.Flag(hatch.SolidFillFlag);
        hatch.AssociativityFlag = (short)fields.Flag(hatch.AssociativityFlag);
        int paths = fields.CountLong(hatch.BoundaryPaths.Count);
        bool hasDerived = false;
        for (int i = 0; i < paths; i++)
        {
            ExchangePath(hatch, i, fields);
            hasDerived |= (hatch.BoundaryPaths[i].PathTypeFlag & Derived) != 0;
        }

        hatch.HatchStyle = (short)fields.BitShort(hatch.HatchStyle);
        hatch.PatternType = (short)fields.BitShort(hatch.PatternType);
        if (hatch.SolidFillFlag == 0)
        {
            ExchangePattern(hatch, fields);
        }

        if (hasDerived)
        {
            hatch.PixelSize = fields.BitDouble(hatch.PixelSize);
        }

        int seeds = fields.CountLong(hatch.SeedPoints.Count);
        for (int i = 0; i < seeds; i++)
        {
            fields.RawPoint2(fields.Item(hatch.SeedPoints, i));
        }
    }

    private static void ExchangeGradient(CadHatch hatch, BitExchange fields)
    {
        hatch.IsGradient = fields.BitLong(hatch.IsGradient);
        hatch.ReservedValues.GradientValue = fields.BitLong(hatch.ReservedValues.GradientValue);
        hatch.GradientAngle = fields.BitDouble(hatch.GradientAngle);
        hatch.GradientShift = fields.BitDouble(hatch.GradientShift);
        hatch.SingleColorGradient = fields.BitLong(hatch.SingleColorGradient);
        hatch.GradientTint = fields.BitDouble(hatch.GradientTint);
        int count = fields.CountLong(hatch.GradientColors.Count);
        for (int i = 0; i < count; i++)
        {
            ExchangeGradientColor(hatch, i, fields);
        }

        hatch.GradientName = fields.Text(hatch.GradientName);
    }

    private static void ExchangeGradientColor(CadHatch hatch, int index, BitExchange fields)
    {
        bool isKnown = index < hatch.GradientStops.Count;
        double position = fields.BitDouble(isKnown ? hatch.GradientStops[index].Position : index);
        short? indexed = isKnown ? hatch.GradientStops[index].ColorId : null;
        int rgb = index < hatch.GradientColors.Count ? hatch.GradientColors[index] : 0;
        (int color, int value, _) = fields.Color(indexed ?? 0, rgb, "");
        if (fields.IsReading)
        {
            value = value >= 0 ? value : IndexedColors.Rgb(color & 0xFF);
            hatch.GradientStops.Add((position, (short)color));
            hatch.GradientColors.Add(value);
        }
    }

    private static void ExchangePath(CadHatch hatch, int index, BitExchange fields)
    {
        CadBoundaryPathTypeFlag flag = fields.IsReading ? 0 : hatch.BoundaryPaths[index].PathTypeFlag;
        flag = (CadBoundaryPathTypeFlag)fields.BitLong((int)flag);
        if (fields.IsReading)
        {
            hatch.BoundaryPaths.Add(HatchFields.CreatePath(flag));
        }

        CadHatchBoundaryPathContainer container = hatch.BoundaryPaths[index];
        container.BoundaryPath.ExchangeBits(fields);
        List<string> sources = container.SourceBoundaryObjects;
        int count = fields.CountLong(sources.Count);
        fields.Handles(HandleRole.SoftPointer, sources, count);
    }

    private static void ExchangePattern(CadHatch hatch, BitExchange fields)
    {
        hatch.PatternAngle = fields.Angle(hatch.PatternAngle);
        hatch.PatternScale = fields.BitDouble(hatch.PatternScale);
        hatch.DoubleFlag = (short)fields.Flag(hatch.DoubleFlag);
        int count = fields.CountShort(hatch.PatternDefinitions.Count);
        for (int i = 0; i < count; i++)
        {
            CadHatchPatternData line = fields.Item(hatch.PatternDefinitions, i);
            line.LineAngle = fields.Angle(line.LineAngle);
            fields.Point2(line.LineBasePoint);
            fields.Point2(line.LineOffset);
            fields.Doubles(line.DashLengths, fields.CountShort(line.DashLengths.Count));
        }
    }
}
