using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

public class TextCodeTests
{
    private static readonly MTextFormat Start = new(
        FontSpec.Default, 2, 1, 0, 1, default, StackAlign.Baseline, false, false, false, false);

    [Theory]
    [InlineData("%%c20", "\u00d820")]
    [InlineData("45%%D %%p0.1", "45\u00b0 \u00b10.1")]
    [InlineData("100%%%", "100%")]
    [InlineData("%%065%%66", "AB")]
    [InlineData("\\U+00C4x\\U+20ac", "\u00c4x\u20ac")]
    [InlineData("\\M+1835C", "\u30bd")] // page 932: a letter whose second byte is a backslash
    [InlineData("50%", "50%")] // a lone sign is itself
    [InlineData("%%", "%%")] // nothing follows
    [InlineData("a^ b", "a^b")]
    [InlineData("\\U+12", "\\U+12")] // too short to be a code
    public void Single_line_codes_read_as_their_signs(string text, string expected)
    {
        Assert.Equal(expected, TextCodes.Plain(text));
    }

    [Fact]
    public void Bars_switch_on_and_off_around_their_pieces()
    {
        List<TextPiece> pieces = TextCodes.Parse("a%%ub%%oc%%ud%%o%%ke");
        Assert.Equal(["a", "b", "c", "d", "e"], pieces.Select(p => p.Text));
        Assert.Equal([false, true, true, false, false], pieces.Select(p => p.Underline));
        Assert.Equal([false, false, true, true, false], pieces.Select(p => p.Overline));
        Assert.True(pieces[4].Strike);
    }

    [Fact]
    public void Groups_restore_the_format()
    {
        List<MTextToken> tokens = Words("{\\H2x;big{\\C1;red}big}small");
        Assert.Equal(["big", "red", "big", "small"], tokens.Select(t => t.Text));
        Assert.Equal([4.0, 4, 4, 2], tokens.Select(t => t.Format.Height));
        Assert.Equal([false, true, false, false], tokens.Select(t => t.Format.Color.IsSet));
    }

    [Fact]
    public void Every_format_code_sets_its_property()
    {
        MTextFormat f = Words("\\fArial|b1|i1|c0|p34;\\H3;\\W0.8;\\Q15;\\T1.5;\\A1;\\c255;\\L\\O\\Kx").Single().Format;
        Assert.StartsWith("Arial", f.Font.Family);
        Assert.True(f.Font is { Bold: true, Italic: true });
        Assert.Equal((3.0, 0.8, 15.0, 1.5), (f.Height, f.WidthFactor, f.ObliqueDegrees, f.Tracking));
        Assert.Equal(StackAlign.Center, f.Align);
        Assert.Equal(new InlineColor(true, true, 0xff0000), f.Color);
        Assert.True(f is { Underline: true, Overline: true, Strike: true });
    }

    [Theory]
    [InlineData("\\\\ \\{\\}", "\\ {}")]
    [InlineData("a\\~b", "a\u00a0b")]
    [InlineData("\\Hxyz;a", "a")] // an unreadable number changes nothing
    [InlineData("\\H", "\\H")] // no argument: shown as it stands
    [InlineData("}}}a{{{", "a")] // braces that do not pair
    [InlineData("%%c5", "\u00d85")]
    [InlineData("\\zq", "\\zq")] // no such code
    public void Escapes_and_broken_codes_are_shown(string text, string expected)
    {
        string shown = string
            .Concat(MTextParser.Parse(text, Start).Select(t => t.Kind == MTextTokenKind.Space ? " " : t.Text));
        Assert.Equal(expected, shown);
    }

    [Theory]
    [InlineData("\\S1/2;", "1", "2", '/')]
    [InlineData("\\S+0.1^-0.2;", "+0.1", "-0.2", '^')]
    [InlineData("\\S3#4;", "3", "4", '#')]
    [InlineData("\\Sa\\/b\\;c/d;", "a/b;c", "d", '/')] // kept by backslashes
    [InlineData("\\Sonly;", "only", "", '^')]
    public void Stacks_split_at_their_divider(string text, string upper, string lower, char divider)
    {
        MTextToken stack = Assert.Single(MTextParser.Parse(text, Start));
        Assert.Equal((MTextTokenKind.Stack, upper, lower, divider),
            (stack.Kind, stack.Text, stack.Lower, stack.Divider));
    }

    [Fact]
    public void Paragraph_code_sets_indents_tabs_and_alignment_in_text_heights()
    {
        ParagraphFormat p = Words("\\pi-1,l2.5,r1,qc,t4,c8,r12;x").Single().Paragraph;
        Assert.Equal((-2.0, 5.0, 2.0, ParagraphAlign.Center), (p.First, p.Left, p.Right, p.Align));
        Assert.Equal(
            [new TabStop(8, ParagraphAlign.Left), new TabStop(16, ParagraphAlign.Center),
                new TabStop(24, ParagraphAlign.Right)], p.Tabs);
        Assert.Equal(ParagraphAlign.Right, Words("\\pxqr;x").Single().Paragraph.Align);
    }

    [Fact]
    public void Lines_wrap_and_hang_from_the_attachment_point()
    {
        using var engine = new TextEngine();
        MTextLayout layout = Lay(engine, "one two three\\Pfour", new MTextFrame(12, 1, 1, true));
        double[] baselines = layout.Runs.Select(r => r.Y).Distinct().ToArray();
        Assert.True(baselines.Length >= 3, "a width of six letters breaks the first paragraph");
        Assert.Equal(-2, baselines[0], 9);
        Assert.Equal(-2 - (2 * 5 / 3.0), baselines[1], 9);
        Assert.All(layout.Runs, r => Assert.True(r.X + r.Width <= 12.001 || r.X == 0));
    }

    [Theory]
    [InlineData(1, 0, -2)]
    [InlineData(5, -10, -1)]
    [InlineData(9, -20, 0)]
    public void Attachment_places_the_box(int attachment, double left, double baseline)
    {
        using var engine = new TextEngine();
        MTextLayout layout = Lay(engine, "\\pql;word", new MTextFrame(20, attachment, 1, false));
        PlacedRun run = Assert.Single(layout.Runs);
        Assert.Equal(left, run.X, 9);
        Assert.Equal(baseline, run.Y, 9);
    }

    [Theory]
    [InlineData("\u05d0 \u05d1 12 3 ab c", "ab c 3 12 \u05d1 \u05d0")] // begins from the right
    [InlineData("ab \u05d0 \u05d1 12 c", "ab 12 \u05d1 \u05d0 c")]
    [InlineData("ab 12 \u05d0 - \u05d1. - 3", "ab 12 3 - \u05d1. - \u05d0")] // signs are as their neighbours
    [InlineData("ab 12 cd", "ab 12 cd")]
    [InlineData("\u0627\\Pab \u0627 \u0628", "\u0627 ab \u0628 \u0627")] // each paragraph has a direction of its own
    public void Words_from_right_to_left_are_placed_so(string text, string expected)
    {
        using var engine = new TextEngine();
        MTextLayout layout = Lay(engine, text, new MTextFrame(0, 1, 1, true));
        IEnumerable<PlacedRun> seen = layout.Runs.OrderByDescending(run => run.Y).ThenBy(run => run.X);
        Assert.Equal(expected, string.Join(' ', seen.Select(run => run.Text)));
    }

    [Theory]
    [InlineData("j", false)] // justified: all lines but the last
    [InlineData("d", true)] // distributed: the last one, too
    [InlineData("l", null)]
    public void Justified_lines_reach_the_margin(string alignment, bool? lastToo)
    {
        using var engine = new TextEngine();
        MTextLayout layout = Lay(engine, $"\\pq{alignment};mm mm mm mm mm mm mm mm mm", new MTextFrame(30, 1, 1, true));
        double[] ends = [.. layout.Runs.GroupBy(run => run.Y).OrderByDescending(line => line.Key).Select(line =>
            line.Max(run => run.X + run.Width))];
        Assert.True(ends.Length >= 2);
        Assert.All(ends[..^1], end => Assert.Equal(lastToo is not null, Math.Abs(end - 30) < 1e-6));
        Assert.Equal(lastToo is true, Math.Abs(ends[^1] - 30) < 1e-6);
    }

    [Fact]
    public void Capitals_are_as_high_as_the_drawing_says_and_every_sign_has_a_glyph()
    {
        using var engine = new TextEngine();
        int font = engine.Font(FontTable.FromFile("romans.shx"));
        Assert.InRange(engine.CapRatio(font), 0.6, 0.8);
        Assert.True(engine.Advance(font, "mm") > 1.9 * engine.Advance(font, "m") - 1e-9);
        engine.Advance(font, "\u00d8\u00b0\u00b1\u03a9\u20ac\u0416");
        int signs = engine.Font(FontTable.FromFile("gdt.shx"));
        Assert.NotNull(engine.StrokesOf(signs, ToleranceSymbols.Translate("abcdefghijklmnprstuvwxyz"), 0));
        Assert.Equal(0, engine.UnknownGlyphs);
    }

    [Theory]
    [InlineData("txt", "Liberation Sans")]
    [InlineData("C:\\fonts\\ROMANC.SHX", "Liberation Serif")]
    [InlineData("no-such-font.shx", "Liberation Sans")]
    [InlineData("times.ttf", "Times New Roman")]
    [InlineData("DejaVuSansMono.ttf", "DejaVu Sans Mono")]
    public void Font_files_lead_to_families(string file, string family) =>
        Assert.StartsWith(family, FontTable.FromFile(file).Family);

    private static List<MTextToken> Words(string text) =>
        [.. MTextParser.Parse(text, Start).Where(t => t.Kind == MTextTokenKind.Word)];

    private static MTextLayout Lay(TextEngine engine, string text, in MTextFrame frame) =>
        MTextLayout.Create(engine, MTextParser.Parse(text, Start), frame, Start.Height);
}
