using System;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>
/// The coordinates of a picture: its extent, the map to units of the page, whose axes run right and up, and the size in
/// millimetres where the file states one.
/// </summary>
internal readonly record struct PictureFrame(
    Bounds2 Region, Affine2 ToPage, double LongerSide, double? MillimetresPerUnit)
{
    /// <summary>The default size of text and markers as a fraction of the longer side (ISO/IEC 8632-1, clause
    /// 8).</summary>
    internal const double DefaultSizeShare = 0.01;

    /// <summary>Sizes that no sheet has: past them a factor is taken for a mistake of its writer.</summary>
    private const double MinMillimetres = 1;
    private const double MaxMillimetres = 20_000;

    private const double DefaultIntegerExtent = 32_767;

    /// <summary>The sheet that the picture fills; without a size of its own where the file states none.</summary>
    internal PaperSheet Sheet => MillimetresPerUnit is double mm
        ? new PaperSheet(Region, Region.Width * mm, Region.Height * mm)
        : new PaperSheet(Region, 0, 0);

    internal static PictureFrame Of(PictureState state)
    {
        CgmRectangle extent = Extent(state);
        double flipX = extent.X2 < extent.X1 ? -1 : 1;
        double flipY = extent.Y2 < extent.Y1 ? -1 : 1;
        var toPage = new Affine2(flipX, 0, 0, flipY, 0, 0);
        Vec2 a = toPage.Point(extent.X1, extent.Y1);
        Vec2 b = toPage.Point(extent.X2, extent.Y2);
        Bounds2 region = Bounds2.Of(a.X, a.Y, b.X, b.Y);
        double longest = Math.Max(region.Width, region.Height);
        return new PictureFrame(region, toPage, longest, Metric(state, longest));
    }

    internal static CgmRectangle Extent(PictureState state)
    {
        if (state.Extent is VdcExtent stated
            && stated.FirstCorner.X != stated.SecondCorner.X && stated.FirstCorner.Y != stated.SecondCorner.Y)
        {
            (CgmPoint first, CgmPoint second) = (stated.FirstCorner, stated.SecondCorner);
            return new CgmRectangle(first.X, first.Y, second.X, second.Y);
        }

        double side = state.HasRealCoordinates ? 1 : DefaultIntegerExtent;
        return new CgmRectangle(0, 0, side, side);
    }

    /// <summary>Millimetres of a unit: by the metric scaling, or by a viewport that is given in millimetres.</summary>
    private static double? Metric(PictureState state, double longest)
    {
        double factor = state.Scaling is { Value: ScalingMode.Mode.Metric } metric ? metric.MetricScaleFactor : 0;
        if (factor == 0
            && state.ViewportMode is { Value: DeviceViewportSpecificationMode.Mode.MillimetresWithScaleFactor } mode
            && state.Viewport is DeviceViewport viewport)
        {
            double width = Math.Abs(viewport.SecondCorner.First.Value - viewport.FirstCorner.First.Value);
            double height = Math.Abs(viewport.SecondCorner.Second.Value - viewport.FirstCorner.Second.Value);
            factor = Math.Max(width, height) * mode.ScaleFactor / longest;
        }

        double size = Math.Abs(factor) * longest;
        return size is >= MinMillimetres and <= MaxMillimetres ? Math.Abs(factor) : null;
    }
}
