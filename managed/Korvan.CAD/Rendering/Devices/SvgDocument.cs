using System;
using System.IO;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>
/// Writes a page as SVG. Items keep their order, as later ones cover earlier ones: each run of items of one layer is a
/// group, and what is alike in consecutive items is stated once.
/// </summary>
internal sealed partial class SvgDocument
{
    private const double ShortestPeriod = 0.75;
    private const double SmallestText = 0.15;

    /// <summary>Commands of the strokes that one path element holds: renderers take long ones slowly.</summary>
    private const int MaxMergedVerbs = 1000;

    private readonly MarkupWriter _writer;
    private readonly SvgPath _path;
    private readonly SvgText _text;
    private readonly SvgImages _images;
    private readonly SvgLayers _layers = new();
    private readonly PaintSettings _settings;
    private DrawingList _list;
    private Affine2 _map;
    private int _openLayer = -1;
    private int _clips;
    private int _gradients;

    private SvgDocument(MarkupWriter writer, Page page, SvgText text, SvgResources resources)
    {
        _writer = writer;
        _path = new SvgPath(writer);
        _text = text;
        _settings = page.Settings;
        _images = new SvgImages(writer, resources, _settings.Interpolation);
        _list = page.List;
        _map = _settings.ToDevice;
    }

    internal static void Write(Stream output, TextEngine engine, Page page, SvgOptions options)
    {
        var writer = new MarkupWriter(output);
        var resources = new SvgResources(options);
        using SvgText text = options.TextAsShapes ? new SvgShapes(writer, engine) : new SvgStrings(writer, engine);
        var document = new SvgDocument(writer, page, text, resources);
        document.WriteRoot(page, options.TextAsShapes ? "" : resources.FontFaces(
            page.Overlay is null ? [page.List] : [page.List, page.Overlay], engine));
        writer.Flush();
    }

    private void WriteRoot(Page page, string style)
    {
        _writer.Raw("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "u8);
        _writer.Raw("xmlns:xlink=\"http://www.w3.org/1999/xlink\" version=\"1.1\""u8);
        Attribute(" width"u8, page.Width);
        Attribute(" height"u8, page.Height);
        _writer.Raw(" viewBox=\"0 0 "u8);
        _writer.Number(page.Width);
        _writer.Raw((byte)' ');
        _writer.Number(page.Height);
        // What measures on the page needs the way back to drawing units.
        _writer.Raw("\" data-from-drawing=\""u8);
        _writer.Matrix(_map);
        _writer.Raw("\">\n"u8);
        _writer.Text(style);
        if (_settings.PaintBackground)
        {
            _writer.Raw("<rect width=\"100%\" height=\"100%\""u8);
            WriteFill(_settings.Background);
            _writer.Raw("/>\n"u8);
        }

        WriteContent(page);
        if (page.Overlay is not null)
        {
            _map = Affine2.Identity;
            WriteItems(page.Overlay);
            EnterLayer(-1);
        }

        _writer.Raw("</svg>\n"u8);
    }

    private void WriteContent(Page page)
    {
        if (_settings.Clip is Bounds2 clip)
        {
            Vec2 a = _map.Point(clip.MinX, clip.MinY);
            Vec2 b = _map.Point(clip.MaxX, clip.MaxY);
            _writer.Raw("<clipPath id=\"page\"><rect"u8);
            Attribute(" x"u8, Math.Min(a.X, b.X));
            Attribute(" y"u8, Math.Min(a.Y, b.Y));
            Attribute(" width"u8, Math.Abs(b.X - a.X));
            Attribute(" height"u8, Math.Abs(b.Y - a.Y));
            _writer.Raw("/></clipPath>\n"u8);
        }

        _writer.Raw("<g fill=\"none\" stroke-linecap=\""u8);
        _writer.Text(_settings.StrokeStyle.CapKeyword);
        _writer.Raw("\" stroke-linejoin=\"round\""u8);
        _writer.Raw(_settings.Sharp ? " shape-rendering=\"crispEdges\""u8 : default);
        _writer.Raw(_settings.Clip is null ? ">\n"u8 : " clip-path=\"url(#page)\">\n"u8);
        WriteSymbols();
        if (page.Replay is null)
        {
            WriteItems(page.List);
        }
        else
        {
            page.Replay(WriteItems);
        }

        EnterLayer(-1);
        _writer.Raw("</g>\n"u8);
    }

    private void WriteItems(DrawingList list)
    {
        _list = list;
        WriteRuns(list.Items);
    }

    private void WriteRuns(ReadOnlySpan<DisplayItem> rest)
    {
        while (rest.Length > 0)
        {
            ref readonly DisplayItem item = ref rest[0];
            EnterLayer(item.Layer);
            rest = rest[(item.Kind switch
            {
                DisplayKind.Stroke => WriteStrokes(rest),
                DisplayKind.Fill => WriteFills(rest),
                DisplayKind.Text => WriteTexts(rest),
                DisplayKind.Image => WriteImage(item),
                DisplayKind.Symbol => WriteSymbol(item),
                DisplayKind.PushClip => OpenClip(item),
                _ => CloseClip(),
            })..];
        }
    }

    /// <summary>Begins the group of another layer; -1 for none. Clips have none, so that groups nest.</summary>
    private void EnterLayer(int layer)
    {
        if (layer == _openLayer)
        {
            return;
        }

        if (_openLayer >= 0)
        {
            _writer.Raw("</g>\n"u8);
        }

        _openLayer = layer;
        if (layer < 0)
        {
            return;
        }

        (string name, int run) = _layers.Next(layer, _list.Layers);
        _writer.Raw("<g id=\""u8);
        _writer.Text(name);
        if (run > 1)
        {
            _writer.Raw((byte)'.');
            _writer.Thousandths((long)run * MarkupWriter.Parts);
        }

        _writer.Raw("\" class=\""u8);
        _writer.Text(name);
        if (run == 1)
        {
            _writer.Raw("\" data-name=\""u8);
            _writer.Escaped(_list.Layers[layer]);
        }

        _writer.Raw("\">\n"u8);
    }

    private int OpenClip(in DisplayItem item)
    {
        _writer.Raw("<clipPath id=\"clip-"u8);
        WriteWhole(++_clips);
        _writer.Raw("\"><path"u8);
        WriteData(item);
        _writer.Raw(item.EvenOdd ? " clip-rule=\"evenodd\""u8 : default);
        _writer.Raw("/></clipPath>\n<g clip-path=\"url(#clip-"u8);
        WriteWhole(_clips);
        _writer.Raw(")\">\n"u8);
        return 1;
    }

    private int CloseClip()
    {
        _writer.Raw("</g>\n"u8);
        return 1;
    }

    private int WriteImage(in DisplayItem item)
    {
        _images.Write(_list.ImageOf(item), _map);
        return 1;
    }

    private int WriteTexts(ReadOnlySpan<DisplayItem> items)
    {
        ref readonly DisplayItem first = ref items[0];
        (int font, bool isHidden) = (_list.TextOf(first).Font, _list.TextOf(first).IsHidden);
        int count = 1;
        while (count < items.Length && items[count].Kind == DisplayKind.Text && items[count].Color == first.Color
            && items[count].Layer == first.Layer && _list.TextOf(items[count]).Font == font
            && _list.TextOf(items[count]).IsHidden == isHidden)
        {
            count++;
        }

        if (isHidden && !_text.IsSearchable)
        {
            return count;
        }

        _writer.Raw("<g"u8);
        if (isHidden)
        {
            _writer.Raw(" fill=\"none\" stroke=\"none\""u8);
        }
        else
        {
            WriteFill(first.Color);
        }

        _text.WriteFont(font);
        _writer.Raw(">\n"u8);
        foreach (ref readonly DisplayItem item in items[..count])
        {
            TextRun run = _list.TextOf(item);
            Affine2 matrix = _map * run.Matrix;
            if (Math.Abs(matrix.Determinant) > SmallestText * SmallestText)
            {
                _text.Write(run, matrix);
            }
        }

        _writer.Raw("</g>\n"u8);
        return count;
    }

    private void WriteData(in DisplayItem item)
    {
        _writer.Raw(" d=\""u8);
        _path.Begin();
        _path.Add(_list.VerbsOf(item), _list.CoordsOf(item), _map);
        _writer.Raw((byte)'"');
    }

    private void WriteFill(Rgba color)
    {
        _writer.Raw(" fill=\""u8);
        _writer.Color(color);
        _writer.Raw((byte)'"');
        WriteOpacity(" fill-opacity"u8, color);
    }

    private void WriteOpacity(ReadOnlySpan<byte> attribute, Rgba color)
    {
        if (color.A < byte.MaxValue)
        {
            Attribute(attribute, color.A / 255.0);
        }
    }

    private void WriteWhole(int value) => _writer.Thousandths((long)value * MarkupWriter.Parts);

    private void Attribute(ReadOnlySpan<byte> name, double value)
    {
        _writer.Raw(name);
        _writer.Raw("=\""u8);
        _writer.Number(value);
        _writer.Raw((byte)'"');
    }
}
