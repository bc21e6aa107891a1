using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using ASF = Korvan.CAD.FileFormats.Cgm.Commands.AspectSourceFlags.ASFType;

namespace Korvan.CAD.Rendering.Metafile;

/// <content>Colours, widths and dashes: what state and bundles come to.</content>
internal sealed partial class CgmInterpreter
{
    /// <summary>The width 1 of scaled widths: about a pixel of a screen.</summary>
    private const double NominalWidthMm = 0.25;
    private const double DefaultWidthMm = 0.35;

    /// <summary>Defaults of sizes are parts of the longer side of the picture (ISO/IEC 8632-1, clause 8).</summary>
    private const double DefaultWidthShare = 0.001;
    private const double DashUnitShare = 1.0 / 600;

    /// <summary>Colours of numbers that no table gives: paper, ink, then what most writers mean.</summary>
    private static readonly Rgba[] UsualColors =
    [
        Rgba.White, Rgba.Black, new(255, 0, 0), new(0, 255, 0), new(0, 0, 255), new(255, 255, 0), new(255, 0, 255), new(0, 255, 255),
    ];

    /// <summary>Ink and gaps of the registered types of lines, in dash units.</summary>
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

    /// <summary>Units of the picture in what a size counts; millimetres only where the picture has any.</summary>
    private double UnitOf(SpecificationMode mode, double scaled) => mode switch
    {
        SpecificationMode.Absolute => 1,
        SpecificationMode.Fractional => Longest,
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

        return index < UsualColors.Length ? UsualColors[index] : Rgba.Black;
    }

    /// <summary>Strokes a path as a line or, with the attributes of edges, as the border of an area.</summary>
    private void Stroke(PathBuffer path, bool isEdge)
    {
        EnsureClip();
        LineState line = isEdge ? EdgeLook() : LineLookNow();
        SpecificationMode mode = isEdge ? _state.EdgeWidthMode : _state.LineWidthMode;
        StrokeStyle style = Width(line.Width, mode);
        style.Color = ColorOf(line.Color);
        style.Layer = _layer;
        style.Look = List.Look(LookOf(line));
        style.Dash = DashOf(line, style, out double period);
        style.DashOffset = (float)(line.DashOffset * period);
        List.Stroke(path, style);
    }

    private LineState LineLookNow()
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

    private LineState EdgeLook()
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

    /// <summary>A width, as its mode counts it, for the page.</summary>
    private StrokeStyle Width(double? stated, SpecificationMode mode)
    {
        double width = Math.Abs(stated ?? (mode == SpecificationMode.Scaled ? 1 : mode == SpecificationMode.Millimetres ? DefaultWidthMm
            : mode == SpecificationMode.Fractional ? DefaultWidthShare : DefaultWidthShare * Longest));
        double? units = mode switch
        {
            SpecificationMode.Absolute => width,
            SpecificationMode.Fractional => width * Longest,
            SpecificationMode.Millimetres when _picture.Frame.MillimetresPerUnit is double mm => width / mm,
            _ => null,
        };
        return units is double length
            ? new StrokeStyle { LineWeight = (float)(length * Scale), WeightInUnits = true, Dash = -1 }
            : new StrokeStyle { LineWeight = (float)(mode == SpecificationMode.Scaled ? width * NominalWidthMm : width), Dash = -1 };
    }

    private LineLook LookOf(in LineState line)
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
        return new LineLook(cap, join, Math.Clamp(Paint.MitreLimit, 1, 100));
    }

    private int DashOf(in LineState line, in StrokeStyle style, out double period)
    {
        period = 0;
        if (line.Type is not DashType type)
        {
            return -1;
        }

        double unit = Math.Max(Longest * DashUnitShare, style.WeightInUnits ? style.LineWeight / Scale : 0);
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

    /// <summary>The dashes of a definition in the picture: parts of its repeat length, ink and gap by turns.</summary>
    private double[] OwnDashes(LineAndEdgeTypeDefinition own)
    {
        const int most = 64;
        double sum = 0;
        own.Elements.ForEach(element => sum += Math.Abs((double)element));
        if (!(sum > 0) || own.Elements.Count > most)
        {
            return [];
        }

        double repeat = own.RepeatLength * UnitOf(_state.LineWidthMode, Longest * DefaultWidthShare);
        List<double> lengths = own.Elements.ConvertAll(element => Math.Abs((double)element) * Math.Abs(repeat) / sum);
        if (lengths.Count % 2 == 1)
        {
            lengths.AddRange(lengths); // an odd count changes ink and gap with each round
        }

        return [.. lengths];
    }
}
