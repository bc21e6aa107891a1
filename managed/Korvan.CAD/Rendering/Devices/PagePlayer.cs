using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>How a line is drawn, in device units.</summary>
internal readonly record struct DeviceStroke(Rgba Color, double Width, double[]? Dash, double DashOffset,
    StrokeStyle Style);

/// <summary>
/// Goes through a page and hands its items on in device units, for formats that have primitives of their own. What a
/// format lacks is done here with what it has, and noted: gradients as one colour, texts as outlines.
/// </summary>
internal abstract class PagePlayer : ItemPlayer
{
    /// <summary>Dashes shorter than this in device units melt into a line.</summary>
    private const double ShortestPeriod = 0.75;
    private const double SmallestText = 0.15;

    private readonly PathBuffer _path = new();
    private readonly Page _page;
    private readonly double _scale;
    private Affine2 _map;

    /// <summary>A player; formats of whole numbers have device units that are parts of those of the page.</summary>
    protected PagePlayer(TextEngine engine, Page page, RenderNotes notes, double scale = 1)
        : base(page.List)
    {
        Engine = engine;
        Notes = notes;
        _page = page;
        _scale = scale;
        _map = new Affine2(scale, 0, 0, scale, 0, 0) * page.Settings.ToDevice;
    }

    protected TextEngine Engine { get; }

    protected RenderNotes Notes { get; }

    protected PaintSettings Settings => _page.Settings;

    protected double Width => _page.Width * _scale;

    protected double Height => _page.Height * _scale;

    protected string Name => _page.Name;

    /// <summary>Draws background, content and what lies over it.</summary>
    protected void Play()
    {
        if (Settings.PaintBackground)
        {
            _path.Clear();
            Rectangle(Bounds2.Of(0, 0, Width, Height));
            Fill(_path, Settings.Background, evenOdd: false);
        }

        if (Settings.Clip is Bounds2 clip)
        {
            Vec2 a = _map.Point(clip.MinX, clip.MinY);
            Vec2 b = _map.Point(clip.MaxX, clip.MaxY);
            _path.Clear();
            Rectangle(Bounds2.Of(Math.Min(a.X, b.X), Math.Min(a.Y, b.Y), Math.Max(a.X, b.X), Math.Max(a.Y, b.Y)));
            PushClip(_path, evenOdd: false);
        }

        if (_page.Replay is null)
        {
            PlayItems(_page.List);
        }
        else
        {
            _page.Replay(PlayItems);
        }

        if (Settings.Clip is not null)
        {
            PopClip();
        }

        if (_page.Overlay is not null)
        {
            _map = new Affine2(_scale, 0, 0, _scale, 0, 0);
            PlayItems(_page.Overlay);
        }
    }

    protected abstract void Stroke(PathBuffer path, in DeviceStroke stroke);

    protected abstract void Fill(PathBuffer path, Rgba color, bool evenOdd);

    protected abstract void Image(PlacedImage image, in Affine2 matrix);

    /// <summary>Everything up to the matching pop shows only inside the path.</summary>
    protected abstract void PushClip(PathBuffer path, bool evenOdd);

    protected abstract void PopClip();

    /// <summary>The matrix maps the gradient's own space to the device.</summary>
    protected virtual void FillGradient(PathBuffer path, Gradient gradient, in Affine2 matrix, bool evenOdd)
    {
        Notes.Add(RenderErrorCode.GradientFlattened, "gradients became one colour");
        Fill(path, Middle(gradient), evenOdd);
    }

    /// <summary>The matrix maps ems of the run, y up from its baseline, to the device.</summary>
    protected virtual void Text(in TextRun run, in Affine2 matrix, Rgba color) => Outline(run, matrix, color);

    /// <summary>Draws a run as filled outlines.</summary>
    protected void Outline(in TextRun run, in Affine2 matrix, Rgba color)
    {
        _path.Clear();
        Engine.AddOutline(run, matrix, _path);
        if (!_path.IsEmpty)
        {
            Fill(_path, color, evenOdd: false);
        }
    }

    private static Rgba Middle(Gradient gradient)
    {
        GradientStop before = gradient.Stops[0];
        foreach (GradientStop stop in gradient.Stops)
        {
            if (stop.Offset >= 0.5)
            {
                double span = stop.Offset - before.Offset;
                double part = span > 0 ? (0.5 - before.Offset) / span : 0;
                return Mix(before.Color, stop.Color, part);
            }

            before = stop;
        }

        return before.Color;
    }

    /// <summary>A colour between two, each of its parts by itself.</summary>
    protected static Rgba Mix(Rgba from, Rgba to, double part)
    {
        byte Between(byte a, byte b) => (byte)Math.Round(a + ((b - a) * part));
        return new Rgba(Between(from.R, to.R), Between(from.G, to.G), Between(from.B, to.B), Between(from.A, to.A));
    }

    /// <summary>The colour that shows when a transparent one lies on the page, for formats without
    /// transparency.</summary>
    protected Rgba Opaque(Rgba color)
    {
        if (color.A == 255)
        {
            return color;
        }

        Notes.Add(RenderErrorCode.TransparencyBlended, "transparent colours were mixed with that of the page");
        return Mix(Settings.Background.WithAlpha(255), color.WithAlpha(255), color.A / 255.0);
    }

    private void Rectangle(in Bounds2 box)
    {
        _path.MoveTo(new Vec2(box.MinX, box.MinY));
        _path.LineTo(new Vec2(box.MaxX, box.MinY));
        _path.LineTo(new Vec2(box.MaxX, box.MaxY));
        _path.LineTo(new Vec2(box.MinX, box.MaxY));
        _path.Close();
    }

    protected override void PlayStroke(in DisplayItem item) => Stroke(Trace(item), StrokeOf(item));

    protected override void PlayFill(in DisplayItem item)
    {
        if (item.Extra < 0)
        {
            Fill(Trace(item), item.Color, item.EvenOdd);
            return;
        }

        Gradient gradient = List.GradientOf(item);
        FillGradient(Trace(item), gradient, _map * gradient.Matrix, item.EvenOdd);
    }

    protected override void PlayImage(in DisplayItem item)
    {
        PlacedImage image = List.ImageOf(item);
        Image(image, _map * image.Matrix);
    }

    protected override void BeginClip(in DisplayItem item) => PushClip(Trace(item), item.EvenOdd);

    protected override void EndClip() => PopClip();

    protected override void PlayText(in DisplayItem item)
    {
        TextRun run = List.TextOf(item);
        Affine2 matrix = _map * run.Matrix;
        if (!run.IsHidden && Math.Abs(matrix.Determinant) > SmallestText * SmallestText * _scale * _scale)
        {
            Text(run, matrix, item.Color);
        }
    }

    private DeviceStroke StrokeOf(in DisplayItem item)
    {
        double width = Settings.WidthOf(item) * _scale;
        StrokeStyle style = List.StyleOf(item) ?? Settings.StrokeStyle;
        if (item.Dash < 0)
        {
            return new DeviceStroke(item.Color, width, null, 0, style);
        }

        double scale = Math.Sqrt(Math.Abs(_map.Determinant));
        double period = 0;
        double[] lengths = Array.ConvertAll(List.DashOf(item), length => length * scale);
        Array.ForEach(lengths, length => period += length);
        return period < ShortestPeriod * _scale
            ? new DeviceStroke(item.Color, width, null, 0, style)
            : new DeviceStroke(item.Color, width, lengths, item.DashOffset * scale, style);
    }

    private PathBuffer Trace(in DisplayItem item)
    {
        _path.Clear();
        _path.AppendMapped(List.VerbsOf(item), List.CoordsOf(item), _map);
        return _path;
    }
}
