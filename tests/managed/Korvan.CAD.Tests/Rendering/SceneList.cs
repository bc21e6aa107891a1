using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Hatch;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>The display list of a drawing, and what tests read from it.</summary>
internal static class SceneList
{
    internal static Cad3DPoint P(double x, double y, double z) => new(x, y, z);

    internal static DrawingList Build(params CadEntityBase[] entities) => Build(TestPage.Drawing(entities));

    internal static DrawingList Build(CadImage drawing, RenderStyle? style = null)
    {
        using var engine = new TextEngine();
        DrawingScene scene = SceneReader.Read(drawing.Drawing);
        return WithHatchLines(scene.Build(scene.Choose([])[0], style ?? new RenderStyle(), engine));
    }

    /// <summary>Makes the lines of hatches as for a page with ten thousand of the thinnest lines in a unit.</summary>
    internal static DrawingList WithHatchLines(DrawingList list)
    {
        PatternDetail.Resolve(list, new PaintSettings { ToDevice = Affine2.Identity, UnitsPerMillimetre = 1e-4 }, null);
        return list;
    }

    internal static List<DisplayKind> Kinds(DrawingList list)
    {
        var kinds = new List<DisplayKind>();
        foreach (ref readonly DisplayItem item in list.Items)
        {
            kinds.Add(item.Kind);
        }

        return kinds;
    }

    internal static void AssertBox(DrawingList list, double left, double bottom, double right, double top,
        double tolerance = 1e-3)
    {
        Assert.Equal(left, list.Bounds.MinX, tolerance);
        Assert.Equal(bottom, list.Bounds.MinY, tolerance);
        Assert.Equal(right, list.Bounds.MaxX, tolerance);
        Assert.Equal(top, list.Bounds.MaxY, tolerance);
    }

    internal static PathBuffer PathOf(DrawingList list, in DisplayItem item)
    {
        var path = new PathBuffer();
        ReadOnlySpan<double> c = list.CoordsOf(item);
        int at = 0;
        foreach (PathVerb verb in list.VerbsOf(item))
        {
            switch (verb)
            {
                case PathVerb.Move:
                    path.MoveTo(new Vec2(c[at], c[at + 1]));
                    at += 2;
                    break;
                case PathVerb.Line:
                    path.LineTo(new Vec2(c[at], c[at + 1]));
                    at += 2;
                    break;
                case PathVerb.Curve:
                    path.CurveTo(new Vec2(c[at], c[at + 1]), new Vec2(c[at + 2], c[at + 3]),
                        new Vec2(c[at + 4], c[at + 5]));
                    at += 6;
                    break;
                default:
                    path.Close();
                    break;
            }
        }

        return path;
    }

    /// <summary>The length of all strokes of a list.</summary>
    internal static double Length(DrawingList list)
    {
        double sum = 0;
        foreach (ref readonly DisplayItem item in list.Items)
        {
            sum += item.Kind == DisplayKind.Stroke ? PathMeasure.Length(PathOf(list, item)) : 0;
        }

        return sum;
    }

    /// <summary>The area of all fills of a list, whose rings have to run alike.</summary>
    internal static double Area(DrawingList list)
    {
        double sum = 0;
        foreach (ref readonly DisplayItem item in list.Items)
        {
            foreach (Vec2[] ring in item.Kind == DisplayKind.Fill ? Polygons.Flatten(PathOf(list, item), 1e-4) : [])
            {
                sum += Math.Abs(Polygons.SignedArea(ring));
            }
        }

        return sum;
    }
}
