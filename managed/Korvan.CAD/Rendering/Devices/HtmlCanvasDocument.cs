using System;
using System.Buffers.Text;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Text;
using System.Text.Encodings.Web;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>
/// Writes a page as a canvas and the script that draws on it (HTML Living Standard, 4.12.5). The script defines a
/// function for each kind of item and calls it once for each item, so that it stays short.
/// </summary>
internal sealed class HtmlCanvasDocument : PagePlayer
{
    /// <summary>What the calls below mean. Texts are stretched to the width that they were laid out with, as the reader
    /// may lack their font; pictures are decoded before anything is drawn, so that the order holds.</summary>
    private const string Functions = """
        const p = d => new Path2D(d);
        const s = (d, color, width, dash, offset) => {
          g.strokeStyle = color; g.lineWidth = width; g.setLineDash(dash); g.lineDashOffset = offset; g.stroke(p(d));
        };
        const l = (cap, join, limit) => { g.lineCap = cap; g.lineJoin = join; g.miterLimit = limit; };
        const f = (d, color, rule) => { g.fillStyle = color; g.fill(p(d), rule); };
        const q = (d, matrix, rule, radial, x, y, stops) => {
          g.save(); g.clip(p(d), rule); g.transform(...matrix);
          const paint = radial ? g.createRadialGradient(x, y, 0, 0, 0, 1) : g.createLinearGradient(-1, 0, 1, 0);
          for (const [at, color] of stops) paint.addColorStop(at, color);
          const far = 1e5; g.fillStyle = paint; g.fillRect(-far, -far, 2 * far, 2 * far); g.restore();
        };
        const t = (text, matrix, font, width, color) => {
          g.save(); g.transform(...matrix); g.font = font; g.fillStyle = color;
          const own = g.measureText(text).width; if (own > 0) g.scale(width / own, 1);
          g.fillText(text, 0, 0); g.restore();
        };
        const i = (n, matrix, opacity, smooth) => {
          g.save(); g.transform(...matrix); g.globalAlpha = opacity; g.imageSmoothingEnabled = smooth; g.drawImage(
              pictures[n], 0, 0, 1, 1); g.restore();
        };
        const c = (d, rule) => { g.save(); g.clip(p(d), rule); };
        const r = () => g.restore();

        """;

    private const double FontSize = 100;

    /// <summary>No line has this, so that the first one states its own.</summary>
    private static readonly StrokeStyle NoStyle = new((LineCaps)(-1), default);

    private readonly Html5Options _options;
    private readonly ContentBlocks _content = new();
    private readonly MarkupWriter _calls;
    private readonly ContentBlocks _pictures = new();
    private readonly Dictionary<PlacedImage, int> _pictureNumbers = new(new SamePixels());
    private int _pictureCount;
    private readonly Stack<StrokeStyle> _saved = new();
    private StrokeStyle _style = NoStyle;

    private HtmlCanvasDocument(TextEngine engine, Page page, Html5Options options)
        : base(engine, page, page.Notes)
    {
        _options = options;
        _calls = new MarkupWriter(_content);
    }

    internal static void Write(Stream output, TextEngine engine, Page page, Html5Options options)
    {
        string id = options.CanvasTagId;
        if (id.Length == 0
            || !Array.TrueForAll(id.ToCharArray(), letter => char.IsAsciiLetterOrDigit(letter) || letter is '-' or '_'))
        {
            throw new RenderException($"'{id}' is no name for a canvas; it consists of letters, digits, '-' and '_'.");
        }

        var document = new HtmlCanvasDocument(engine, page, options);
        document.Play();
        document._calls.Flush();
        document.Write(output);
    }

    protected override void Stroke(PathBuffer path, in DeviceStroke stroke)
    {
        if (_style != stroke.Style)
        {
            _style = stroke.Style;
            Call($"l(\"{_style.CapKeyword}\",\"{_style.JoinKeyword}\",{N(_style.MiterLimit)});\n");
        }

        BeginCall("s("u8, path);
        WriteColor(stroke.Color);
        _calls.Raw((byte)',');
        _calls.Number(stroke.Width);
        _calls.Raw(",["u8);
        for (int i = 0; i < stroke.Dash?.Length; i++)
        {
            _calls.Raw(i == 0 ? default : ","u8);
            _calls.Number(stroke.Dash[i]);
        }

        _calls.Raw("],"u8);
        _calls.Number(stroke.DashOffset);
        _calls.Raw(");\n"u8);
    }

    protected override void Fill(PathBuffer path, Rgba color, bool evenOdd)
    {
        BeginCall("f("u8, path);
        WriteColor(color);
        Call($",\"{Rule(evenOdd)}\");\n");
    }

    protected override void FillGradient(PathBuffer path, Gradient gradient, in Affine2 matrix, bool evenOdd)
    {
        string stops = string.Join(',',
            Array.ConvertAll(gradient.Stops, stop => $"[{N(stop.Offset)},\"{Css(stop.Color)}\"]"));
        BeginCall("q("u8, path);
        Call($"{Matrix(matrix)},\"{Rule(evenOdd)}\",{(gradient.Radial ? "true" : "false")},");
        Call($"{N(gradient.FocusX)},{N(gradient.FocusY)},[{stops}]);\n");
    }

    protected override void Text(in TextRun run, in Affine2 matrix, Rgba color)
    {
        if (_options.TextAsShapes)
        {
            Outline(run, matrix, color);
            return;
        }

        // One unit of the run is an em, y up; the canvas' y runs down.
        Affine2 letters = matrix * new Affine2(1 / FontSize, 0, 0, -1 / FontSize, 0, 0);
        FontSpec font = Engine.SpecOf(run.Font);
        string family = string.Join(',',
            Array.ConvertAll(font.Family.Split(','), name => $"'{name.Trim().Replace("'", string.Empty)}'"));
        string traits = (font.Italic ? "italic " : "") + (font.Bold ? "bold " : "");
        double width = Engine.Advance(run.Font, run.Text, run.LetterSpacing) * FontSize;
        Call(
            $"t({Quoted(run.Text)},{Matrix(letters)},{Quoted($"{traits}{FontSize}px {family}")},"
            + $"{N(width)},\"{Css(color)}\");\n");
    }

    protected override void Image(PlacedImage image, in Affine2 matrix)
    {
        if (image.IsPlacedOnce || !_pictureNumbers.TryGetValue(image, out int number))
        {
            number = _pictureCount++;
            _ = image.IsPlacedOnce || _pictureNumbers.TryAdd(image, number);
            Define(image);
        }

        Call(
            $"i({number},{Matrix(matrix * new Affine2(1, 0, 0, -1, 0, 1))},{N(image.Opacity)},"
            + $"{(image.Sharp ? "false" : "true")});\n");
    }

    private void Define(PlacedImage image)
    {
        using var png = new MemoryStream();
        PngEncoder.Write(image.Width, image.Height, y =>
            image.Pixels.AsSpan(y * image.Width * 4, image.Width * 4), png, 6, 96);
        Span<byte> text = new byte[Base64.GetMaxEncodedToUtf8Length((int)png.Length)];
        Base64.EncodeToUtf8(png.GetBuffer().AsSpan(0, (int)png.Length), text, out _, out int length);
        _pictures.Write("\"data:image/png;base64,"u8);
        _pictures.Write(text[..length]);
        _pictures.Write("\",\n"u8);
    }

    protected override void PushClip(PathBuffer path, bool evenOdd)
    {
        _saved.Push(_style);
        BeginCall("c("u8, path);
        Call($"\"{Rule(evenOdd)}\");\n");
    }

    protected override void PopClip()
    {
        _style = _saved.Pop();
        _calls.Raw("r();\n"u8);
    }

    private static string N(double value) => Math.Round(value, 3).ToString("0.###", CultureInfo.InvariantCulture);

    private static string Rule(bool evenOdd) => evenOdd ? "evenodd" : "nonzero";

    private static string Css(Rgba color) => color.A == 255
        ? $"#{color.R:x2}{color.G:x2}{color.B:x2}"
        : $"#{color.R:x2}{color.G:x2}{color.B:x2}{color.A:x2}";

    private static string Matrix(in Affine2 m)
    {
        static string P(double value) => value.ToString("G9", CultureInfo.InvariantCulture);
        return $"[{P(m.Xx)},{P(m.Yx)},{P(m.Xy)},{P(m.Yy)},{P(m.X0)},{P(m.Y0)}]";
    }

    /// <summary>The default encoder escapes markup, so that no text ends the script.</summary>
    private static string Quoted(string text) => $"\"{JavaScriptEncoder.Default.Encode(text)}\"";

    private void Call(string text) => _calls.Text(text);

    private void Write(Stream output)
    {
        string title = HtmlEncoder.Default.Encode(Name);
        using var writer = new StreamWriter(output, new UTF8Encoding(false), 64 * 1024, leaveOpen: true);
        writer.Write(_options.FullHtmlPage
            ? $"<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\"/>\n<title>{title}</title>\n</head>\n<body>\n"
            : "");
        writer.Write(
            $"<canvas id=\"{_options.CanvasTagId}\" width=\"{N(Math.Ceiling(Width))}\" "
                + $"height=\"{N(Math.Ceiling(Height))}\"></canvas>\n");
        writer.Write("<script>\n(async () => {\n");
        writer.Write($"const g = document.getElementById(\"{_options.CanvasTagId}\").getContext(\"2d\");\n");
        writer.Write("const pictures = await Promise.all([\n");
        writer.Flush();
        _pictures.WriteTo(output);
        _pictures.Dispose();
        writer.Write(
            "].map(async source => { const picture = new Image(); picture.src = source; await picture.decode(); "
                + "return picture; }));\n");
        writer.Write(Functions);
        writer.Flush();
        _content.WriteTo(output);
        _content.Dispose();
        writer.Write("})();\n</script>\n");
        writer.Write(_options.FullHtmlPage ? "</body>\n</html>\n" : "");
    }

    /// <summary>Writes the begin of a call whose first argument is a path, up to the next one.</summary>
    private void BeginCall(ReadOnlySpan<byte> begin, PathBuffer path)
    {
        _calls.Raw(begin);
        _calls.Raw((byte)'"');
        ReadOnlySpan<double> c = path.Coords;
        int at = 0;
        foreach (PathVerb verb in path.Verbs)
        {
            int numbers = verb switch { PathVerb.Curve => 6, PathVerb.Close => 0, _ => 2 };
            _calls.Raw((byte)(verb switch
            {
                PathVerb.Move => 'M',
                PathVerb.Line => 'L',
                PathVerb.Curve => 'C',
                _ => 'Z',
            }));
            for (int i = 0; i < numbers; i++, at++)
            {
                _calls.Raw(i == 0 ? default : " "u8);
                _calls.Number(c[at]);
            }
        }

        _calls.Raw("\","u8);
    }

    private void WriteColor(Rgba color)
    {
        _calls.Raw((byte)'"');
        if (color.A == byte.MaxValue)
        {
            _calls.Color(color);
        }
        else
        {
            _calls.Text(Css(color));
        }

        _calls.Raw((byte)'"');
    }
}
