using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Devices;

/// <content>Gradients, texts and images.</content>
internal sealed unsafe partial class CairoPainter
{
    private void FillGradient(Gradient gradient)
    {
        Affine2 toDevice = _map * gradient.Matrix;
        if (!toDevice.TryInvert(out Affine2 inverse))
        {
            SetColor(gradient.Stops[0].Color);
            Cairo.Fill(_cr);
            return;
        }

        nint pattern = gradient.Radial
            ? Cairo.PatternCreateRadial(gradient.FocusX, gradient.FocusY, 0, 0, 0, 1)
            : Cairo.PatternCreateLinear(-1, 0, 1, 0);
        using var owner = new NativeHandle(pattern, &Cairo.PatternDestroy);
        foreach (GradientStop stop in gradient.Stops)
        {
            Cairo.PatternAddColorStop(
                pattern, stop.Offset, stop.Color.R / 255.0, stop.Color.G / 255.0, stop.Color.B / 255.0,
                    stop.Color.A / 255.0);
        }

        CairoMatrix matrix = ToCairo(inverse);
        Cairo.PatternSetMatrix(pattern, &matrix);
        Cairo.SetSource(_cr, pattern);
        Cairo.Fill(_cr);
        _hasColor = false;
    }

    private void Text(in DisplayItem item)
    {
        TextRun run = _list.TextOf(item);
        Affine2 toDevice = _map * run.Matrix;
        double area = Math.Abs(toDevice.Determinant);
        if (!(area > SmallestText * SmallestText) || !IsNear(toDevice.X0, toDevice.Y0))
        {
            return;
        }

        if (area < BarText * BarText && _clip.IsBox && !_settings.Sharp && run.Advance > 0)
        {
            Bar(run, toDevice, item.Color);
            return;
        }

        UseCairo();
        SetColor(item.Color);
        Cairo.Save(_cr);

        // The run's y runs up, pango's down.
        CairoMatrix matrix = ToCairo(toDevice);
        matrix.Xy = -matrix.Xy;
        matrix.Yy = -matrix.Yy;
        Cairo.Transform(_cr, &matrix);
        if (_settings.ExactText)
        {
            _engine.Trace(_cr, run);
            Cairo.SetFillRule(_cr, CairoFillRule.Winding);
            Cairo.Fill(_cr);
        }
        else
        {
            _engine.Show(_cr, run);
        }

        Cairo.Restore(_cr);
    }

    /// <summary>Draws what is seen of a text too small to be read: a faint bar.</summary>
    private void Bar(in TextRun run, in Affine2 toDevice, Rgba color)
    {
        double height = new Vec2(toDevice.Xy, toDevice.Yy).Length * BarHeight;
        ReadOnlySpan<double> ends = [0, BarHeight / 2, run.Advance, BarHeight / 2];
        double alpha = color.A * BarOpacity * Math.Min(1, height);
        DrawDirectly(BarVerbs, ends, toDevice, Math.Max(1, height), color.WithAlpha((byte)alpha));
    }

    private void Image(in DisplayItem item)
    {
        UseCairo();
        PlacedImage image = _list.ImageOf(item);
        Affine2 place = _map * image.Matrix;
        double shownWidth = new Vec2(place.Xx, place.Yx).Length;
        double shownHeight = new Vec2(place.Xy, place.Yy).Length;
        double share = Math.Min(1, shownWidth * shownHeight / ((double)_target.ThinLines.Width * _rows.End));
        Budget.Step(1 + (long)(share * StepsPerPage));
        bool isNearest = _settings.Interpolation == InterpolationMode.NearestNeighbor;
        (int width, int height, byte[] pixels) = isNearest
            ? (image.Width, image.Height, image.Pixels)
            : ReducedImages.Of(image.Width, image.Height, image.Pixels, shownWidth, shownHeight);
        fixed (byte* data = pixels)
        {
            nint surface = Cairo.ImageSurfaceCreateForData(data, CairoFormat.Argb32, width, height, width * 4);
            using var owner = new NativeHandle(surface, &Cairo.SurfaceDestroy);
            Cairo.Check(Cairo.SurfaceStatus(surface), "placing an image");
            Paint(image, surface, width, height);
        }
    }

    private void Paint(PlacedImage image, nint surface, int width, int height)
    {
        Cairo.Save(_cr);
        var toUnit = new Affine2(1.0 / width, 0, 0, -1.0 / height, 0, 1);
        CairoMatrix matrix = ToCairo(_map * image.Matrix * toUnit);
        Cairo.Transform(_cr, &matrix);
        Cairo.SetSourceSurface(_cr, surface, 0, 0);
        if (Filters.TryGetValue(_settings.Interpolation, out CairoFilter filter))
        {
            Cairo.PatternSetFilter(Cairo.GetSource(_cr), filter);
        }
        else if (image.Sharp)
        {
            Cairo.PatternSetFilter(Cairo.GetSource(_cr), CairoFilter.Nearest);
        }

        Cairo.PaintWithAlpha(_cr, image.Opacity);
        Cairo.Restore(_cr);
        _hasColor = false;
    }
}
