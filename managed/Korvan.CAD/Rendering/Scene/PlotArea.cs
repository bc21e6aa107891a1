using System;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>
/// The paper of a layout and the part of it that is plotted, by the page setup. Paper, margins and offset are in
/// millimetres, rotated so that the layout is upright.
/// </summary>
internal sealed record PlotArea
{
    private const double MillimetresPerInch = 25.4;
    private const int OverallViewport = 1;

    internal required double Width { get; init; }

    internal required double Height { get; init; }

    /// <summary>The unprintable margin at the left and at the bottom.</summary>
    internal Vec2 LowerMargin { get; init; }

    /// <summary>The unprintable margin at the right and at the top.</summary>
    internal Vec2 UpperMargin { get; init; }

    /// <summary>The offset of the plot from the corner of the printable area.</summary>
    internal Vec2 Offset { get; init; }

    /// <summary>Drawing units a millimetre; null to fit the plotted part to the printable area.</summary>
    internal double? UnitsPerMillimetre { get; init; }

    internal bool IsCentered { get; init; }

    internal CadPlotType Type { get; init; } = CadPlotType.LayoutInformation;

    /// <summary>The plotted part in drawing units, where the page setup states it.</summary>
    internal Bounds2? Part { get; init; }

    /// <summary>The plot area of a layout; null when it has no paper.</summary>
    internal static PlotArea? Of(CadDrawing drawing, CadLayout layout, BlockInfo sheet)
    {
        (double width, double height) = (layout.PaperWidth, layout.PaperHeight);
        if (!(width > 0 && height > 0) || !double.IsFinite(width + height))
        {
            return null;
        }

        (double left, double bottom) = (layout.LeftMargin, layout.BottomMargin);
        (double right, double top) = (layout.RightMargin, layout.TopMargin);
        switch (layout.PlotRotation)
        {
            case CadPlotRotation.Counterclockwise90Degrees:
                (width, height) = (height, width);
                (left, bottom, right, top) = (top, left, bottom, right);
                break;
            case CadPlotRotation.UpsideDown:
                (left, bottom, right, top) = (right, top, left, bottom);
                break;
            case CadPlotRotation.Clockwise90Degrees:
                (width, height) = (height, width);
                (left, bottom, right, top) = (bottom, right, top, left);
                break;
        }

        return new PlotArea
        {
            Width = width,
            Height = height,
            LowerMargin = new Vec2(left, bottom),
            UpperMargin = new Vec2(right, top),
            Offset = new Vec2(layout.PlotOriginX, layout.PlotOriginY),
            UnitsPerMillimetre = ScaleOf(layout),
            IsCentered = (layout.PlotFlags & CadPlotLayoutFlag.PlotCentered) != 0,
            Type = layout.PlotType,
            Part = PartOf(drawing, layout, sheet),
        };
    }

    /// <summary>The paper in drawing units, with what is plotted on it.</summary>
    /// <param name="content">The extents of what the layout shows.</param>
    internal PaperSheet SheetFor(in Bounds2 content)
    {
        Bounds2? part = Type == CadPlotType.DrawingExtents && !content.IsEmpty ? content : Part;
        PaperSheet sheet = part is Bounds2 plotted ? Placed(plotted) : WholePaper();
        bool showsNothing = !content.IsEmpty && !content.Intersects(sheet.Visible);
        return showsNothing ? (this with { UnitsPerMillimetre = null, IsCentered = true }).Placed(content) : sheet;
    }

    /// <summary>Returns the drawing units in a millimetre of paper; null for a plot that is fitted to its
    /// paper.</summary>
    internal static double? ScaleOf(CadPlotSettings layout)
    {
        const short fit = 0;
        bool isStandard = (layout.PlotFlags & CadPlotLayoutFlag.UseStandardScale) != 0;
        bool isLayout = layout.PlotType == CadPlotType.LayoutInformation;
        double unit = UnitOf(layout);
        double scale = layout.ScaleDenominator / layout.ScaleNumerator;
        bool isUsable = layout.ScaleNumerator > 0 && layout.ScaleDenominator > 0 && double.IsFinite(scale);
        return isStandard && layout.StandardScale == fit && !isLayout ? null : unit * (isUsable ? scale : 1);
    }

    /// <summary>Returns the units of paper in a millimetre.</summary>
    internal static double UnitOf(CadPlotSettings layout) =>
        layout.PaperUnits == CadPlotPaperUnits.Inches ? 1 / MillimetresPerInch : 1;

    private static Bounds2? PartOf(CadDrawing drawing, CadLayout layout, BlockInfo sheet)
    {
        Bounds2? part = layout.PlotType switch
        {
            CadPlotType.DrawingLimits => Bounds2.Of(
                layout.MinLimits.X, layout.MinLimits.Y, layout.MaxLimits.X, layout.MaxLimits.Y),
            CadPlotType.WindowSpecified => Bounds2.Of(
                layout.PlotWindowLeft, layout.PlotWindowBottom, layout.PlotWindowRight, layout.PlotWindowTop),
            CadPlotType.ViewSpecified => Array.Find(
                [.. drawing.Views],
                view => string.Equals(view.Name, layout.PlotViewName, StringComparison.OrdinalIgnoreCase)) is { } view
                ? Around(view.ViewCenter.X, view.ViewCenter.Y, view.ViewWidth, view.ViewHeight)
                : null,
            CadPlotType.LastScreenDisplay => Display(sheet),
            _ => null,
        };
        return part is Bounds2 { Width: > 0, Height: > 0, IsFinite: true } ? part : null;
    }

    private static Bounds2? Display(BlockInfo sheet)
    {
        CadViewport? overall = sheet.Entities.OfType<CadViewport>()
            .FirstOrDefault(static viewport => viewport.ViewportId == OverallViewport);
        return overall is { Height: > 0 }
            ? Around(overall.ViewCenter.X, overall.ViewCenter.Y, overall.ViewHeight * overall.Width / overall.Height,
                overall.ViewHeight)
            : null;
    }

    private static Bounds2 Around(double x, double y, double width, double height) =>
        Bounds2.Of(x - (width / 2), y - (height / 2), x + (width / 2), y + (height / 2));

    /// <summary>The origin of a layout is the corner of what the plotter can print; the paper reaches past it by the
    /// margins.</summary>
    private PaperSheet WholePaper()
    {
        double k = UnitsPerMillimetre ?? 1;
        return Paper((LowerMargin + Offset) * -k, k);
    }

    private PaperSheet Placed(in Bounds2 part)
    {
        Vec2 room = new Vec2(Width, Height) - LowerMargin - UpperMargin;
        if (!(room.X > 0 && room.Y > 0))
        {
            room = new Vec2(Width, Height);
        }

        double fitting = Math.Max(part.Width / room.X, part.Height / room.Y);
        double k = UnitsPerMillimetre ?? (fitting > 0 ? fitting : 1);
        Vec2 shift = IsCentered ? (room - new Vec2(part.Width / k, part.Height / k)) * 0.5 : Offset;
        PaperSheet sheet = Paper(new Vec2(part.MinX, part.MinY) - ((LowerMargin + shift) * k), k);
        return sheet with { Window = part.Clip(sheet.Region) };
    }

    private PaperSheet Paper(Vec2 corner, double k) => new(
        Bounds2.Of(corner.X, corner.Y, corner.X + (Width * k), corner.Y + (Height * k)), Width, Height);
}
