using System;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.ImageOptions.SvgOptionsParameters;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The public options, brought into the terms of scene and page.</summary>
internal sealed class ExportOptions
{
    private const double MillimetresPerInch = 25.4;
    private const double UsualPageMillimetres = 420;
    private const double UsualPixels = 1600;
    private const double UsualBorderShare = 0.02;

    private readonly ExportContext context;
    private readonly ImageOptionsBase options;
    private readonly VectorRasterizationOptions? vector;
    private readonly CadRasterizationOptions? cad;
    private readonly DeviceKind device;
    private readonly double unitsPerInch;

    internal ExportOptions(ExportContext context, DeviceKind device, double unitsPerInch)
    {
        this.context = context;
        options = context.Options;
        this.device = device;
        this.unitsPerInch = unitsPerInch;
        vector = options.VectorRasterizationOptions;
        cad = vector as CadRasterizationOptions;
    }

    internal RenderNotes Notes => context.Notes;

    internal IReadOnlyList<string> Layouts => cad?.Layouts ?? [];

    internal bool FitEachLayout => cad?.AutomaticLayoutsScaling ?? true;

    internal bool ContentOnly => options.RenderToGraphicsBound;

    internal bool WholeLayoutContent => cad?.ExportAllLayoutContent ?? false;

    internal bool AsBitmap => vector?.ContentAsBitmap ?? false;

    internal Rgba Background => vector == null ? Rgba.White : ToRgba(vector.BackgroundColor);

    /// <summary>Paper is white of itself; pixels have to be painted.</summary>
    internal bool PaintBackground => device == DeviceKind.Pixels || (vector?.EmbedBackground ?? false);

    internal bool Sharp => vector?.GraphicsOptions?.SmoothingMode is SmoothingMode.None or SmoothingMode.HighSpeed;

    internal double Coarseness => cad?.Quality.Arc switch
    {
        RasterizationQualityValue.Low => 10,
        RasterizationQualityValue.High => 0.1,
        _ => 1,
    };

    internal bool ExactText => cad?.Quality.Text == RasterizationQualityValue.High;

    internal InterpolationMode Interpolation => vector?.GraphicsOptions?.InterpolationMode ?? InterpolationMode.Default;

    /// <summary>Pixels an inch of a page whose content is a picture; nothing for what is usual.</summary>
    internal double? BitmapResolution => options.ResolutionSettings?.HorizontalResolution;

    internal string Watermark => options.UserWatermarkText;

    internal Rgba WatermarkColor => ToRgba(options.UserWatermarkColor);

    internal double UnitsPerMillimetre => unitsPerInch / MillimetresPerInch;

    internal LineCaps Caps => cad?.PenOptions?.StartCap switch
    {
        LineCap.Flat => LineCaps.Butt,
        LineCap.Square => LineCaps.Square,
        _ => LineCaps.Round,
    };

    internal RenderStyle Style()
    {
        bool single = cad != null && cad.DrawType == CadDrawTypeMode.UseDrawColor;
        return new RenderStyle
        {
            Background = Background,
            Ink = Ink,
            SingleColor = single ? ToRgba(cad!.DrawColor) : null,
            Layers = LayerChoice.Of(options),
            AsPlotted = cad != null && cad.VisibilityMode == VisibilityMode.AsPrint,
            CoarseHatches = cad?.Quality.Hatch == RasterizationQualityValue.Low,
            CircleSides = cad?.Quality.ObjectsPrecision switch
            {
                RasterizationQualityValue.Low => 16,
                RasterizationQualityValue.High => 256,
                _ => RenderStyle.UsualCircleSides,
            },
            LineTypeScale = vector?.LineScale ?? 1,
            ModelView = cad?.ObserverPoint is ObserverPoint eye
                ? ViewTransform.Turned(eye.RotationAngleX, eye.RotationAngleY, eye.RotationAngleZ)
                : Affine3.Identity,
            Checkpoint = context.Checkpoint,
        };
    }

    internal Func<Rgba, Rgba>? Ink => (options as SvgOptions)?.ColorType switch
    {
        SvgColorMode.Grayscale => static color => Gray(color, color.Luma),
        SvgColorMode.BlackAndWhite => color => Gray(color, color.Luma >= Background.Luma ? (byte)255 : (byte)0),
        _ => null,
    };

    private static Rgba Gray(Rgba color, byte tone) => new(tone, tone, tone, color.A);

    internal PageRequest Request()
    {
        double unit = UnitScale();
        double usual = device == DeviceKind.Pixels ? UsualPixels : UsualPageMillimetres * UnitsPerMillimetre;
        double border = vector == null ? usual * UsualBorderShare : 0;
        Margins? margins = vector?.Margins;
        double borderX = border + ((vector?.BorderX ?? 0) * unit);
        double borderY = border + ((vector?.BorderY ?? 0) * unit);
        return new PageRequest
        {
            Width = (vector?.PageWidth ?? 0) * unit,
            Height = (vector?.PageHeight ?? 0) * unit,
            Left = borderX + ((margins?.Left ?? 0) * unit),
            Right = borderX + ((margins?.Right ?? 0) * unit),
            Top = borderY + ((margins?.Top ?? 0) * unit),
            Bottom = borderY + ((margins?.Bottom ?? 0) * unit),
            Fit = Fit(),
            UnitScale = unit,
            Zoom = (cad?.Zoom ?? 1) * (vector?.RelativeScale ?? 1),
            Shift = vector == null ? default : new Vec2(vector.RelativePosition.X, vector.RelativePosition.Y),
            UnitsPerMillimetre = UnitsPerMillimetre,
            UsualSide = usual,
        };
    }

    private FitMode Fit()
    {
        if (cad == null)
        {
            return FitMode.Fill;
        }

        return cad.NoScaling || cad.ScaleMethod == ScaleType.None
            ? FitMode.None
            : cad.ScaleMethod == ScaleType.ShrinkToFit ? FitMode.Shrink : FitMode.Fill;
    }

    /// <summary>Device units in a unit of the page: rasters count pixels, page formats may state a unit of length.</summary>
    private double UnitScale()
    {
        double? millimetres = device == DeviceKind.Pixels || vector == null ? null : LengthUnits.Millimetres(vector.UnitType);
        return millimetres is double mm ? mm * UnitsPerMillimetre : 1;
    }

    private static Rgba ToRgba(Color color) => color.IsEmpty ? new Rgba(255, 255, 255, 0) : new Rgba(color.R, color.G, color.B, color.A);
}
