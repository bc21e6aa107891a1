using System;
using System.Globalization;
using System.IO;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>
/// Writes a page as scalable vector graphics that keep text as text, to be searched and edited. Each run states the
/// length that it was laid out with, so that it keeps its place where another font has to stand in.
/// </summary>
internal sealed class SvgTextDocument
{
    private const double FontSize = 100;
    private const double SmallestPeriod = 0.75;

    private readonly StreamWriter _writer;
    private readonly TextEngine _engine;
    private readonly SvgResources _resources;
    private readonly StringBuilder _path = new();
    private DrawingList _list;
    private readonly PaintSettings _settings;
    private Affine2 _map;
    private int _nextId;

    private SvgTextDocument(StreamWriter writer, TextEngine engine, Page page, SvgResources resources)
    {
        _resources = resources;
        _writer = writer;
        _engine = engine;
        _list = page.List;
        _settings = page.Settings;
        _map = _settings.ToDevice;
    }

    internal static void Write(Stream output, TextEngine engine, Page page, SvgOptions options)
    {
        using var writer = new StreamWriter(output, new UTF8Encoding(false), 64 * 1024, leaveOpen: true);
        new SvgTextDocument(writer, engine, page, new SvgResources(options)).WritePage(page);
    }

    private static string N(double value) => Math.Round(value, 3).ToString("0.###", CultureInfo.InvariantCulture);

    private static string Rgb(Rgba color) => $"#{color.R:x2}{color.G:x2}{color.B:x2}";

    private static string Opacity(string attribute, Rgba color) =>
        color.A == 255 ? string.Empty : $" {attribute}=\"{N(color.A / 255.0)}\"";

    private void WritePage(Page page)
    {
        string width = N(page.Width);
        string height = N(page.Height);
        _writer.Write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
        _writer.Write(
            $"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"{width}\" height=\"{height}\" viewBox=\"0 0 {width} "
                + $"{height}\">\n");
        _writer.Write(_resources.FontFaces(page.Overlay is null ? [page.List] : [page.List, page.Overlay], _engine));
        if (_settings.PaintBackground)
        {
            _writer.Write(
                $"<rect width=\"{width}\" height=\"{height}\" "
                    + $"fill=\"{Rgb(_settings.Background)}\"{Opacity("fill-opacity", _settings.Background)}/>\n");
        }

        _writer.Write(
            $"<g stroke-linecap=\"{_settings.Look.CapWord}\" stroke-linejoin=\"round\" fill=\"none\"{OpenClip()}>\n");
        WriteItems();
        _writer.Write("</g>\n");
        if (page.Overlay != null)
        {
            (_list, _map) = (page.Overlay, Affine2.Identity);
            WriteItems();
        }

        _writer.Write("</svg>\n");
    }

    private string OpenClip()
    {
        if (_settings.Clip is not Bounds2 clip)
        {
            return string.Empty;
        }

        Vec2 a = _map.Point(clip.MinX, clip.MaxY);
        Vec2 b = _map.Point(clip.MaxX, clip.MinY);
        string id = "k" + _nextId++;
        _writer.Write(
            $"<clipPath id=\"{id}\"><rect x=\"{N(a.X)}\" y=\"{N(a.Y)}\" width=\"{N(b.X - a.X)}\" "
                + $"height=\"{N(b.Y - a.Y)}\"/></clipPath>\n");
        return $" clip-path=\"url(#{id})\"";
    }

    private void WriteItems()
    {
        foreach (ref readonly DisplayItem item in _list.Items)
        {
            switch (item.Kind)
            {
                case DisplayKind.Stroke:
                    WriteStroke(item);
                    break;
                case DisplayKind.Fill:
                    WriteFill(item);
                    break;
                case DisplayKind.Text:
                    WriteText(item);
                    break;
                case DisplayKind.Image:
                    WriteImage(_list.ImageOf(item));
                    break;
                case DisplayKind.PushClip:
                    string id = "k" + _nextId++;
                    string rule = item.EvenOdd ? " clip-rule=\"evenodd\"" : string.Empty;
                    _writer.Write(
                        $"<clipPath id=\"{id}\"><path d=\"{PathOf(item)}\"{rule}/></clipPath><g "
                            + $"clip-path=\"url(#{id})\">\n");
                    break;
                case DisplayKind.PopClip:
                    _writer.Write("</g>\n");
                    break;
            }
        }
    }

    private void WriteStroke(in DisplayItem item)
    {
        double width = _settings.WidthOf(item);
        _writer.Write(
            $"<path d=\"{PathOf(item)}\" stroke=\"{Rgb(item.Color)}\" "
                + $"stroke-width=\"{N(width)}\"{Opacity("stroke-opacity", item.Color)}");
        if (_list.LookOf(item) is LineLook look)
        {
            _writer.Write($" stroke-linecap=\"{look.CapWord}\" stroke-linejoin=\"{look.JoinWord}\"");
            _writer.Write(look.Join == LineJoins.Miter ? $" stroke-miterlimit=\"{N(look.MiterLimit)}\"" : "");
        }

        if (item.Dash >= 0)
        {
            WriteDash(_list.DashOf(item), item.DashOffset);
        }

        _writer.Write("/>\n");
    }

    private void WriteDash(double[] lengths, double offset)
    {
        double scale = Math.Sqrt(Math.Abs(_map.Determinant));
        double period = 0;
        foreach (double length in lengths)
        {
            period += length * scale;
        }

        if (period >= SmallestPeriod)
        {
            string dashes = string.Join(' ', Array.ConvertAll(lengths, length => N(length * scale)));
            _writer.Write($" stroke-dasharray=\"{dashes}\" stroke-dashoffset=\"{N(offset * scale)}\"");
        }
    }

    private void WriteFill(in DisplayItem item)
    {
        string rule = item.EvenOdd ? " fill-rule=\"evenodd\"" : string.Empty;
        string paint = item.Extra >= 0 ? $"url(#{WriteGradient(_list.GradientOf(item))})" : Rgb(item.Color);
        string opacity = item.Extra >= 0 ? string.Empty : Opacity("fill-opacity", item.Color);
        _writer.Write($"<path d=\"{PathOf(item)}\" fill=\"{paint}\"{rule}{opacity}/>\n");
    }

    private string WriteGradient(Gradient gradient)
    {
        string id = "k" + _nextId++;
        string kind = gradient.Radial ? "radialGradient" : "linearGradient";
        string place = gradient.Radial
            ? $"cx=\"0\" cy=\"0\" r=\"1\" fx=\"{N(gradient.FocusX)}\" fy=\"{N(gradient.FocusY)}\""
            : "x1=\"-1\" y1=\"0\" x2=\"1\" y2=\"0\"";
        _writer.Write(
            $"<{kind} id=\"{id}\" gradientUnits=\"userSpaceOnUse\" {place} "
                + $"gradientTransform=\"{Matrix(_map * gradient.Matrix)}\">");
        foreach (GradientStop stop in gradient.Stops)
        {
            _writer.Write(
                $"<stop offset=\"{N(stop.Offset)}\" "
                    + $"stop-color=\"{Rgb(stop.Color)}\"{Opacity("stop-opacity", stop.Color)}/>");
        }

        _writer.Write($"</{kind}>\n");
        return id;
    }

    private void WriteText(in DisplayItem item)
    {
        TextRun run = _list.TextOf(item);
        FontSpec font = _engine.SpecOf(run.Font);
        double length = _engine.Advance(run.Font, run.Text, run.LetterSpacing) * FontSize;

        // One unit of the run is an em, y up; the element's y runs down.
        Affine2 matrix = _map * run.Matrix * new Affine2(1 / FontSize, 0, 0, -1 / FontSize, 0, 0);
        string family = string.Join(',',
            Array.ConvertAll(font.Family.Split(','), f => $"'{f.Trim().Replace("'", string.Empty)}'"));
        _writer.Write(
            $"<text xml:space=\"preserve\" transform=\"{Matrix(matrix)}\" font-family=\"{Escape(family)}\" "
                + $"font-size=\"{N(FontSize)}\"");
        _writer.Write(font.Bold ? " font-weight=\"bold\"" : string.Empty);
        _writer.Write(font.Italic ? " font-style=\"italic\"" : string.Empty);
        _writer.Write(
            $" textLength=\"{N(length)}\" lengthAdjust=\"spacingAndGlyphs\" "
                + $"fill=\"{Rgb(item.Color)}\"{Opacity("fill-opacity", item.Color)}>");
        _writer.Write(Escape(run.Text));
        _writer.Write("</text>\n");
    }

    private void WriteImage(PlacedImage image)
    {
        Affine2 matrix = _map * image.Matrix * new Affine2(1, 0, 0, -1, 0, 1);
        _writer.Write(
            $"<image width=\"1\" height=\"1\" "
                + $"preserveAspectRatio=\"none\"{(image.Sharp ? " image-rendering=\"pixelated\"" : "")} "
                + $"transform=\"{Matrix(matrix)}\" opacity=\"{N(image.Opacity)}\" ");
        _writer.Write($"href=\"{Escape(_resources.Address(image))}\"/>\n");
    }

    private static string Matrix(in Affine2 m)
    {
        static string P(double value) => value.ToString("G9", CultureInfo.InvariantCulture);
        return $"matrix({P(m.Xx)} {P(m.Yx)} {P(m.Xy)} {P(m.Yy)} {P(m.X0)} {P(m.Y0)})";
    }

    /// <summary>Escapes markup and leaves out what XML cannot hold.</summary>
    private static string Escape(string text)
    {
        var result = new StringBuilder(text.Length);
        foreach (Rune rune in text.EnumerateRunes())
        {
            switch (rune.Value)
            {
                case '<':
                    result.Append("&lt;");
                    break;
                case '&':
                    result.Append("&amp;");
                    break;
                case '"':
                    result.Append("&quot;");
                    break;
                case < 32 or 0xfffe or 0xffff:
                    break;
                default:
                    result.Append(rune.ToString());
                    break;
            }
        }

        return result.ToString();
    }

    private StringBuilder PathOf(in DisplayItem item)
    {
        _path.Clear();
        ReadOnlySpan<double> c = _list.CoordsOf(item);
        int at = 0;
        foreach (PathVerb verb in _list.VerbsOf(item))
        {
            int points = verb switch { PathVerb.Curve => 3, PathVerb.Close => 0, _ => 1 };
            _path.Append(verb switch { PathVerb.Move => 'M', PathVerb.Line => 'L', PathVerb.Curve => 'C', _ => 'Z' });
            for (int i = 0; i < points; i++, at += 2)
            {
                Vec2 p = _map.Point(c[at], c[at + 1]);
                _path.Append(N(p.X)).Append(' ').Append(N(p.Y)).Append(i + 1 < points ? " " : string.Empty);
            }
        }

        return _path;
    }
}
