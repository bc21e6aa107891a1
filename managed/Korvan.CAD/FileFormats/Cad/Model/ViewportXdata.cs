using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Views of viewports in drawings up to release 14, which keep them in extended data.</summary>
internal static class ViewportXdata
{
    private const string Application = "ACAD";
    private const string Marker = "MVIEW";

    internal static void Apply(CadEntityBase entity)
    {
        if (entity is not CadViewport viewport || ViewOf(viewport) is not { } xdata)
        {
            return;
        }

        List<double> numbers = [];
        List<Cad3DPoint> points = [];
        foreach (CadCodeValue tag in xdata.Data)
        {
            Collect(tag, numbers, points);
        }

        if (points.Count >= 2 && numbers.Count >= 7)
        {
            SetView(viewport, numbers, points);
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
    internal static void Store(CadEntityBase entity)
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

        foreach (int number in new[] { 0, viewport.CircleZoomPercent, 1, 0, 0, 0, 0, 0 })
        {
            Add(xdata, 1070, number.ToString(CultureInfo.InvariantCulture));
        }

        AddGrid(xdata, viewport);
        Add(xdata, 1002, "{");
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

        Add(xdata, 1070, "0");
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

    private static void Collect(CadCodeValue tag, List<double> numbers, List<Cad3DPoint> points)
    {
        if (tag.Attribute is not (1010 or 1020 or 1030 or 1040)
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
