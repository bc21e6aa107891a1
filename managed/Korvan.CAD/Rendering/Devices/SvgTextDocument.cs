using System;
using System.Globalization;
using System.IO;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
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

    private readonly StreamWriter writer;
    private readonly TextEngine engine;
    private readonly SvgResources resources;
    private readonly StringBuilder path = new();
    private DrawingList list;
    private PaintSettings settings;
    private Affine2 map;
    private int nextId;

    private SvgTextDocument(StreamWriter writer, TextEngine engine, Page page, SvgResources resources)
    {
        this.resources = resources;
        this.writer = writer;
        this.engine = engine;
        list = page.List;
        settings = page.Settings;
        map = settings.ToDevice;
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
        writer.Write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
        writer.Write($"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"{width}\" height=\"{height}\" viewBox=\"0 0 {width} {height}\">\n");
        writer.Write(resources.FontFaces(page.Overlay is null ? [page.List] : [page.List, page.Overlay], engine));
        if (settings.PaintBackground)
        {
            writer.Write($"<rect width=\"{width}\" height=\"{height}\" fill=\"{Rgb(settings.Background)}\"{Opacity("fill-opacity", settings.Background)}/>\n");
        }

        writer.Write($"<g stroke-linecap=\"{settings.Look.CapWord}\" stroke-linejoin=\"round\" fill=\"none\"{OpenClip()}>\n");
        WriteItems();
        writer.Write("</g>\n");
        if (page.Overlay != null)
        {
            (list, map) = (page.Overlay, Affine2.Identity);
            WriteItems();
        }

        writer.Write("</svg>\n");
    }

    private string OpenClip()
    {
        if (settings.Clip is not Bounds2 clip)
        {
            return string.Empty;
        }

        Vec2 a = map.Point(clip.MinX, clip.MaxY);
        Vec2 b = map.Point(clip.MaxX, clip.MinY);
        string id = "k" + nextId++;
        writer.Write($"<clipPath id=\"{id}\"><rect x=\"{N(a.X)}\" y=\"{N(a.Y)}\" width=\"{N(b.X - a.X)}\" height=\"{N(b.Y - a.Y)}\"/></clipPath>\n");
        return $" clip-path=\"url(#{id})\"";
    }

    private void WriteItems()
    {
        foreach (ref readonly DisplayItem item in list.Items)
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
                    WriteImage(list.ImageOf(item));
                    break;
                case DisplayKind.PushClip:
                    string id = "k" + nextId++;
                    string rule = item.EvenOdd ? " clip-rule=\"evenodd\"" : string.Empty;
                    writer.Write($"<clipPath id=\"{id}\"><path d=\"{PathOf(item)}\"{rule}/></clipPath><g clip-path=\"url(#{id})\">\n");
                    break;
                case DisplayKind.PopClip:
                    writer.Write("</g>\n");
                    break;
            }
        }
    }

    private void WriteStroke(in DisplayItem item)
    {
        double width = settings.WidthOf(item);
        writer.Write($"<path d=\"{PathOf(item)}\" stroke=\"{Rgb(item.Color)}\" stroke-width=\"{N(width)}\"{Opacity("stroke-opacity", item.Color)}");
        if (list.LookOf(item) is LineLook look)
        {
            writer.Write($" stroke-linecap=\"{look.CapWord}\" stroke-linejoin=\"{look.JoinWord}\"");
            writer.Write(look.Join == LineJoins.Miter ? $" stroke-miterlimit=\"{N(look.MiterLimit)}\"" : "");
        }

        if (item.Dash >= 0)
        {
            WriteDash(list.DashOf(item), item.DashOffset);
        }

        writer.Write("/>\n");
    }

    private void WriteDash(double[] lengths, double offset)
    {
        double scale = Math.Sqrt(Math.Abs(map.Determinant));
        double period = 0;
        foreach (double length in lengths)
        {
            period += length * scale;
        }

        if (period >= SmallestPeriod)
        {
            string dashes = string.Join(' ', Array.ConvertAll(lengths, length => N(length * scale)));
            writer.Write($" stroke-dasharray=\"{dashes}\" stroke-dashoffset=\"{N(offset * scale)}\"");
        }
    }

    private void WriteFill(in DisplayItem item)
    {
        string rule = item.EvenOdd ? " fill-rule=\"evenodd\"" : string.Empty;
        string paint = item.Extra >= 0 ? $"url(#{WriteGradient(list.GradientOf(item))})" : Rgb(item.Color);
        string opacity = item.Extra >= 0 ? string.Empty : Opacity("fill-opacity", item.Color);
        writer.Write($"<path d=\"{PathOf(item)}\" fill=\"{paint}\"{rule}{opacity}/>\n");
    }

    private string WriteGradient(Gradient gradient)
    {
        string id = "k" + nextId++;
        string kind = gradient.Radial ? "radialGradient" : "linearGradient";
        string place = gradient.Radial
            ? $"cx=\"0\" cy=\"0\" r=\"1\" fx=\"{N(gradient.FocusX)}\" fy=\"{N(gradient.FocusY)}\""
            : "x1=\"-1\" y1=\"0\" x2=\"1\" y2=\"0\"";
        writer.Write($"<{kind} id=\"{id}\" gradientUnits=\"userSpaceOnUse\" {place} gradientTransform=\"{Matrix(map * gradient.Matrix)}\">");
        foreach (GradientStop stop in gradient.Stops)
        {
            writer.Write($"<stop offset=\"{N(stop.Offset)}\" stop-color=\"{Rgb(stop.Color)}\"{Opacity("stop-opacity", stop.Color)}/>");
        }

        writer.Write($"</{kind}>\n");
        return id;
    }

    private void WriteText(in DisplayItem item)
    {
        TextRun run = list.TextOf(item);
        FontSpec font = engine.SpecOf(run.Font);
        double length = engine.Advance(run.Font, run.Text, run.LetterSpacing) * FontSize;

        // One unit of the run is an em, y up; the element's y runs down.
        Affine2 matrix = map * run.Matrix * new Affine2(1 / FontSize, 0, 0, -1 / FontSize, 0, 0);
        string family = string.Join(',', Array.ConvertAll(font.Family.Split(','), f => $"'{f.Trim().Replace("'", string.Empty)}'"));
        writer.Write($"<text xml:space=\"preserve\" transform=\"{Matrix(matrix)}\" font-family=\"{Escape(family)}\" font-size=\"{N(FontSize)}\"");
        writer.Write(font.Bold ? " font-weight=\"bold\"" : string.Empty);
        writer.Write(font.Italic ? " font-style=\"italic\"" : string.Empty);
        writer.Write($" textLength=\"{N(length)}\" lengthAdjust=\"spacingAndGlyphs\" fill=\"{Rgb(item.Color)}\"{Opacity("fill-opacity", item.Color)}>");
        writer.Write(Escape(run.Text));
        writer.Write("</text>\n");
    }

    private void WriteImage(PlacedImage image)
    {
        Affine2 matrix = map * image.Matrix * new Affine2(1, 0, 0, -1, 0, 1);
        writer.Write($"<image width=\"1\" height=\"1\" preserveAspectRatio=\"none\"{(image.Sharp ? " image-rendering=\"pixelated\"" : "")} transform=\"{Matrix(matrix)}\" opacity=\"{N(image.Opacity)}\" ");
        writer.Write($"href=\"{Escape(resources.Address(image))}\"/>\n");
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
        path.Clear();
        ReadOnlySpan<double> c = list.CoordsOf(item);
        int at = 0;
        foreach (PathVerb verb in list.VerbsOf(item))
        {
            int points = verb switch { PathVerb.Curve => 3, PathVerb.Close => 0, _ => 1 };
            path.Append(verb switch { PathVerb.Move => 'M', PathVerb.Line => 'L', PathVerb.Curve => 'C', _ => 'Z' });
            for (int i = 0; i < points; i++, at += 2)
            {
                Vec2 p = map.Point(c[at], c[at + 1]);
                path.Append(N(p.X)).Append(' ').Append(N(p.Y)).Append(i + 1 < points ? " " : string.Empty);
            }
        }

        return path;
    }
}
