using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>
/// Writes display lists as the content of a page. Operators of the state are written where the state changes, and
/// strokes of the same state follow each other in one path. What lies outside of the page or of a clip is left out.
/// </summary>
internal sealed partial class PdfPainter : ItemPlayer
{
    /// <summary>Dashes shorter than this in points melt into a line.</summary>
    private const double ShortestPeriod = 0.75;

    private readonly PdfDocument _document;
    private readonly PdfStream? _stream;
    private readonly PdfBuffer _out;
    private readonly TextEngine _engine;
    private readonly Page _page;
    private readonly PdfResources _resources;
    private PdfGraphicsState[] _saved = new PdfGraphicsState[8];
    private int _savedCount;
    private readonly Affine2 _toPage;
    private readonly double _unit;
    private PdfGraphicsState _state = new();
    private readonly PaintSettings _settings;
    private Affine2 _map;
    private double _scale;
    private int _layer = -1;

    /// <summary>Creates a painter; a unit of the content of the page is so many points.</summary>
    internal PdfPainter(PdfDocument document, PdfStream stream, TextEngine engine, Page page, PdfResources resources,
        double unit)
        : base(page.List)
    {
        _document = document;
        _stream = stream;
        _out = stream.Content;
        _engine = engine;
        _page = page;
        _resources = resources;
        _unit = unit;
        _settings = page.Settings;
        _toPage = new Affine2(1 / unit, 0, 0, -1 / unit, 0, page.Height / unit);
        _decimals = DecimalsOf(Math.Max(page.Width, page.Height) / unit);
        _precision = Math.Pow(10, _decimals);
        _farthest = document.IsArchive ? MaxArchiveCoordinate : MaxCoordinate;
        _state.Clip = Bounds2.Of(0, 0, page.Width / unit, page.Height / unit);
    }

    /// <summary>Writes background, content and what lies over it.</summary>
    internal void Paint()
    {
        if (_settings.PaintBackground && _settings.Background.A > 0)
        {
            FillPage(_settings.Background);
        }

        Bounds2? clip = _settings.Clip;
        if (clip is Bounds2 box)
        {
            PushBox(box);
        }

        SetMap(_settings.ToDevice);
        if (_page.Replay is null)
        {
            PlayItems(_page.List);
        }
        else
        {
            _page.Replay(PlayItems);
        }

        EndList();
        if (clip is not null)
        {
            EndClip();
        }

        if (_page.Overlay is not null)
        {
            SetMap(Affine2.Identity);
            PlayItems(_page.Overlay);
            EndList();
        }
    }

    private void SetMap(in Affine2 toDevice)
    {
        _map = _toPage * toDevice;
        _scale = Math.Sqrt(Math.Abs(_map.Determinant));
    }

    protected override void EndItem()
    {
        if (_out.Count >= PdfStream.BlockSize)
        {
            _stream?.Flush();
        }
    }

    private void EndList()
    {
        SetLayer(-1);
        EndObject();
    }

    protected override void PlayStroke(in DisplayItem item)
    {
        double width = _settings.WidthOf(item) / _unit;
        StrokeStyle style = List.StyleOf(item) ?? _settings.StrokeStyle;
        double reach = style.Join == LineJoins.Miter ? style.MiterLimit : 1.5;
        if (!Map(List.VerbsOf(item), List.CoordsOf(item), _map) || !IsVisible(width * reach))
        {
            return;
        }

        if (IsFar && item.Dash < 0)
        {
            ClipLines(List.VerbsOf(item), List.CoordsOf(item), width * reach);
        }

        SetLayer(item.Layer);
        EndText();
        SetStroke(_document.Flatten(item.Color, _settings, _page.Notes), width, style, item);
        if (_document.HasTransparency && item.Color.A != 255)
        {
            EndPath();
        }

        _pendingStroke |= WritePath(isStroke: true);
    }

    private void SetStroke(Rgba color, double width, in StrokeStyle style, in DisplayItem item)
    {
        SetAlpha(color.A);
        if (color.R != _state.Stroke.R || color.G != _state.Stroke.G || color.B != _state.Stroke.B)
        {
            EndPath();
            SetStrokeColor(color);
        }

        if (width != _state.Width)
        {
            EndPath();
            SetWidth(width);
        }

        if (style.Cap != _state.Cap || style.Join != _state.Join || style.MiterLimit != _state.MiterLimit)
        {
            EndPath();
            SetStyle(style);
        }

        int dash = item.Dash >= 0 && IsDashVisible(item) ? item.Dash : -1;
        if (dash != _state.Dash || (dash >= 0 && item.DashOffset != _state.DashOffset))
        {
            EndPath();
            SetDash(item, dash);
        }
    }

    private void SetStrokeColor(Rgba color)
    {
        _out.Color(color).Raw(color.R == color.G && color.G == color.B ? "G\n"u8 : "RG\n"u8);
        _state.Stroke = color;
    }

    private void SetWidth(double width)
    {
        _out.Real(width).Raw(" w\n"u8);
        _state.Width = width;
    }

    private void SetStyle(in StrokeStyle style)
    {
        if (style.Cap != _state.Cap)
        {
            _out.Int((int)style.Cap).Raw(" J\n"u8);
        }

        if (style.Join != _state.Join)
        {
            _out.Int((int)style.Join).Raw(" j\n"u8);
        }

        if (style.MiterLimit != _state.MiterLimit)
        {
            _out.Real(Math.Max(1, style.MiterLimit)).Raw(" M\n"u8);
        }

        (_state.Cap, _state.Join, _state.MiterLimit) = (style.Cap, style.Join, style.MiterLimit);
    }

    private bool IsDashVisible(in DisplayItem item)
    {
        double period = 0;
        foreach (double length in List.DashOf(item))
        {
            period += length;
        }

        return period * _scale * _unit >= ShortestPeriod;
    }

    private void SetDash(in DisplayItem item, int dash)
    {
        _out.Raw((byte)'[');
        if (dash >= 0)
        {
            foreach (double length in List.DashOf(item))
            {
                _out.Real(length * _scale).Raw((byte)' ');
            }
        }

        _out.Raw((byte)']').Real(dash >= 0 ? item.DashOffset * _scale : 0).Raw(" d\n"u8);
        (_state.Dash, _state.DashOffset) = (dash, item.DashOffset);
    }

    protected override void PlayFill(in DisplayItem item)
    {
        if (!Map(List.VerbsOf(item), List.CoordsOf(item), _map) || !IsVisible(0))
        {
            return;
        }

        SetLayer(item.Layer);
        EndObject();
        if (item.Extra >= 0)
        {
            FillGradient(List.GradientOf(item), item.EvenOdd);
            return;
        }

        SetFill(item.Color);
        PaintFill(item.EvenOdd);
    }

    private void PaintFill(bool evenOdd)
    {
        if (WritePath(isStroke: false))
        {
            _out.Raw(evenOdd ? "f*\n"u8 : "f\n"u8);
        }
    }

    private void FillGradient(Gradient gradient, bool evenOdd)
    {
        Affine2 map = _map * gradient.Matrix;
        if (!map.TryInvert(out _))
        {
            SetFill(gradient.Stops[0].Color);
            PaintFill(evenOdd);
            return;
        }

        PdfGradient shading =
            _document.Gradients.Of(gradient, color => _document.Flatten(color, _settings, _page.Notes));
        _resources.Use(PdfResources.Shading, shading.Shading);
        SetAlpha(shading.Alpha);
        _out.Raw("q\n"u8);
        WriteClipPath();
        _out.Raw(evenOdd ? "W* n\n"u8 : "W n\n"u8).Matrix(map).Raw("cm\n"u8);
        if (shading.State > 0)
        {
            _resources.Use(PdfResources.State, shading.State);
            _out.Raw("/G"u8).Int(shading.State).Raw(" gs\n"u8);
        }

        _out.Raw("/S"u8).Int(shading.Shading).Raw(" sh Q\n"u8);
    }

    protected override void PlayImage(in DisplayItem item)
    {
        PlacedImage image = List.ImageOf(item);
        Affine2 map = _map * image.Matrix;
        Bounds2 box = Bounds2.Empty;
        for (int corner = 0; corner < 4; corner++)
        {
            Vec2 p = map.Point(corner & 1, corner >> 1);
            box.Add(p.X, p.Y);
        }

        if (!box.IsFinite || !box.Intersects(_state.Clip))
        {
            return;
        }

        Cover(box, 0);
        SetLayer(item.Layer);
        EndObject();
        SetAlpha(_document.HasTransparency ? (byte)Math.Round(Math.Clamp(image.Opacity, 0, 1) * 255) : (byte)255);
        int number = _document.Images.Of(image, _settings, _page.Notes);
        _resources.Use(PdfResources.Image, number);
        _out.Raw("q "u8).Matrix(map).Raw("cm /X"u8).Int(number).Raw(" Do Q\n"u8);
    }

    private void FillPage(Rgba color)
    {
        SetFill(color);
        _out.Raw("0 0 "u8).Real(_state.Clip.MaxX).Raw((byte)' ').Real(_state.Clip.MaxY).Raw(" re f\n"u8);
    }

    private void PushBox(in Bounds2 clip)
    {
        Affine2 map = _toPage * _settings.ToDevice;
        Vec2 a = map.Point(clip.MinX, clip.MinY);
        Vec2 b = map.Point(clip.MaxX, clip.MaxY);
        Bounds2 box = Bounds2.Of(a.X, a.Y, b.X, b.Y);
        Save();
        _out.Real(box.MinX).Raw((byte)' ').Real(box.MinY).Raw((byte)' ').Real(box.Width).Raw((byte)' ')
            .Real(box.Height).Raw(" re W n\n"u8);
        _state.Clip = box.Clip(_state.Clip);
    }

    protected override void BeginClip(in DisplayItem item)
    {
        bool holds = Map(List.VerbsOf(item), List.CoordsOf(item), _map);
        SetLayer(-1);
        EndObject();
        Save();
        _verbCount = holds ? _verbCount : 0;
        WriteClipPath();
        _out.Raw(item.EvenOdd ? "W* n\n"u8 : "W n\n"u8);
        _state.Clip = holds ? _box.Clip(_state.Clip) : Bounds2.Empty;
    }

    /// <summary>Writes the path that was mapped; where nothing is left of it, an area that holds nothing.</summary>
    private void WriteClipPath()
    {
        if (!WritePath(isStroke: false))
        {
            _out.Raw("0 0 0 0 re\n"u8);
        }
    }

    protected override void EndClip()
    {
        SetLayer(-1);
        EndObject();
        _out.Raw("Q\n"u8);
        _state = _saved[--_savedCount];
    }

    private void Save()
    {
        _out.Raw("q\n"u8);
        if (_savedCount == _saved.Length)
        {
            Array.Resize(ref _saved, 2 * _savedCount);
        }

        _saved[_savedCount++] = _state;
    }

    private void SetFill(Rgba given)
    {
        Rgba color = _document.Flatten(given, _settings, _page.Notes);
        SetAlpha(color.A);
        if (color.R != _state.Fill.R || color.G != _state.Fill.G || color.B != _state.Fill.B)
        {
            _out.Color(color).Raw(color.R == color.G && color.G == color.B ? "g\n"u8 : "rg\n"u8);
            _state.Fill = color;
        }
    }

    private void SetAlpha(byte alpha)
    {
        if (alpha == _state.Alpha)
        {
            return;
        }

        EndPath();
        int number = _document.AlphaState(alpha);
        _resources.Use(PdfResources.State, number);
        _out.Raw("/G"u8).Int(number).Raw(" gs\n"u8);
        _state.Alpha = alpha;
    }

    /// <summary>Content belongs to one layer at a time; -1 is none.</summary>
    private void SetLayer(int given)
    {
        int layer = given < List.Layers.Count ? given : -1;
        if (layer == _layer)
        {
            return;
        }

        if (_document.HasLayers)
        {
            EndObject();
            _ = _layer >= 0 ? _out.Raw("EMC\n"u8) : _out;
            if (layer >= 0)
            {
                int number = _document.Layers.Of(List.Layers[layer], List.IsPrinted(layer));
                _resources.Use(PdfResources.Layer, number);
                _out.Raw("/OC/L"u8).Int(number).Raw(" BDC\n"u8);
            }
        }

        _layer = layer;
    }

    /// <summary>Ends a path or a text that is open, as operators that belong to neither follow.</summary>
    private void EndObject()
    {
        EndPath();
        EndText();
    }
}
