using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cad.Model.Dimensions;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Leaders with their arrowheads and feature control frames.</content>
internal sealed partial class SceneBuilder
{
    private const string CellBreak = "%%v";
    private const int SplinePath = 1;
    private const string ArrowheadBlock = "*Arrowhead";

    void IGeometrySink.Leader(CadLeader leader, List<Vec3> points)
    {
        if (points.Count < 2)
        {
            return;
        }

        (Pen pen, _, BlockContext context, _) = _current;
        DimensionStyle style = _tables.Dimensions.Of(leader);
        double arrow = style.ArrowSize;
        bool hasArrow = leader.ArrowheadFlag != 0 && arrow > 0 && (points[1] - points[0]).Length > 2 * arrow;
        Vec3 tip = points[0];
        Vec3 along = (points[1] - tip).Unit();
        if (hasArrow && leader.PathType != SplinePath)
        {
            points[0] = tip + (along * (arrow * style.LeaderArrow.Setback));
        }

        var path = new PathPen(_canvas.NewPath(), context.Map);
        if (leader.PathType == SplinePath)
        {
            FitSpline.Draw(path, points, null, null, closed: false);
        }
        else
        {
            points.ForEach(path.LineTo);
        }

        _canvas.Stroke(pen);
        if (hasArrow)
        {
            DrawArrowhead(style.LeaderArrow, tip, along, arrow, leader.ExtrusionDirection);
        }
    }

    /// <summary>Draws an arrowhead, or the block that stands for it, at the tip of a line that goes on along a
    /// direction.</summary>
    private void DrawArrowhead(DimensionArrow arrow, Vec3 tip, Vec3 along, double size, Cad3DPoint normal)
    {
        (Pen pen, LayerInfo layer, BlockContext context, _) = _current;
        var shape = new DimensionPen(normal, tip);
        Vec2 direction = shape.Flat(along) * -1;
        if (direction == default)
        {
            return;
        }

        arrow.Draw(shape, shape.Flat(tip), direction.Unit(), size);
        var block = new BlockInfo(ArrowheadBlock, default, shape.Entities);
        DrawBlock(block, context.Map, layer, pen with { Pattern = null }, context);
    }

    /// <summary>A frame of rows of cells, its left edge centred on the insertion point for the first row.</summary>
    void IGeometrySink.Tolerance(CadTolerance tolerance, in Affine3 plane)
    {
        DimStyleInfo dim = _tables.DimStyle(tolerance.DimensionStyleName);
        double height = (dim.TextHeight > 0 ? dim.TextHeight : _tables.Settings.TextSize) * dim.Scale;
        StyleInfo used = _tables.Style(dim.TextStyle);
        Affine3 map = MapOf(plane);
        double top = height;
        foreach (string row in tolerance.VisualRepresentation.Replace("^J", "\n").Split('\n'))
        {
            if (row.Length > 0)
            {
                DrawToleranceRow(row, top, height, used, map, _current.Pen);
                top -= 2 * height;
            }
        }
    }

    private void DrawToleranceRow(string row, double top, double height, StyleInfo used, in Affine3 map, in Pen pen)
    {
        MTextFormat start = StartFormat(used, height);
        double left = 0;
        double pad = height / 2;
        foreach (string cell in row.Split(CellBreak))
        {
            // Empty cells at the end are compartments that the frame does not have.
            if (cell.Length == 0)
            {
                continue;
            }

            MTextLayout layout = MTextLayout.Create(
                _canvas.Engine, MTextParser.Parse(cell, start), new MTextFrame(0, 4, 1, true), height);
            double width = Math.Max(2 * height, layout.Box.Right - layout.Box.Left + (2 * pad));
            AddBox(map, left, top - (2 * height), left + width, top);
            _canvas.Stroke(pen);
            double inset = (width - (layout.Box.Right - layout.Box.Left)) / 2;
            Affine3 at = map * Affine3.Translation(new Vec3(left + inset, top - height, 0));
            TextPainter.Draw(_canvas, layout, at, pen, static _ => default);
            left += width;
        }
    }

    private void AddBox(in Affine3 map, double left, double bottom, double right, double top)
    {
        var path = new PathPen(_canvas.NewPath(), map);
        path.MoveTo(new Vec2(left, bottom));
        path.LineTo(new Vec2(right, bottom));
        path.LineTo(new Vec2(right, top));
        path.LineTo(new Vec2(left, top));
        path.Close();
    }
}
