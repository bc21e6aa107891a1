using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Gdi;

/// <summary>Where a metafile is drawn.</summary>
/// <param name="List">What takes the items.</param>
/// <param name="Engine">What measures texts.</param>
/// <param name="Layer">The layer of all items.</param>
/// <param name="ToPage">From the unit square, y up, to the page.</param>
/// <param name="Decode">Reads the file of a bitmap; null for one that cannot be read.</param>
internal sealed record GdiTarget(
    DrawingList List, TextEngine Engine, int Layer, Affine2 ToPage, Func<byte[], PlacedImage?> Decode);

/// <summary>
/// Draws what the records of Windows metafiles ask of a device context: in logical coordinates, with the pen, brush and
/// font of the moment.
/// </summary>
internal sealed partial class GdiCanvas
{
    internal const int CopyPen = 13;
    private const int BlackPen = 1;
    private const int NoOperation = 11;
    private const int WhitePen = 16;
    private const int MaxSaved = 1_000;
    private const int MaxClips = 100;

    private readonly GdiTarget _target;
    private readonly Affine2 _deviceToPage;
    private readonly Vec2 _pixel;
    private readonly Stack<GdiState> _saved = new();
    private readonly List<GdiClip> _pushed = [];
    private readonly PathBuffer _scratch = new();
    private PathBuffer? _path;
    private bool _isPathOpen;
    private bool _isFigureOpen;

    /// <summary>Creates a canvas.</summary>
    /// <param name="target">Where to draw.</param>
    /// <param name="deviceToUnit">From units of the device to the unit square.</param>
    /// <param name="pixelMillimetres">The size of a unit of the device, for map modes with units of length.</param>
    internal GdiCanvas(GdiTarget target, in Affine2 deviceToUnit, Vec2 pixelMillimetres)
    {
        (_target, _deviceToPage, _pixel) = (target, target.ToPage * deviceToUnit, pixelMillimetres);
    }

    internal GdiState State { get; private set; } = new();

    /// <summary>Gets how many items were drawn.</summary>
    internal int Drawn { get; private set; }

    private DrawingList List => _target.List;

    private Rgba PenColor => Operated(State.Pen.Color);

    internal void Save()
    {
        if (_saved.Count < MaxSaved)
        {
            _saved.Push(State with { });
        }
    }

    /// <summary>Restores a saved state: a negative number counts back from the last one, others from the
    /// first.</summary>
    internal void Restore(int which)
    {
        int steps = which < 0 ? -which : _saved.Count - which + 1;
        for (; steps > 0 && _saved.Count > 0; steps--)
        {
            State = _saved.Pop();
        }
    }

    /// <summary>Ends the clips that are open in the list.</summary>
    internal void Finish()
    {
        State.Clips = [];
        SetClips();
    }

    /// <summary>From logical coordinates to the page.</summary>
    private Affine2 Map => _deviceToPage * PageMap * State.World;

    /// <summary>From the coordinates of the window to those of the device.</summary>
    private Affine2 PageMap
    {
        get
        {
            Vec2 scale = PageScale;
            return new Affine2(
                scale.X, 0, 0, scale.Y, State.ViewportOrigin.X - (State.WindowOrigin.X * scale.X),
                State.ViewportOrigin.Y - (State.WindowOrigin.Y * scale.Y));
        }
    }

    private Vec2 PageScale
    {
        get
        {
            const int isotropic = 7, anisotropic = 8;
            double unit = State.MapMode switch
            {
                2 => 0.1,
                3 => 0.01,
                4 => 0.254,
                5 => 0.0254,
                6 => 25.4 / 1440,
                _ => 0,
            };
            if (unit > 0)
            {
                return new Vec2(unit / _pixel.X, -unit / _pixel.Y);
            }

            if (State.MapMode is not (isotropic or anisotropic))
            {
                return new Vec2(1, 1);
            }

            Vec2 scale = new(
                Ratio(State.ViewportExtent.X, State.WindowExtent.X),
                Ratio(State.ViewportExtent.Y, State.WindowExtent.Y));
            double least = Math.Min(Math.Abs(scale.X), Math.Abs(scale.Y));
            return State.MapMode == isotropic
                ? new Vec2(Math.CopySign(least, scale.X), Math.CopySign(least, scale.Y)) : scale;
        }
    }

    private double Scale => Math.Sqrt(Math.Abs(Map.Determinant));

    private static double Ratio(double viewport, double window) => window == 0 || viewport == 0 ? 1 : viewport / window;

    /// <summary>Begins a path that the next shapes are added to instead of being drawn.</summary>
    internal void BeginPath() => (_path, _isPathOpen, _isFigureOpen) = (new PathBuffer(), true, false);

    internal void EndPath() => _isPathOpen = false;

    internal void AbortPath() => (_path, _isPathOpen) = (null, false);

    internal void CloseFigure()
    {
        _path?.Close();
        _isFigureOpen = false;
    }

    /// <summary>Fills and strokes the path, and forgets it.</summary>
    internal void DrawPath(bool fill, bool stroke)
    {
        if (_path is { } path)
        {
            AbortPath();
            Paint(path, fill, stroke);
        }
    }

    /// <summary>Clips to the path, and forgets it.</summary>
    internal void ClipToPath(int mode)
    {
        if (_path is { } path)
        {
            AbortPath();
            Clip(path, State.FillMode == 1, mode);
        }
    }

    /// <summary>Clips to a path by the number of a combination of regions: 1 the part of both, 5 the new one alone;
    /// others leave the region as it is, as far as it is larger.</summary>
    internal void Clip(PathBuffer path, bool evenOdd, int mode)
    {
        const int both = 1, difference = 4, replace = 5;
        if (mode == difference)
        {
            var outside = new PathBuffer();
            AddBox(new PathPen(outside, Flat(_target.ToPage)), -1, -1, 2, 2);
            outside.AppendMapped(path, Affine2.Identity);
            State.Clips = Clipped(new GdiClip(outside, true));
        }
        else if (mode is both or replace)
        {
            var clip = new GdiClip(path, evenOdd);
            State.Clips = mode == replace ? [clip] : Clipped(clip);
        }
    }

    private IReadOnlyList<GdiClip> Clipped(GdiClip clip) =>
        State.Clips.Count < MaxClips ? [.. State.Clips, clip] : State.Clips;

    internal void ReleaseClip() => State.Clips = [];

    /// <summary>Makes the clips of the list those of the state.</summary>
    private void SetClips()
    {
        int same = 0;
        while (same < _pushed.Count && same < State.Clips.Count && ReferenceEquals(_pushed[same], State.Clips[same]))
        {
            same++;
        }

        for (; _pushed.Count > same; _pushed.RemoveAt(_pushed.Count - 1))
        {
            List.PopClip();
        }

        for (; same < State.Clips.Count; same++)
        {
            List.PushClip(State.Clips[same].Path, State.Clips[same].EvenOdd);
            _pushed.Add(State.Clips[same]);
        }
    }

    private Rgba Operated(Rgba color) => State.RasterOperation switch
    {
        BlackPen => Rgba.Black,
        WhitePen => Rgba.White,
        NoOperation => color.WithAlpha(0),
        _ => color,
    };

    /// <summary>Fills and strokes a path that is on the page, or adds it to the path that is open.</summary>
    private void Paint(PathBuffer path, bool fill, bool stroke)
    {
        Budget.Step(1 + (path.Verbs.Length / 16));
        if (_isPathOpen)
        {
            _path!.AppendMapped(path, Affine2.Identity);
            return;
        }

        if (fill && State.Brush.Color is Rgba color)
        {
            Fill(path, Operated(color), State.FillMode == 1);
        }

        if (stroke && State.Pen.Line != GdiLine.None)
        {
            Stroke(path);
        }
    }

    private void Fill(PathBuffer path, Rgba color, bool evenOdd)
    {
        SetClips();
        if (State.Brush.Hatch < 0)
        {
            List.Fill(path, color, _target.Layer, evenOdd);
        }
        else
        {
            FillHatch(path, color, evenOdd);
        }

        Drawn++;
    }

    private void Stroke(PathBuffer path)
    {
        SetClips();
        GdiPen pen = State.Pen;
        double width = pen.Width * Scale;
        List.Stroke(path, new StrokeAttributes
        {
            Color = PenColor,
            LineWeight = (float)width,
            WeightInUnits = width > 0,
            Style = List.StyleIndex(pen.Ends with { MiterLimit = State.MiterLimit }),
            Dash = DashOf(pen, width),
            Layer = _target.Layer,
        });
        Drawn++;
    }

    // Lengths of thin lines are in units of the device, of others in widths.
    private int DashOf(GdiPen pen, double width)
    {
        double device = Math.Sqrt(Math.Abs(_deviceToPage.Determinant));
        double unit = Math.Max(width, device);
        double[] lengths = pen.Line switch
        {
            GdiLine.Dash => [3, 1],
            GdiLine.Dot => [1, 1],
            GdiLine.DashDot => [3, 1, 1, 1],
            GdiLine.DashDotDot => [3, 1, 1, 1, 1, 1],
            GdiLine.Custom when pen.Lengths.Length % 2 == 0 => Array.ConvertAll(
                pen.Lengths, length => length * Scale / unit),
            _ => [],
        };
        double thin = width > device || pen.Line == GdiLine.Custom ? 1 : 3;
        lengths = Array.ConvertAll(lengths, length => length * unit * thin);
        return lengths.Length > 0 && Array.TrueForAll(lengths, static length => length > 0) ? List.Dash(lengths) : -1;
    }

    /// <summary>Hatches run every eighth unit of the device; 0 across, 1 down, 2 and 3 along the diagonals, 4 and 5 the
    /// two of a kind.</summary>
    private void FillHatch(PathBuffer path, Rgba color, bool evenOdd)
    {
        const double distance = 8;
        const int maxLines = 2_000;
        if (State.BackgroundMode == GdiState.Opaque)
        {
            List.Fill(path, State.Background, _target.Layer, evenOdd);
        }

        Bounds2 box = path.Bounds;
        Vec2[] directions = State.Brush.Hatch switch
        {
            0 => [new(1, 0)],
            1 => [new(0, 1)],
            2 => [new(1, -1)],
            3 => [new(1, 1)],
            4 => [new(1, 0), new(0, 1)],
            _ => [new(1, 1), new(1, -1)],
        };
        var lines = new PathBuffer();
        double step = distance * Math.Sqrt(Math.Abs(_deviceToPage.Determinant));
        double reach = (box.Width + box.Height) / 2;
        int count = (int)Math.Min(maxLines, Math.Ceiling(2 * reach / step));
        foreach (Vec2 direction in box.IsEmpty || !(step > 0) ? [] : directions)
        {
            Vec2 along = direction * (1 / direction.Length);
            for (int i = 0; i < count; i++)
            {
                Vec2 middle = box.Center + (along.Left * ((i - (count / 2.0)) * step));
                lines.MoveTo(middle - (along * reach));
                lines.LineTo(middle + (along * reach));
            }
        }

        Budget.Step(count);
        List.PushClip(path, evenOdd);
        List.Stroke(lines, new StrokeAttributes { Color = color, Dash = -1, Layer = _target.Layer });
        List.PopClip();
    }

    private static Affine3 Flat(in Affine2 map) => new(
        new Vec3(map.Xx, map.Yx, 0), new Vec3(map.Xy, map.Yy, 0), Vec3.UnitZ, new Vec3(map.X0, map.Y0, 0));

    private static void AddBox(in PathPen pen, double left, double top, double right, double bottom)
    {
        pen.MoveTo(new Vec2(left, top));
        pen.LineTo(new Vec2(right, top));
        pen.LineTo(new Vec2(right, bottom));
        pen.LineTo(new Vec2(left, bottom));
        pen.Close();
    }
}
