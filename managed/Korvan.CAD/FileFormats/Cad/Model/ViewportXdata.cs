using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Views of viewports in drawings up to release 14, which keep them in extended data.</summary>
internal static class ViewportXdata
{
    internal static void Apply(CadEntityBase entity)
    {
        if (entity is not CadViewport viewport
            || viewport.XdataOrNull?.Find("ACAD") is not { } xdata
            || !xdata.Data.Exists(static tag => tag.Attribute == 1000 && tag.Value == "MVIEW"))
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
