using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Linq;
using System.Text;
using System.Text.RegularExpressions;
using System.Xml.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.ImageOptions.SvgOptionsParameters;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>What the elements of a document are, read by another parser, and what they share.</summary>
public partial class SvgTests
{
    private static readonly Rgba Red = new(255, 0, 0);
    private static readonly Rgba Blue = new(0, 0, 255);
    private static readonly XNamespace Svg = "http://www.w3.org/2000/svg";
    private static readonly XName Href = XNamespace.Get("http://www.w3.org/1999/xlink") + "href";

    [Theory]
    [InlineData(0, "0")]
    [InlineData(-0.0004, "0")]
    [InlineData(0.0006, ".001")]
    [InlineData(-0.05, "-.05")]
    [InlineData(9.9996, "10")]
    [InlineData(-12.34, "-12.34")]
    [InlineData(1234567.125, "1234567.125")]
    [InlineData(double.NaN, "0")]
    [InlineData(double.NegativeInfinity, "-1000000000000000")]
    public void Numbers_have_no_more_digits_than_they_need(double value, string expected) =>
        Assert.Equal(expected, Written(writer => writer.Number(value)));

    [Fact]
    public void Strings_keep_what_xml_can_hold()
    {
        foreach ((string text, string expected) in new[]
        {
            ("a<b>&\"c'", "a&lt;b&gt;&amp;&quot;c'"),
            ("tab\tline\nnull\0bell\a", "tablinenullbell"),
            ("\ufffe\uffff\ud800x\udc00\ud83d", "x"), // surrogates alone
            ("\ud83d\ude00\u00e4\u4e2d\u0085", "\ud83d\ude00\u00e4\u4e2d\u0085"),
        })
        {
            Assert.Equal(expected, Written(writer => writer.Escaped(text)));
        }

        string far = new string('\u4e2d', 21_840) + "\ud83d\ude00"; // over the end of the buffer
        for (int shift = 0; shift < 8; shift++)
        {
            string padded = new string('x', shift) + far + far;
            Assert.Equal(padded, Written(writer => writer.Escaped(padded)));
            Assert.Equal(padded, Written(writer => writer.Text(padded)));
        }
    }

    [Fact]
    public void Path_data_leads_to_the_same_points()
    {
        var random = new Random(5);
        for (int run = 0; run < 200; run++)
        {
            var path = new PathBuffer();
            path.MoveTo(new Vec2(1, 2));
            for (int i = random.Next(1, 30); i > 0; i--)
            {
                double scale = Math.Pow(10, random.Next(-4, 5));
                Vec2 Point() => random.Next(4) == 0 ? path.Current : new(
                    random.Next(3) == 0 ? path.Current.X : (random.NextDouble() - 0.5) * scale,
                    (random.NextDouble() - 0.5) * scale);
                switch (random.Next(5))
                {
                    case 0:
                        path.MoveTo(Point());
                        break;
                    case 1:
                        path.CurveTo(Point(), Point(), Point());
                        break;
                    case 2:
                        path.Close();
                        break;
                    default:
                        path.LineTo(Point());
                        break;
                }
            }

            var map = new Affine2(1, 0.5, -0.25, 2, 3, 4);
            string data = Written(writer => new SvgPath(writer).Add(path.Verbs, path.Coords, map));
            AssertSame(Outlines(path, map), Parse(data), data);
        }
    }

    [Fact]
    public void Runs_of_a_layer_are_groups_with_names_of_their_own()
    {
        var list = new DrawingList();
        foreach (string layer in new[] { "A 1", "A_1", "A 1", "\u00c4.\"<2>", "A_1.2", "A 1" })
        {
            list.Stroke(Line(0, 0, 10, 10), Style(Red) with { Layer = list.Layer(layer) });
        }

        list.PushClip(Line(0, 0, 9, 0, 9, 9), evenOdd: true);
        list.Stroke(Line(0, 0, 10, 10), Style(Red) with { Layer = list.Layer("A 1") });
        list.PopClip();
        XElement[] groups = [.. Document(list).Descendants(Svg + "g").Where(g => g.Attribute("id") is not null)];
        string[] names = ["layer-A_1", "layer-A_1-2", "layer-A_1.2", "layer-\u00c4___2_", "layer-A_1_2", "layer-A_1.3",
            "layer-A_1.4"];
        Assert.Equal(names, groups.Attributes("id").Select(id => id.Value));
        string[] layers = ["A 1", "A_1", "\u00c4.\"<2>", "A_1.2"];
        Assert.Equal(layers, groups.Attributes("data-name").Select(name => name.Value));
        Assert.Equal(4, groups.Count(g => g.Attribute("class")!.Value == "layer-A_1"));
        Assert.Equal("url(#clip-1)", groups[^1].Parent!.Attribute("clip-path")!.Value);
    }

    [Fact]
    public void Strokes_of_one_style_share_a_path_unless_that_would_show()
    {
        var list = new DrawingList();
        int dash = list.Dash([3, 2]);
        StrokeAttributes[] styles = [
            Style(Red), Style(Red), Style(Red) with { LineWeight = 2 }, Style(Blue), Style(Red),
            Style(Red) with { Dash = dash }, Style(Red) with { Dash = dash, DashOffset = 1 },
            Style(Red.WithAlpha(128)), Style(Red.WithAlpha(128)), Style(Red) with { Style = list.StyleIndex(default) }];
        for (int i = 0; i < styles.Length; i++)
        {
            list.Stroke(Line(i, 0, i, 10), styles[i]);
        }

        XElement root = Document(list);
        string[] data = [.. root.Descendants(Svg + "path").Select(path => path.Attribute("d")!.Value)];
        Assert.Equal(["M0 100v-10m1 10v-10", "M2 100v-10", "M3 100v-10", "M4 100v-10", "M5 100v-10", "M6 100v-10",
            "M7 100v-10", "M8 100v-10", "M9 100v-10"], data);
        XElement glass = root.Descendants(Svg + "g").Single(g => g.Attribute("stroke-opacity") is not null);
        Assert.Equal(2, glass.Elements().Count());
        Assert.Equal(".502", glass.Attribute("stroke-opacity")!.Value);
        Assert.Equal(["3 2", "3 2"], root.Descendants().Attributes("stroke-dasharray").Select(a => a.Value));
        Assert.Equal("1", Assert.Single(root.Descendants().Attributes("stroke-dashoffset")).Value);
        Assert.Equal("butt", root.Descendants(Svg + "path").Last().Attribute("stroke-linecap")!.Value);
    }

    [Fact]
    public void Long_runs_of_strokes_are_several_paths_that_hold_all()
    {
        var list = new DrawingList();
        for (int i = 0; i < 2500; i++)
        {
            list.Stroke(Line(i % 100, i / 100, (i % 100) + 0.5, i / 100), Style(Red));
        }

        string[] data = [.. Document(list).Descendants(Svg + "path").Select(path => path.Attribute("d")!.Value)];
        Assert.Equal(5, data.Length);
        Assert.Equal(2500, data.Sum(path => path.Count(c => c is 'm' or 'M')));
    }

    [Fact]
    public void Glyphs_are_defined_once_and_make_the_outlines_of_their_runs()
    {
        string[] texts =
            ["AVAVA To", "fi \u00c4\u0301 q", "\u0645\u0631\u062d\u0628\u0627", "A\u4e2d", "A B", "\ue123"];
        using var engine = new TextEngine();
        using var outlines = new GlyphOutlines(engine);
        int font = engine.Font(FontSpec.Default);
        Dictionary<int, PathBuffer> known = [];
        foreach ((string text, double spacing) in texts.SelectMany(text => new[] { (text, 0.0), (text, 0.3) }))
        {
            var run = new TextRun(text, font, Affine2.Identity, spacing);
            List<GlyphOutline> added = [];
            PlacedGlyph[] glyphs = outlines.Of(run, added);
            added.ForEach(outline => known.Add(outline.Number, outline.Path));
            var joined = new PathBuffer();
            foreach (PlacedGlyph glyph in glyphs)
            {
                var to = new Affine3(Vec3.UnitX, Vec3.UnitY, Vec3.UnitZ, new Vec3(glyph.X, glyph.Y, 0));
                joined.AppendMapped(known[glyph.Number], to, 0);
            }

            var whole = new PathBuffer();
            engine.AddOutline(run, new Affine2(1, 0, 0, -1, 0, 0), whole);
            Assert.Equal(whole.Verbs.ToArray(), joined.Verbs.ToArray());
            int drawn = whole.Coords.Length - 2; // where the pen is at last says nothing
            Assert.All(whole.Coords[..drawn].ToArray().Zip(joined.Coords[..drawn].ToArray()), pair =>
                Assert.Equal(pair.First, pair.Second, 1e-4));
            Assert.Same(glyphs, outlines.Of(run, added)); // shaped once
        }
    }

    [Fact]
    public void Documents_have_an_outline_for_each_glyph_and_the_same_bytes_each_time()
    {
        string text = Save(Words(), new SvgOptions());
        XElement root = XElement.Parse(text);
        XElement[] outlines = [.. root.Descendants(Svg + "path")];
        Assert.Equal(["glyph-1", "glyph-2"], outlines.Attributes("id").Select(id => id.Value));
        Assert.Equal(8, root.Descendants(Svg + "use").Count());
        Assert.Equal("#glyph-1 #glyph-2 #glyph-2 #glyph-1", string.Join(' ', root.Descendants(Svg + "use").Take(4)
            .Select(use => use.Attribute(Href)!.Value)));
        Assert.Equal(text, Save(Words(), new SvgOptions()));
        XElement[] strings = [.. XElement.Parse(Save(Words(), new SvgOptions { TextAsShapes = false }))
            .Descendants(Svg + "text")];
        Assert.Equal(["ABBA", "BAAB"], strings.Select(one => one.Value));
        Assert.Equal(strings[0].Parent, strings[1].Parent); // which states font and colour
    }

    [Fact]
    public void Images_are_stored_once_and_used_where_they_are_placed()
    {
        var list = new DrawingList();
        foreach ((double x, double opacity, byte tone, bool sharp) in new[]
        {
            (0.0, 1.0, (byte)9, false), (20, 0.5, (byte)9, false), (40, 1, (byte)8, false), (60, 1, (byte)9, true),
        })
        {
            byte[] pixels = [tone, 0, 0, 255]; // of its own each time
            var image = new PlacedImage(1, 1, pixels, new Affine2(10, 0, 0, 10, x, 0), opacity) { Sharp = sharp };
            list.Image(image, list.Layer("0"), Bounds2.Of(x, 0, x + 10, 10));
        }

        XElement root = Document(list, shapes: true);
        XElement[] images = [.. root.Descendants(Svg + "image")];
        Assert.Equal(["image-1", "image-2", "image-3"], images.Attributes("id").Select(id => id.Value));
        Assert.Equal(["#image-1", "#image-1", "#image-2", "#image-3"],
            root.Descendants(Svg + "use").Attributes(Href).Select(a => a.Value));
        Assert.Equal(".5", Assert.Single(root.Descendants(Svg + "use").Attributes("opacity")).Value);
        Assert.Equal("pixelated", Assert.Single(root.Descendants().Attributes("image-rendering")).Value);
        Assert.All(images.Attributes(Href), address =>
            Assert.StartsWith("data:image/bmp;base64,Qk", address.Value, StringComparison.Ordinal));
    }

    [Fact]
    public void Both_forms_show_what_pixels_show()
    {
        foreach (bool shapes in new[] { true, false })
        {
            string file = Tools.TempFile(".svg");
            using var engine = new TextEngine();
            Page page = PageOf(Everything(engine));
            using (FileStream output = File.Create(file))
            {
                SvgDocument.Write(output, engine, page, new SvgOptions { TextAsShapes = shapes });
            }

            Tools.Run("xmllint", "--noout", file);
            string png = Tools.TempFile(".png");
            Tools.Run("rsvg-convert", "-b", "white", "-o", png, file);
            using RasterPage expected = RasterPage.Render(engine, page);
            using var actual = (RasterImage)Image.Load(png);
            int far = 0;
            for (int i = 0; i < 100 * 100; i++)
            {
                ReadOnlySpan<byte> pixel = expected.Row(i / 100).Slice(i % 100 * 4, 4);
                Color found = actual.GetPixel(i % 100, i / 100);
                int off = Math.Max(Math.Abs(found.R - pixel[2]), Math.Abs(found.G - pixel[1]));
                far += Math.Max(off, Math.Abs(found.B - pixel[0])) > 48 ? 1 : 0;
            }

            Assert.InRange(far, 0, 40); // edges of glyphs and of the image
        }
    }

    private static DrawingList Everything(TextEngine engine)
    {
        var list = new DrawingList();
        int layer = list.Layer("all");
        var toPage = new Affine2(30, 20, -20, 30, 40, 35);
        list.Fill(Line(5, 5, 95, 5, 95, 95, 5, 95), Red, layer, evenOdd: true, new Gradient(
            false, 0, 0, toPage, [new(0, Red), new(1, Blue)]));
        list.Fill(Line(10, 10, 30, 10, 30, 30, 10, 30), new Rgba(0, 255, 0, 128), layer, evenOdd: false);
        list.Fill(Line(20, 20, 40, 20, 40, 40, 20, 40), new Rgba(0, 255, 0, 128), layer, evenOdd: false);
        list.Image(new PlacedImage(1, 1, [0, 255, 255, 255], new Affine2(20, 0, 0, 20, 70, 70), 0.5) { Sharp = true },
            layer, Bounds2.Of(70, 70, 90, 90));
        list.PushClip(Line(50, 10, 90, 10, 90, 50), evenOdd: false);
        list.Stroke(Line(50, 20, 95, 20), Style(Rgba.White) with { LineWeight = 6, Layer = layer });
        list.PopClip();
        list.Stroke(Line(10, 60, 60, 60), Style(Rgba.White) with
        {
            LineWeight = 4,
            Dash = list.Dash([8, 8]),
            Style = list.StyleIndex(new StrokeStyle(LineCaps.Butt, LineJoins.Miter)),
        });
        int font = engine.Font(FontSpec.Default);
        list.Text(new TextRun("HTE", font, new Affine2(24, 0, 0, 24, 8, 70), 0), Rgba.White, layer,
            Bounds2.Of(8, 70, 60, 90));
        return list;
    }

    private static DrawingList Words()
    {
        var list = new DrawingList();
        int layer = list.Layer("words");
        foreach ((string text, double y) in new[] { ("ABBA", 10.0), ("BAAB", 40) })
        {
            Bounds2 box = Bounds2.Of(5, y, 60, y + 20);
            list.Text(new TextRun(text, 0, new Affine2(20, 0, 0, 20, 5, y), 0), Red, layer, box);
        }

        return list;
    }

    private static string Save(DrawingList list, SvgOptions options)
    {
        using var engine = new TextEngine();
        engine.Font(FontSpec.Default);
        using var output = new MemoryStream();
        SvgDocument.Write(output, engine, PageOf(list), options);
        return Encoding.UTF8.GetString(output.ToArray());
    }

    private static XElement Document(DrawingList list, bool shapes = false)
    {
        list.Layer("0");
        var options = new SvgOptions { TextAsShapes = shapes, ImageType = SvgImageType.Bmp };
        return XElement.Parse(Save(list, options));
    }

    private static Page PageOf(DrawingList list) => new("Page", 100, 100, list, new PaintSettings
    {
        ToDevice = new Affine2(1, 0, 0, -1, 0, 100),
        UnitsPerMillimetre = 1,
        LineScale = 1,
        Background = Rgba.White,
        PaintBackground = true,
        Caps = LineCaps.Round,
    });

    private static StrokeAttributes Style(Rgba color) => new() { Color = color, LineWeight = 1, Dash = -1 };

    private static PathBuffer Line(params double[] xy)
    {
        var path = new PathBuffer();
        path.MoveTo(new Vec2(xy[0], xy[1]));
        for (int i = 2; i < xy.Length; i += 2)
        {
            path.LineTo(new Vec2(xy[i], xy[i + 1]));
        }

        return path;
    }

    private static string Written(Action<MarkupWriter> write)
    {
        using var output = new MemoryStream();
        var writer = new MarkupWriter(output);
        write(writer);
        writer.Flush();
        return Encoding.UTF8.GetString(output.ToArray());
    }

    /// <summary>The points of a path, mapped, with a break at each move and an end at each close.</summary>
    private static List<string> Outlines(PathBuffer path, in Affine2 map)
    {
        List<string> points = [];
        int at = 0;
        string? moved = null;
        foreach (PathVerb verb in path.Verbs)
        {
            int count = verb switch { PathVerb.Curve => 3, PathVerb.Close => 0, _ => 1 };
            string shown = verb == PathVerb.Close ? "z" : $"{verb}"[..1];
            for (int i = 0; i < count; i++, at += 2)
            {
                Vec2 p = map.Point(path.Coords[at], path.Coords[at + 1]);
                shown += Rounded(p.X) + Rounded(p.Y);
            }

            if (verb == PathVerb.Move)
            {
                moved = shown;
                continue;
            }

            points.AddRange(moved is null ? [shown] : [moved, shown]);
            moved = null;
        }

        return points;
    }

    private static string Rounded(double value) =>
        FormattableString.Invariant($" {(long)Math.Round(value * 1000)}");

    /// <summary>Reads path data as its grammar says.</summary>
    private static List<string> Parse(string data)
    {
        List<string> points = [];
        (long x, long y, long startX, long startY) = (0, 0, 0, 0);
        foreach (Match match in Commands().Matches(data))
        {
            char command = match.Value[0];
            var n = new Queue<long>(Numbers().Matches(match.Value[1..]).Select(number =>
                (long)Math.Round(double.Parse(number.Value, CultureInfo.InvariantCulture) * 1000)));
            if (command == 'z')
            {
                (x, y) = (startX, startY);
                points.Add("z");
            }

            for (bool isFirst = true; n.Count > 0; isFirst = false)
            {
                (long fromX, long fromY) = char.IsUpper(command) ? (0, 0) : (x, y);
                string shown = command is 'm' or 'M' && isFirst ? "M" : command == 'c' ? "C" : "L";
                for (int i = shown == "C" ? 3 : 1; i > 0; i--)
                {
                    (x, y) = (command == 'v' ? x : fromX + n.Dequeue(), command == 'h' ? y : fromY + n.Dequeue());
                    shown += FormattableString.Invariant($" {x} {y}");
                }

                (startX, startY) = shown[0] == 'M' ? (x, y) : (startX, startY);
                points.Add(shown);
            }
        }

        return points;
    }

    /// <summary>Segments without length say nothing where others do.</summary>
    private static void AssertSame(List<string> expected, List<string> actual, string data)
    {
        Assert.True(Simple(expected).SequenceEqual(Simple(actual)), $"{data}\n{string.Join(";", expected)}");
        Assert.DoesNotMatch(@"e|E|--|\.\d{4}", data);

        static List<string> Simple(List<string> points)
        {
            List<string> kept = [];
            (string last, string start) = ("", "");
            foreach (string point in points)
            {
                string place = point == "z" ? start : string.Join(' ', point.Split(' ')[^2..]);
                if (point[0] != 'L' || place != last)
                {
                    kept.Add(point);
                }

                (last, start) = (place, point[0] == 'M' ? place : start);
            }

            return kept;
        }
    }

    [GeneratedRegex("[a-zA-Z][^a-zA-Z]*")]
    private static partial Regex Commands();

    [GeneratedRegex(@"-?(\d+\.?\d*|\.\d+)")]
    private static partial Regex Numbers();
}
