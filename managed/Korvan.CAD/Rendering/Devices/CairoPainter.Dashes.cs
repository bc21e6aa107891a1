using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Devices;

/// <content>Dashes of lines that lead far away from the page.</content>
internal sealed unsafe partial class CairoPainter
{
    /// <summary>Makes the dashes on the page the path, for a line that leads far away from it: cairo would walk all of
    /// them.</summary>
    private bool TraceDashes(in DisplayItem item, double width)
    {
        double pageWidth = _target.ThinLines.Width;
        double border = (2 * width) + BorderPixels;
        double reach = Math.Max(pageWidth, _rows.End) * FarLine;
        if (!IsFar(item, reach))
        {
            return false;
        }

        _far.Clear();
        _far.AppendMapped(_list.VerbsOf(item), _list.CoordsOf(item), _map);
        double[] lengths = Array.ConvertAll(_list.DashOf(item), length => length * _scale);
        double tolerance = DefaultTolerance * _settings.Coarseness;
        Bounds2 visible = Bounds2.Of(-border, _rows.First - border, pageWidth + border, _rows.End + border);
        if (!DashSplitter.TrySplit(_far, lengths, item.DashOffset * _scale, tolerance, _dashes, visible))
        {
            return false;
        }

        UseCairo();
        Cairo.NewPath(_cr);
        Trace(_dashes.Verbs, _dashes.Coords, Affine2.Identity);
        return true;
    }

    private bool IsFar(in DisplayItem item, double reach)
    {
        ReadOnlySpan<double> c = _list.CoordsOf(item)[..CoordCount(item)];
        for (int at = 0; at < c.Length; at += 2)
        {
            Vec2 p = _map.Point(c[at], c[at + 1]);
            if (!(Math.Abs(p.X) < reach && Math.Abs(p.Y) < reach))
            {
                return true;
            }
        }

        return false;
    }
}
