using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.ImageOptions.SvgOptionsParameters;
using Korvan.CAD.Rendering.Devices;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The public options, brought into the terms of scene and page.</summary>
internal sealed class ExportOptions
{
    private const double MillimetresPerInch = 25.4;
    private const double DefaultPageMillimetres = 420;
    private const double DefaultPixels = 1600;
    private const double DefaultBorderShare = 0.02;

    private readonly ExportContext _context;
    private readonly ImageOptionsBase _options;
    private readonly VectorRasterizationOptions? _vector;
    private readonly CadRasterizationOptions? _cad;
    private readonly DeviceKind _device;
    private readonly double _unitsPerInch;

    internal ExportOptions(ExportContext context, DeviceKind device, double unitsPerInch)
    {
        _context = context;
        _options = context.Options;
        _device = device;
        _unitsPerInch = unitsPerInch;
        _vector = _options.VectorRasterizationOptions;
        _cad = _vector as CadRasterizationOptions;
    }

    internal RenderNotes Notes => _context.Notes;

    internal IReadOnlyList<string> Layouts => _cad?.Layouts ?? [];

    internal bool FitEachLayout => _cad?.AutomaticLayoutsScaling ?? true;

    internal bool ContentOnly => _options.RenderToGraphicsBound;

    internal bool WholeLayoutContent => _cad?.ExportAllLayoutContent ?? false;

    internal bool AsBitmap => _vector?.ContentAsBitmap ?? false;

    internal Rgba Background => _vector == null ? Rgba.White : ToRgba(_vector.BackgroundColor);

    /// <summary>Paper is white of itself; pixels have to be painted.</summary>
    internal bool PaintBackground => _device == DeviceKind.Pixels || (_vector?.EmbedBackground ?? false);

    internal bool Sharp => _vector?.GraphicsOptions?.SmoothingMode is SmoothingMode.None or SmoothingMode.HighSpeed;

    internal double Coarseness => _cad?.Quality.Arc switch
    {
        RasterizationQualityValue.Low => 10,
        RasterizationQualityValue.High => 0.1,
        _ => 1,
    };

    internal bool ExactText => _cad?.Quality.Text == RasterizationQualityValue.High;

    internal InterpolationMode Interpolation =>
        _vector?.GraphicsOptions?.InterpolationMode ?? InterpolationMode.Default;

    /// <summary>Pixels an inch of a page whose content is rasterized; nothing for the default.</summary>
    internal double? BitmapResolution => _options.ResolutionSettings?.HorizontalResolution;

    internal string Watermark => _options.UserWatermarkText;

    internal Rgba WatermarkColor => ToRgba(_options.UserWatermarkColor);

    internal double UnitsPerMillimetre => _unitsPerInch / MillimetresPerInch;

    internal LineCaps Caps => _cad?.PenOptions?.StartCap switch
    {
        LineCap.Flat => LineCaps.Butt,
        LineCap.Square => LineCaps.Square,
        _ => LineCaps.Round,
    };

    internal RenderStyle Style()
    {
        bool single = _cad != null && _cad.DrawType == CadDrawTypeMode.UseDrawColor;
        return new RenderStyle
        {
            Background = Background,
            ColorMap = ColorMap,
            SingleColor = single ? ToRgba(_cad!.DrawColor) : null,
            Layers = LayerChoice.Of(_options),
            AsPlotted = _cad != null && _cad.VisibilityMode == VisibilityMode.AsPrint,
            CoarseHatches = _cad?.Quality.Hatch == RasterizationQualityValue.Low,
            CircleSides = _cad?.Quality.ObjectsPrecision switch
            {
                RasterizationQualityValue.Low => 16,
                RasterizationQualityValue.High => 256,
                _ => RenderStyle.DefaultCircleSides,
            },
            LineTypeScale = _vector?.LineScale ?? 1,
            ModelView = _cad?.ObserverPoint is ObserverPoint eye
                ? ViewTransform.Turned(eye.RotationAngleX, eye.RotationAngleY, eye.RotationAngleZ)
                : Affine3.Identity,
        };
    }

    internal Func<Rgba, Rgba>? ColorMap => (_options as SvgOptions)?.ColorType switch
    {
        SvgColorMode.Grayscale => static color => Gray(color, color.Luma),
        SvgColorMode.BlackAndWhite => color => Gray(color, color.Luma >= Background.Luma ? (byte)255 : (byte)0),
        _ => null,
    };

    private static Rgba Gray(Rgba color, byte tone) => new(tone, tone, tone, color.A);

    internal PageRequest Request()
    {
        double unit = UnitScale();
        double side = _device == DeviceKind.Pixels ? DefaultPixels : DefaultPageMillimetres * UnitsPerMillimetre;
        double border = _vector == null ? side * DefaultBorderShare : 0;
        Margins? margins = _vector?.Margins;
        double borderX = border + ((_vector?.BorderX ?? 0) * unit);
        double borderY = border + ((_vector?.BorderY ?? 0) * unit);
        return new PageRequest
        {
            Width = (_vector?.PageWidth ?? 0) * unit,
            Height = (_vector?.PageHeight ?? 0) * unit,
            Left = borderX + ((margins?.Left ?? 0) * unit),
            Right = borderX + ((margins?.Right ?? 0) * unit),
            Top = borderY + ((margins?.Top ?? 0) * unit),
            Bottom = borderY + ((margins?.Bottom ?? 0) * unit),
            Fit = Fit(),
            UnitScale = unit,
            Zoom = (_cad?.Zoom ?? 1) * (_vector?.RelativeScale ?? 1),
            Shift = _vector == null ? default : new Vec2(_vector.RelativePosition.X, _vector.RelativePosition.Y),
            UnitsPerMillimetre = UnitsPerMillimetre,
            DefaultSide = side,
        };
    }

    private FitMode Fit()
    {
        if (_cad == null)
        {
            return FitMode.Fill;
        }

        return _cad.NoScaling || _cad.ScaleMethod == ScaleType.None
            ? FitMode.None
            : _cad.ScaleMethod == ScaleType.ShrinkToFit ? FitMode.Shrink : FitMode.Fill;
    }

    /// <summary>Device units in a unit of the page, where one of length is stated. Pixels have a length only with a
    /// resolution.</summary>
    private double UnitScale()
    {
        bool hasLength = _device != DeviceKind.Pixels || _options.ResolutionSettings is not null;
        double? millimetres = hasLength && _vector is not null ? LengthUnits.Millimetres(_vector.UnitType) : null;
        return millimetres is double mm ? mm * UnitsPerMillimetre : 1;
    }

    private static Rgba ToRgba(Color color) =>
        color.IsEmpty ? new Rgba(255, 255, 255, 0) : new Rgba(color.R, color.G, color.B, color.A);
}
