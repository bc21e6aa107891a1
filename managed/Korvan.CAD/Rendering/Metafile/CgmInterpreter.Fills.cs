using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Scene;
using ASF = Korvan.CAD.FileFormats.Cgm.Commands.AspectSourceFlags.ASFType;
using Style = Korvan.CAD.FileFormats.Cgm.Commands.InteriorStyle.Style;

namespace Korvan.CAD.Rendering.Metafile;

/// <content>The interiors of areas: colours, hatches, patterns and gradients, then their edges.</content>
internal sealed partial class CgmInterpreter
{
    private const double HatchGapShare = 1.0 / 120;
    private const int MaxPatternTiles = 5_000;

    private readonly record struct TileRange(int X0, int Y0, int X1, int Y1);

    /// <summary>The directions of the lines of the registered hatches, in degrees.</summary>
    private static readonly Dictionary<int, double[]> HatchAngles = new()
    {
        [(int)HatchIndex.HatchType.Horizontal] = [0],
        [(int)HatchIndex.HatchType.Vertical] = [90],
        [(int)HatchIndex.HatchType.PositiveSlope] = [45],
        [(int)HatchIndex.HatchType.NegativeSlope] = [135],
        [(int)HatchIndex.HatchType.HorizontalVerticalCross] = [0, 90],
        [(int)HatchIndex.HatchType.PositiveNegativeCross] = [45, 135],
    };

    private Vec2 FillReference => Paint.Fill.Reference is CgmPoint point ? V(point) : FirstCorner;

    private Vec2 FirstCorner
    {
        get
        {
            CgmRectangle extent = PictureFrame.Extent(_state);
            return new Vec2(extent.X1, extent.Y1);
        }
    }

    private void FillArea(PathBuffer path, PathBuffer edges)
    {
        if (path.IsEmpty)
        {
            return;
        }

        EnsureClip();
        FillState fill = CurrentFill();
        Rgba color = ColorOf(fill.Color);
        switch (fill.Style ?? Style.Hollow)
        {
            case Style.Solid:
                List.Fill(path, color, _layer, evenOdd: true);
                break;
            case Style.Hollow:
                StrokeHollow(path, color);
                break;
            case Style.Hatch:
                FillHatch(path, fill.Hatch ?? 1, color);
                break;
            case Style.Pattern:
                FillPattern(path, fill.Pattern ?? 1, color);
                break;
            case Style.Interpolated:
                FillGradient(path, fill.Gradient, color);
                break;
            case Style.GeometricPattern:
                Skip("geometric pattern, drawn as a colour");
                List.Fill(path, color, _layer, evenOdd: true);
                break;
        }

        if (Paint.EdgeIsVisible)
        {
            Stroke(edges, isEdge: true);
        }
    }

    private FillState CurrentFill()
    {
        FillState fill = Paint.Fill;
        if (_state.FillBundles.TryGetValue(fill.Bundle, out FillRepresentation? bundle))
        {
            fill.Style = IsBundled(ASF.InteriorStyle) ? bundle.Style : fill.Style;
            fill.Color = IsBundled(ASF.FillColour) ? bundle.Color : fill.Color;
            fill.Hatch = IsBundled(ASF.HatchIndex) ? bundle.HatchNumber : fill.Hatch;
            fill.Pattern = IsBundled(ASF.PatternIndex) ? bundle.PatternIndex : fill.Pattern;
        }

        return fill;
    }

    private void StrokeHollow(PathBuffer path, Rgba color)
    {
        StrokeAttributes style = Width(null, SpecificationMode.Scaled);
        style.Color = color;
        style.Layer = _layer;
        List.Stroke(path, style);
    }

    private void FillHatch(PathBuffer path, int index, Rgba color)
    {
        if (!Paint.IsTransparent)
        {
            Rgba background = Paint.Auxiliary is CgmColor auxiliary ? ColorOf(auxiliary) : TableColor(0);
            List.Fill(path, background, _layer, evenOdd: true);
        }

        var rings = new List<HatchLoop>();
        foreach (FlatLine line in FlatLine.Of(path, LongerSide * CurveTolerance * 10))
        {
            var loop = new PathBuffer();
            AddChain(new PathPen(loop, Affine3.Identity), line.Points);
            loop.Close();
            rings.Add(new HatchLoop(loop, LongerSide * CurveTolerance));
        }

        rings.RemoveAll(static ring => ring.Ring.Length < 3);
        StrokeAttributes width = Width(null, SpecificationMode.Scaled);
        var pen = new Pen { Color = color, LineWeight = width.LineWeight, Layer = _layer };
        if (rings.Count > 0)
        {
            _canvas.FillPattern(rings, HatchLines(index), new HatchPlane(Affine3.Identity, 0), pen);
        }
    }

    /// <summary>The lines of a hatch on the page: through the reference point, as it lies with the picture.</summary>
    private List<HatchLine> HatchLines(int index)
    {
        var lines = new List<HatchLine>();
        Vec2 origin = _map.Point(FillReference);
        if (_state.Hatches.TryGetValue(index, out HatchStyleDefinition? own))
        {
            AddOwnHatch(lines, own, origin, new Vec2(own.FirstDirectionX, own.FirstDirectionY));
            if (own.Style == HatchStyleDefinition.HatchStyle.CrossHatch)
            {
                AddOwnHatch(lines, own, origin, new Vec2(own.SecondDirectionX, own.SecondDirectionY));
            }

            return lines;
        }

        double gap = LongerSide * HatchGapShare * Scale;
        foreach (double angle in HatchAngles.GetValueOrDefault(index, HatchAngles[1]))
        {
            Vec2 along = Directed(Vec2.Polar(angle * Math.PI / 180));
            lines.Add(new HatchLine(Math.Atan2(along.Y, along.X), origin, along.Left * gap, []));
        }

        return lines;
    }

    private void AddOwnHatch(List<HatchLine> lines, HatchStyleDefinition own, Vec2 origin, Vec2 direction)
    {
        double sum = 0;
        own.GapWidths.ForEach(gap => sum += Math.Abs((double)gap));
        double cycle = Math.Abs(own.CycleLength) * UnitOf(_state.InteriorMode, LongerSide * DefaultWidthShare) * Scale;
        if (!(sum > 0) || !(cycle > 0) || direction.Length == 0)
        {
            return;
        }

        Vec2 along = Directed(direction.Unit());
        double at = 0;
        foreach (int gap in own.GapWidths)
        {
            lines.Add(new HatchLine(Math.Atan2(along.Y, along.X), origin + (along.Left * at), along.Left * cycle, []));
            at += Math.Abs((double)gap) / sum * cycle;
        }
    }

    /// <summary>A direction of the picture as one of the page.</summary>
    private Vec2 Directed(Vec2 direction) => (_map.Point(direction) - _map.Point(default)).Unit();

    private void FillPattern(PathBuffer path, int index, Rgba color)
    {
        PatternTable? pattern = _state.Patterns.GetValueOrDefault(index);
        if (pattern is null || pattern.CellsPerLine < 1 || pattern.LineCount < 1)
        {
            List.Fill(path, color, _layer, evenOdd: true);
            return;
        }

        ImagePixels cells = TileImages.FromCells(pattern.Cells, pattern.CellsPerLine, pattern.LineCount, CellColor);
        (Vec2 width, Vec2 height) = PatternVectors();
        var tile = new Affine2(width.X, width.Y, height.X, height.Y, 0, 0);
        Vec2 origin = _map.Point(FillReference);
        if (!tile.TryInvert(out Affine2 inverse) || TilesIn(path.Bounds, inverse, origin) is not TileRange range)
        {
            Skip("pattern too fine for its area, drawn as a colour");
            List.Fill(path, Mean(cells), _layer, evenOdd: true);
            return;
        }

        List.PushClip(path, evenOdd: true);
        for (int y = range.Y0; y <= range.Y1; y++)
        {
            for (int x = range.X0; x <= range.X1; x++)
            {
                Vec2 at = origin + (width * x) + (height * y);
                var place = tile with { X0 = at.X, Y0 = at.Y };
                var image = new PlacedImage(cells.Width, cells.Height, cells.Pixels, place, 1) { Sharp = true };
                List.Image(image, _layer, BoundsOf(place));
            }
        }

        List.PopClip();
    }

    private (Vec2 Width, Vec2 Height) PatternVectors()
    {
        if (Paint.Fill.PatternSize is not PatternSize size)
        {
            double side = LongerSide * PictureFrame.DefaultSizeShare * 2;
            return (_map.Point(side, 0) - _map.Point(0, 0), _map.Point(0, side) - _map.Point(0, 0));
        }

        double unit = UnitOf(_state.InteriorMode, LongerSide * DefaultWidthShare);
        Vec2 width = _map.Point(size.WidthX * unit, size.WidthY * unit) - _map.Point(0, 0);
        return (width, _map.Point(size.HeightX * unit, size.HeightY * unit) - _map.Point(0, 0));
    }

    /// <summary>The tiles that cover a box; nothing if they are too many.</summary>
    private static TileRange? TilesIn(in Bounds2 box, in Affine2 inverse, Vec2 origin)
    {
        Bounds2 tiles = Bounds2.Empty;
        for (int corner = 0; corner < 4; corner++)
        {
            double x = (corner & 1) == 0 ? box.MinX : box.MaxX;
            double y = (corner & 2) == 0 ? box.MinY : box.MaxY;
            Vec2 p = inverse.Point(x - origin.X, y - origin.Y);
            tiles.Add(p.X, p.Y);
        }

        bool fits = tiles.IsFinite && (tiles.Width + 2) * (tiles.Height + 2) < MaxPatternTiles
            && Math.Abs(tiles.MinX) < int.MaxValue / 2 && Math.Abs(tiles.MinY) < int.MaxValue / 2;
        return fits ? new TileRange(Floor(tiles.MinX), Floor(tiles.MinY), Floor(tiles.MaxX), Floor(tiles.MaxY)) : null;

        static int Floor(double value) => (int)Math.Floor(value);
    }

    private static Rgba Mean(ImagePixels picture)
    {
        long b = 0, g = 0, r = 0;
        int count = picture.Pixels.Length / 4;
        for (int at = 0; at < picture.Pixels.Length; at += 4)
        {
            b += picture.Pixels[at];
            g += picture.Pixels[at + 1];
            r += picture.Pixels[at + 2];
        }

        return new Rgba((byte)(r / count), (byte)(g / count), (byte)(b / count));
    }

    /// <summary>Fills by a parallel or elliptical gradient; triangular ones are drawn as a colour.</summary>
    private void FillGradient(PathBuffer path, InterpolatedInterior? gradient, Rgba color)
    {
        const int parallel = 1, elliptical = 2;
        if (gradient is null || gradient.Colors.Count < 2 || gradient.Style is not (parallel or elliptical))
        {
            Skip("interpolated interior without two colours or triangular, drawn as a colour");
            Rgba plain = gradient is { Colors.Count: > 0 } ? ColorOf(gradient.Colors[0]) : color;
            List.Fill(path, plain, _layer, evenOdd: true);
            return;
        }

        List<double> g = gradient.ReferenceGeometry;
        double unit = UnitOf(_state.InteriorMode, LongerSide * DefaultWidthShare);
        Vec2 first = g.Count >= 2 ? new Vec2(g[0], g[1]) * unit : new Vec2(LongerSide, 0);
        Vec2 second = gradient.Style == elliptical && g.Count >= 4 ? new Vec2(g[2], g[3]) * unit : first.Left;
        Vec2 at = FillReference;
        Affine2 local = gradient.Style == elliptical
            ? new Affine2(first.X, first.Y, second.X, second.Y, at.X, at.Y)
            : new Affine2(first.X / 2, first.Y / 2, second.X, second.Y, at.X + (first.X / 2), at.Y + (first.Y / 2));
        var shading = new Gradient(gradient.Style == elliptical, 0, 0, _map * local, Stops(gradient));
        List.Fill(path, color, _layer, evenOdd: true, shading);
    }

    private GradientStop[] Stops(InterpolatedInterior gradient)
    {
        // The first colour lies at the reference point; each further one at its stage.
        var stops = new GradientStop[gradient.Colors.Count];
        for (int i = 0; i < stops.Length; i++)
        {
            List<double> stages = gradient.StageDesignators;
            double offset = i == 0 ? 0 : i - 1 < stages.Count ? stages[i - 1] : (double)i / (stops.Length - 1);
            stops[i] = new GradientStop(Math.Clamp(offset, 0, 1), ColorOf(gradient.Colors[i]));
        }

        return stops;
    }
}
