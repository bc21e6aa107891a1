using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Hatch;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Hatches: their boundaries as loops, then a solid, a gradient or pattern lines.</content>
internal sealed partial class SceneBuilder
{
    /// <summary>
    /// Fills what the boundaries enclose by the even-odd rule, which does not ask which way round they run.
    /// </summary>
    void IGeometrySink.Hatch(CadHatch hatch, in Affine3 ocs)
    {
        Pen pen = _current.Pen;
        if (!_tables.Settings.FillMode)
        {
            return;
        }

        var style = (HatchStyle)Math.Clamp((int)hatch.HatchStyle, 0, 2);
        List<HatchLoop> loops = HatchLoops.Select(HatchAreas.Loops(hatch), style);
        if (loops.Count == 0)
        {
            return;
        }

        var plane = new HatchPlane(MapOf(ocs), hatch.ElevationPoint.Z);
        if (hatch.IsGradient != 0 && hatch.GradientColors.Count > 0 && _style.SingleColor == null)
        {
            _canvas.FillLoops(loops, plane, pen, GradientOf(hatch, loops, plane, pen));
        }
        else if (hatch.SolidFillFlag != 0)
        {
            _canvas.FillLoops(loops, plane, pen, null);
        }
        else if (_style.CoarseHatches)
        {
            _canvas.FillLoops(loops, plane, pen with { Color = pen.Color.WithAlpha((byte)(pen.Color.A / 2)) }, null);
        }
        else
        {
            _canvas.FillPattern(loops, HatchAreas.Lines(hatch), plane, pen);
        }
    }

    void IGeometrySink.Polygon(CadHatch area, in Affine3 plane)
    {
        Current outline = _current;
        var color = new DrawingColor(area.ColorId, area.ColorValue);
        Rgba fill = _pens.ColorOf(color, outline.Layer, outline.Context, outline.Pen.Plot)
            .WithAlpha(outline.Pen.Color.A);
        _current = outline with { Pen = outline.Pen with { Color = fill } };
        ((IGeometrySink)this).Hatch(area, plane);
        _current = outline;
        foreach (CadHatchBoundaryPathContainer boundary in area.BoundaryPaths)
        {
            EntityGeometry.EmitBoundary(boundary, plane, area.ElevationPoint.Z, this);
        }
    }

    private static Gradient GradientOf(CadHatch hatch, List<HatchLoop> loops, in HatchPlane plane, in Pen pen)
    {
        Bounds2 box = Bounds2.Empty;
        loops.ForEach(l => box.Add(l.Path.Bounds));
        byte alpha = pen.Color.A;
        Rgba first = Rgba.FromRgb(hatch.GradientColors[0]).WithAlpha(alpha);
        Rgba second = hatch.SingleColorGradient == 0 && hatch.GradientColors.Count > 1
            ? Rgba.FromRgb(hatch.GradientColors[^1]).WithAlpha(alpha)
            : Tint(first, hatch.GradientTint);
        Gradient local = HatchGradient.Create(
            hatch.GradientName, hatch.GradientAngle, hatch.GradientShift == 0, first, second, box);
        Vec2 origin = plane.Map.Project(0, 0, plane.Elevation);
        Affine3 m = plane.Map;
        var toPage = new Affine2(m.AxisX.X, m.AxisX.Y, m.AxisY.X, m.AxisY.Y, origin.X, origin.Y);
        return local with { Matrix = toPage * local.Matrix };
    }

    /// <summary>A tint of 0 is black, of 1 white, with the colour itself halfway.</summary>
    private static Rgba Tint(Rgba color, double tint)
    {
        double t = Math.Clamp(tint, 0, 1);
        return t < 0.5
            ? HatchGradient.Mix(Rgba.Black.WithAlpha(color.A), color, t * 2)
            : HatchGradient.Mix(color, Rgba.White.WithAlpha(color.A), (t * 2) - 1);
    }
}
