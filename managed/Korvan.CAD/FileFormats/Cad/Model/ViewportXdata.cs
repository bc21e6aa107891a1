using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Views of viewports in drawings up to release 14, which keep them in extended data.</summary>
internal static class ViewportXdata
{
    private const string Application = "ACAD";
    private const string Marker = "MVIEW";
    private const int View = 31;
    private const int Icon = 32 | 64;
    private const int FastZoom = 128;
    private const int Snap = 256;
    private const int Grid = 512;
    private const int Isometric = 1024;
    private const int HidePlot = 2048;
    private const int Pair = 4096;
    private const int Pairs = 3;
    private const int Modes = View | Icon | FastZoom | Snap | Grid | Isometric | HidePlot | (Pairs * Pair);

    /// <summary>Takes the views of the viewports of a sheet out of their extended data.</summary>
    internal static void Apply(CadDrawing drawing, CadBlockEntity sheet)
    {
        foreach (CadEntityBase entity in sheet.Entities)
        {
            if (entity is CadViewport viewport && ViewOf(viewport) is { } xdata)
            {
                Apply(drawing, viewport, xdata);
            }
        }
    }

    private static void Apply(CadDrawing drawing, CadViewport viewport, CadXdata xdata)
    {
        List<double> numbers = [];
        List<Cad3DPoint> points = [];
        List<int> modes = [];
        foreach (CadCodeValue tag in xdata.Data)
        {
            Collect(tag, numbers, points, modes);
            if (tag.Attribute == 1003 && drawing.Layers.Find(tag.Value) is { Handle: not 0 } layer
                && !viewport.FrozenLayers.Contains(layer.ObjectHandle))
            {
                viewport.FrozenLayers.Add(layer.ObjectHandle);
            }
        }

        if (points.Count >= 2 && numbers.Count >= 7)
        {
            SetView(viewport, numbers, points);
            SetModes(viewport, numbers, modes);
        }
    }

    /// <summary>Removes the extended data, for releases that have fields instead.</summary>
    internal static void Remove(CadEntityBase entity)
    {
        if (entity is CadViewport viewport && ViewOf(viewport) is { } xdata)
        {
            viewport.XdataContainer.XdataEntities.Remove(xdata);
        }
    }

    /// <summary>Puts the fields into extended data, for releases that do not have them.</summary>
    internal static void Store(CadDrawing drawing, CadEntityBase entity)
    {
        if (entity is not CadViewport viewport)
        {
            return;
        }

        Remove(viewport);
        CadXdata xdata = new(Application);
        Add(xdata, 1000, Marker);
        Add(xdata, 1002, "{");
        Add(xdata, 1070, "16");
        Add(xdata, viewport.ViewTarget);
        Add(xdata, viewport.ViewDirection);
        foreach (double number in new[]
            {
                viewport.ViewTwistAngle, viewport.ViewHeight, viewport.ViewCenter.X, viewport.ViewCenter.Y,
                viewport.LensLength, viewport.FrontClipPlaneZ, viewport.BackClipPlaneZ,
            })
        {
            Add(xdata, 1040, Text(number));
        }

        foreach (int number in ModesOf(viewport))
        {
            Add(xdata, 1070, number.ToString(CultureInfo.InvariantCulture));
        }

        AddGrid(xdata, viewport);
        Add(xdata, 1002, "{");
        foreach (CadLayerTable layer in drawing.Layers)
        {
            if (viewport.FrozenLayers.Contains(layer.ObjectHandle))
            {
                Add(xdata, 1003, layer.Name);
            }
        }

        Add(xdata, 1002, "}");
        Add(xdata, 1002, "}");
        viewport.XdataContainer.XdataEntities.Add(xdata);
    }

    private static void AddGrid(CadXdata xdata, CadViewport viewport)
    {
        foreach (double number in new[]
            {
                viewport.SnapAngle, viewport.SnapBase.X, viewport.SnapBase.Y, viewport.SnapSpacing.X,
                viewport.SnapSpacing.Y, viewport.GridSpacing.X, viewport.GridSpacing.Y,
            })
        {
            Add(xdata, 1040, Text(number));
        }

        Add(xdata, 1070, (viewport.StatusFlags & HidePlot) != 0 ? "1" : "0");
    }

    // In the order of the extended data: view, circles, fast zoom, icon, snap, grid, style of the snap, its plane.
    private static int[] ModesOf(CadViewport viewport)
    {
        int flags = viewport.StatusFlags;
        return
        [
            flags & View, viewport.CircleZoomPercent, (flags & FastZoom) / FastZoom, (flags & Icon) / 32,
            (flags & Snap) / Snap, (flags & Grid) / Grid, (flags & Isometric) / Isometric, flags / Pair & Pairs,
        ];
    }

    // The first mode is the version of the extended data, the last one follows the grid.
    private static void SetModes(CadViewport viewport, List<double> numbers, List<int> modes)
    {
        if (modes.Count < 10 || numbers.Count < 14)
        {
            return;
        }

        viewport.CircleZoomPercent = (short)modes[2];
        viewport.SnapAngle = numbers[7];
        viewport.SnapBase = new Cad2DPoint(numbers[8], numbers[9]);
        viewport.SnapSpacing = new Cad2DPoint(numbers[10], numbers[11]);
        viewport.GridSpacing = new Cad2DPoint(numbers[12], numbers[13]);
        viewport.StatusFlags = (viewport.StatusFlags & ~Modes) | (modes[1] & View) | ((modes[4] * 32) & Icon)
            | (modes[3] != 0 ? FastZoom : 0) | (modes[5] != 0 ? Snap : 0) | (modes[6] != 0 ? Grid : 0)
            | (modes[7] != 0 ? Isometric : 0) | ((modes[8] & Pairs) * Pair) | (modes[9] != 0 ? HidePlot : 0);
    }

    private static CadXdata? ViewOf(CadViewport viewport) =>
        viewport.XdataOrNull?.Find(Application) is { } xdata
            && xdata.Data.Exists(static tag => tag.Attribute == 1000 && tag.Value == Marker)
            ? xdata
            : null;

    private static void Add(CadXdata xdata, Cad3DPoint point)
    {
        Add(xdata, 1010, Text(point.X));
        Add(xdata, 1020, Text(point.Y));
        Add(xdata, 1030, Text(point.Z));
    }

    private static void Add(CadXdata xdata, int code, string value) => xdata.Data.Add(new CadCodeValue(code, value));

    private static string Text(double value) => value.ToString("R", CultureInfo.InvariantCulture);

    private static void Collect(CadCodeValue tag, List<double> numbers, List<Cad3DPoint> points, List<int> modes)
    {
        if (tag.Attribute is not (1010 or 1020 or 1030 or 1040 or 1070)
            || !double.TryParse(tag.Value, NumberStyles.Float, CultureInfo.InvariantCulture, out double value)
            || !double.IsFinite(value))
        {
            return;
        }

        switch (tag.Attribute)
        {
            case 1010:
                points.Add(new Cad3DPoint(value, 0, 0));
                break;
            case 1020 when points.Count > 0:
                points[^1].Y = value;
                break;
            case 1030 when points.Count > 0:
                points[^1].Z = value;
                break;
            case 1040:
                numbers.Add(value);
                break;
            case 1070:
                modes.Add((int)value);
                break;
        }
    }

    private static void SetView(CadViewport viewport, List<double> numbers, List<Cad3DPoint> points)
    {
        viewport.ViewTarget = points[0];
        viewport.ViewDirection = points[1];
        viewport.ViewTwistAngle = numbers[0];
        viewport.ViewHeight = numbers[1];
        viewport.ViewCenter = new Cad2DPoint(numbers[2], numbers[3]);
        viewport.LensLength = numbers[4];
        viewport.FrontClipPlaneZ = numbers[5];
        viewport.BackClipPlaneZ = numbers[6];
    }
}
