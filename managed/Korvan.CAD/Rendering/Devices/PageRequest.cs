using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Devices;

internal enum FitMode
{
    /// <summary>One drawing unit is one unit of the page.</summary>
    None,

    /// <summary>Only what is larger than the page is scaled.</summary>
    Shrink,

    /// <summary>The drawing fills the page.</summary>
    Fill,
}

/// <summary>What a page is asked to be, in device units (points or pixels); sizes of 0 are left to the
/// layout.</summary>
internal readonly record struct PageRequest
{
    internal double Width { get; init; }

    internal double Height { get; init; }

    internal double Left { get; init; }

    internal double Top { get; init; }

    internal double Right { get; init; }

    internal double Bottom { get; init; }

    internal FitMode Fit { get; init; }

    /// <summary>Device units in a unit of the page, as the sizes above were given; the scale of "no fitting".</summary>
    internal double UnitScale { get; init; }

    /// <summary>All factors that the options put on the fitted size.</summary>
    internal double Zoom { get; init; }

    /// <summary>Parts of the page's width and height by which the content is moved, y down.</summary>
    internal Vec2 Shift { get; init; }

    internal required double UnitsPerMillimetre { get; init; }

    /// <summary>The longer side of a page that nothing else gives a size.</summary>
    internal required double DefaultSide { get; init; }
}

/// <summary>The sheet of a paper layout: its rectangle in drawing units, and its size in millimetres.</summary>
internal readonly record struct PaperSheet(Bounds2 Region, double WidthMm, double HeightMm)
{
    /// <summary>The part that is plotted; null for the whole sheet.</summary>
    internal Bounds2? Window { get; init; }

    internal Bounds2 Visible => Window ?? Region;
}

/// <summary>Where a drawing lies on its page.</summary>
internal readonly record struct PageLayout(double Width, double Height, Affine2 ToDevice, double Scale)
{
    private const double NarrowestShare = 0.05;

    /// <summary>Places the extents (or the sheet) of a drawing on a page.</summary>
    internal static PageLayout Create(in PageRequest request, Bounds2 extents, PaperSheet? sheet, double? scale = null)
    {
        Bounds2 region = sheet?.Region ?? extents;
        if (region.IsEmpty)
        {
            region = Bounds2.Of(0, 0, 0, 0);
        }

        if (!region.IsFinite || !double.IsFinite(region.Width) || !double.IsFinite(region.Height))
        {
            throw new RenderException("The drawing's extents are not finite, so no page can hold it.");
        }

        (double width, double height) = Size(request, region, sheet, scale);
        double boxWidth = width - request.Left - request.Right;
        double boxHeight = height - request.Top - request.Bottom;
        if (!(boxWidth > 0 && boxHeight > 0))
        {
            throw new RenderException(
                $"The borders leave no room on a page of {width:0.##} × {height:0.##}; give a larger page or smaller "
                    + $"borders.");
        }

        double used = scale ?? (FitScale(request, region, boxWidth, boxHeight) * request.Zoom);
        if (!(used > 0) || !double.IsFinite(used))
        {
            throw new RenderException($"The drawing cannot be scaled by {used} to its page.");
        }

        double centerX = request.Left + (boxWidth / 2) + (request.Shift.X * width);
        double centerY = request.Top + (boxHeight / 2) + (request.Shift.Y * height);
        Vec2 c = region.Center;
        return new PageLayout(width, height,
            new Affine2(used, 0, 0, -used, centerX - (c.X * used), centerY + (c.Y * used)), used);
    }

    private static double FitScale(in PageRequest request, in Bounds2 region, double boxWidth, double boxHeight)
    {
        double fit = Math.Min(
            region.Width > 0 ? boxWidth / region.Width : double.PositiveInfinity,
            region.Height > 0 ? boxHeight / region.Height : double.PositiveInfinity);
        return request.Fit switch
        {
            FitMode.None => request.UnitScale,
            FitMode.Shrink => Math.Min(fit, request.UnitScale),
            _ => double.IsFinite(fit) ? fit : request.UnitScale,
        };
    }

    private static (double Width, double Height) Size(in PageRequest request, in Bounds2 region, PaperSheet? sheet,
        double? scale)
    {
        if (request.Width > 0 && request.Height > 0)
        {
            return (request.Width, request.Height);
        }

        double borderX = request.Left + request.Right;
        double borderY = request.Top + request.Bottom;
        if (request.Width > 0)
        {
            return (request.Width, borderY + ((request.Width - borderX) * Ratio(region.Height, region.Width)));
        }

        if (request.Height > 0)
        {
            return (borderX + ((request.Height - borderY) * Ratio(region.Width, region.Height)), request.Height);
        }

        if (request.Fit == FitMode.None || scale != null)
        {
            double k = scale ?? (request.UnitScale * request.Zoom);
            return (Math.Max(1, borderX + (region.Width * k)), Math.Max(1, borderY + (region.Height * k)));
        }

        if (sheet is PaperSheet paper && paper.WidthMm > 0 && paper.HeightMm > 0)
        {
            return (paper.WidthMm * request.UnitsPerMillimetre, paper.HeightMm * request.UnitsPerMillimetre);
        }

        double longest = Math.Max(region.Width, region.Height);
        double unit = longest > 0 ? request.DefaultSide / longest : 0;
        double least = request.DefaultSide * NarrowestShare;
        return longest > 0
            ? (borderX + Math.Max(least, region.Width * unit), borderY + Math.Max(least, region.Height * unit))
            : (borderX + request.DefaultSide, borderY + request.DefaultSide);
    }

    /// <summary>The shape of a drawing, kept between 1:20 and 20:1 so that a single line still gets a page.</summary>
    private static double Ratio(double a, double b) =>
        a <= 0 && b <= 0 ? 1 : Math.Clamp(b > 0 ? a / b : double.MaxValue, NarrowestShare, 1 / NarrowestShare);
}
