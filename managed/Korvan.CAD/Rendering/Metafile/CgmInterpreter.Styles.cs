using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.Geometry;
using ASF = Korvan.CAD.FileFormats.Cgm.Commands.AspectSourceFlags.ASFType;

namespace Korvan.CAD.Rendering.Metafile;

/// <content>Colours, widths and dash patterns, from the attributes and the bundles.</content>
internal sealed partial class CgmInterpreter
{
    /// <summary>The nominal width of scaled widths: about a pixel of a screen.</summary>
    private const double NominalWidthMm = 0.25;
    private const double DefaultWidthMm = 0.35;

    /// <summary>Defaults of sizes are fractions of the longer side of the picture (ISO/IEC 8632-1, clause 8).</summary>
    private const double DefaultWidthShare = 0.001;
    private const double DashUnitShare = 1.0 / 600;

    /// <summary>Colours of undefined indexes: background, foreground, then the common ones.</summary>
    private static readonly Rgba[] DefaultColors =
    [
        Rgba.White, Rgba.Black, new(255, 0, 0), new(0, 255, 0), new(0, 0, 255), new(255, 255, 0), new(255, 0, 255),
        new(0, 255, 255),
    ];

    /// <summary>Dashes and gaps of the registered line types, in dash units.</summary>
    private static readonly Dictionary<DashType, double[]> Dashes = new()
    {
        [DashType.Dash] = [6, 3],
        [DashType.Dot] = [1, 2],
        [DashType.DashDot] = [6, 2, 1, 2],
        [DashType.DashDotDot] = [6, 2, 1, 2, 1, 2],
        [DashType.Stitch] = [3, 3],
        [DashType.Chain] = [12, 3, 3, 3],
        [DashType.Center] = [12, 3, 4, 3],
        [DashType.Hidden] = [4, 2],
        [DashType.Phantom] = [14, 3, 4, 3, 4, 3],
    };

    /// <summary>The unit of a size specification mode in VDC; millimetres only where the picture has a scale.</summary>
    private double UnitOf(SpecificationMode mode, double scaled) => mode switch
    {
        SpecificationMode.Absolute => 1,
        SpecificationMode.Fractional => LongerSide,
        SpecificationMode.Millimetres when _picture.Frame.MillimetresPerUnit is double mm => 1 / mm,
        _ => scaled,
    };

    private bool IsBundled(ASF flag) => Paint.Bundled.Contains(flag);

    private Rgba ColorOf(CgmColor? color)
    {
        if (_style.SingleColor is Rgba single)
        {
            return single;
        }

        if (color is { IsIndexed: false })
        {
            return new Rgba(color.Color.R, color.Color.G, color.Color.B, color.Color.A);
        }

        return TableColor(color?.Index ?? 1);
    }

    private Rgba TableColor(int index)
    {
        if (_state.Colors.TryGetValue(index, out Rgba stated))
        {
            return stated;
        }

        if (index == 0 && _state.Background is { IsIndexed: false } paper)
        {
            return new Rgba(paper.Color.R, paper.Color.G, paper.Color.B);
        }

        return index < DefaultColors.Length ? DefaultColors[index] : Rgba.Black;
    }

    /// <summary>Strokes a path as a line or, with the attributes of edges, as the border of an area.</summary>
    private void Stroke(PathBuffer path, bool isEdge)
    {
        EnsureClip();
        LineState line = isEdge ? CurrentEdge() : CurrentLine();
        SpecificationMode mode = isEdge ? _state.EdgeWidthMode : _state.LineWidthMode;
        StrokeAttributes style = Width(line.Width, mode);
        style.Color = ColorOf(line.Color);
        style.Layer = _layer;
        style.Style = List.StyleIndex(StyleOf(line));
        style.Dash = DashOf(line, style, out double period);
        style.DashOffset = (float)(line.DashOffset * period);
        List.Stroke(path, style);
    }

    private LineState CurrentLine()
    {
        LineState line = Paint.Line;
        if (_state.LineBundles.TryGetValue(line.Bundle, out LineRepresentation? bundle))
        {
            line.Type = IsBundled(ASF.LineType) ? bundle.Type : line.Type;
            line.Width = IsBundled(ASF.LineWidth) ? bundle.Width : line.Width;
            line.Color = IsBundled(ASF.LineColour) ? bundle.Color : line.Color;
        }

        return line;
    }

    private LineState CurrentEdge()
    {
        LineState edge = Paint.Edge;
        if (_state.EdgeBundles.TryGetValue(edge.Bundle, out EdgeRepresentation? bundle))
        {
            edge.Type = IsBundled(ASF.EdgeType) ? bundle.Type : edge.Type;
            edge.Width = IsBundled(ASF.EdgeWidth) ? bundle.Width : edge.Width;
            edge.Color = IsBundled(ASF.EdgeColour) ? bundle.Color : edge.Color;
        }

        return edge;
    }

    /// <summary>The stroke style of a width in the unit of its mode.</summary>
    private StrokeAttributes Width(double? stated, SpecificationMode mode)
    {
        double width = Math.Abs(stated ?? DefaultWidth(mode));
        double? units = mode switch
        {
            SpecificationMode.Absolute => width,
            SpecificationMode.Fractional => width * LongerSide,
            SpecificationMode.Millimetres when _picture.Frame.MillimetresPerUnit is double mm => width / mm,
            _ => null,
        };
        double millimetres = mode == SpecificationMode.Scaled ? width * NominalWidthMm : width;
        return units is double length
            ? new StrokeAttributes { LineWeight = (float)(length * Scale), WeightInUnits = true, Dash = -1 }
            : new StrokeAttributes { LineWeight = (float)millimetres, Dash = -1 };
    }

    private double DefaultWidth(SpecificationMode mode) => mode switch
    {
        SpecificationMode.Scaled => 1,
        SpecificationMode.Millimetres => DefaultWidthMm,
        SpecificationMode.Fractional => DefaultWidthShare,
        _ => DefaultWidthShare * LongerSide,
    };

    private StrokeStyle StyleOf(in LineState line)
    {
        LineCaps cap = line.Cap switch
        {
            LineCapIndicator.Butt => LineCaps.Butt,
            LineCapIndicator.ProjectingSquare => LineCaps.Square,
            _ => LineCaps.Round,
        };
        LineJoins join = line.Join switch
        {
            JoinIndicator.Mitre => LineJoins.Miter,
            JoinIndicator.Bevel => LineJoins.Bevel,
            _ => LineJoins.Round,
        };
        return new StrokeStyle(cap, join, Math.Clamp(Paint.MitreLimit, 1, 100));
    }

    private int DashOf(in LineState line, in StrokeAttributes style, out double period)
    {
        period = 0;
        if (line.Type is not DashType type)
        {
            return -1;
        }

        double unit = Math.Max(LongerSide * DashUnitShare, style.WeightInUnits ? style.LineWeight / Scale : 0);
        double[] lengths;
        if (_state.LineTypes.TryGetValue((int)type, out LineAndEdgeTypeDefinition? own))
        {
            lengths = OwnDashes(own);
        }
        else if (!Dashes.TryGetValue(type, out lengths!))
        {
            return -1;
        }
        else
        {
            lengths = Array.ConvertAll(lengths, length => length * unit * _style.LineTypeScale);
        }

        double scale = Scale;
        lengths = Array.ConvertAll(lengths, length => length * scale);
        foreach (double length in lengths)
        {
            period += length;
        }

        return period > 0 && double.IsFinite(period) ? List.Dash(lengths) : -1;
    }

    /// <summary>The dash pattern of a definition in the picture: dashes and gaps as fractions of its length.</summary>
    private double[] OwnDashes(LineAndEdgeTypeDefinition own)
    {
        const int maxDashes = 64;
        double sum = 0;
        own.Elements.ForEach(element => sum += Math.Abs((double)element));
        if (!(sum > 0) || own.Elements.Count > maxDashes)
        {
            return [];
        }

        double repeat = own.RepeatLength * UnitOf(_state.LineWidthMode, LongerSide * DefaultWidthShare);
        List<double> lengths = own.Elements.ConvertAll(element => Math.Abs((double)element) * Math.Abs(repeat) / sum);
        if (lengths.Count % 2 == 1)
        {
            lengths.AddRange(lengths); // an odd count swaps dashes and gaps in each repeat
        }

        return [.. lengths];
    }
}
