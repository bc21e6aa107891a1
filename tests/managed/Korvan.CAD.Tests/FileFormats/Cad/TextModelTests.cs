using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Strings of texts, their fonts, and their boxes where no font can be asked.</summary>
public class TextModelTests
{
    private static readonly MTextFormat Start = new(
        FontSpec.Default, 2, 1, 0, 1, default, StackAlign.Baseline, false, false, false, false);

    [Theory]
    [InlineData("a\nb", "a\nb")] // a line break that is in the file as such
    [InlineData("a\tb", "a\tb")]
    [InlineData("a^Ib^Jc", "a\tb\nc")]
    [InlineData("a^Mb", "ab")] // a carriage return shows nothing
    [InlineData("a\\Pb\\Xc\\Nd", "a\nb\nc\nd")]
    [InlineData("\\S1/2; \\S+1^-1;", "1/2 +1/-1")]
    [InlineData("\\S1\\/2#3;", "1/2/3")] // an escaped stroke divides nothing
    [InlineData("\\S\\U+00B1%%c^2;x", "\u00b1\u00d8/2x")]
    [InlineData("\\S1/2", "\\S1/2")] // without its end it is no code
    [InlineData("{\\H2.5x;big} %%uline%%u", "big line")]
    [InlineData("\\Farial.ttf|c0;x\\Q15;y\\W2;z", "xyz")]
    [InlineData("\\U+4E2D\\M+1835C\\U+12", "\u4e2d\u30bd\\U+12")]
    [InlineData("%%130%%031%%%", "\u0082%")]
    [InlineData("a^Zb^^c^ d^", "a b c^d^")] // control characters, and the caret itself
    public void Codes_of_paragraphs_are_left_out_of_their_strings(string text, string expected)
    {
        Assert.Equal(expected, PlainText.FromMText(text));
    }

    [Theory]
    [InlineData("\\H3x;a", 6, 1, 0, 1)] // times the height
    [InlineData("\\H3;\\H0.5X;a", 1.5, 1, 0, 1)]
    [InlineData("\\W0.5;\\W3x;a", 2, 1.5, 0, 1)]
    [InlineData("\\T2;\\T0.5x;a", 2, 1, 0, 1)]
    [InlineData("\\T3;a", 2, 1, 0, 3)]
    [InlineData("\\Q200;a", 2, 1, 85, 1)]
    [InlineData("\\Q-200;a", 2, 1, -85, 1)]
    [InlineData("\\H0;\\W-1;\\T0;\\H1e999;a", 2, 1, 0, 1)] // sizes that nothing can have
    public void Factors_multiply_and_sizes_are_possible(
        string text, double height, double width, double oblique, double tracking)
    {
        MTextFormat format = MTextParser.Parse(text, Start).Single(token => token.Text == "a").Format;
        Assert.Equal((height, width, oblique, tracking),
            (format.Height, format.WidthFactor, format.ObliqueDegrees, format.Tracking));
    }

    [Fact]
    public void Bars_are_switched_by_letters_of_either_case_and_by_percent_signs()
    {
        List<MTextToken> tokens = [.. MTextParser.Parse("\\La\\lb%%Uc%%ud%%oe%%Kf%%k%%Og\\O\\Kh\\o\\ki", Start)];
        Assert.Equal("abcdefghi", string.Concat(tokens.Select(token => token.Text)));
        string Bars(Func<MTextFormat, bool> has) =>
            string.Concat(tokens.Select(token => has(token.Format) ? '1' : '0'));
        Assert.Equal("101000000", Bars(format => format.Underline));
        Assert.Equal("000011010", Bars(format => format.Overline));
        Assert.Equal("000001010", Bars(format => format.Strike));
    }

    [Theory]
    [InlineData("txt.shx", "Liberation Sans", false, false)]
    [InlineData("C:\\Fonts\\ROMANT.SHX", "Liberation Serif", true, false)]
    [InlineData("fonts/italict", "Liberation Serif", true, true)]
    [InlineData("isocp.shx", "ISOCP", false, false)]
    [InlineData("unknown.shx", "Liberation Sans", false, false)]
    [InlineData("arialbi.ttf", "Arial", true, true)]
    [InlineData("TIMES.TTF", "Times New Roman", false, false)]
    [InlineData("My Font.otf", "My Font", false, false)]
    [InlineData("amgdt.shx", "DejaVu Sans", false, false)]
    [InlineData("", "Liberation Sans", false, false)]
    [InlineData(null, "Liberation Sans", false, false)]
    public void Font_files_lead_to_families(string? file, string family, bool bold, bool italic)
    {
        FontSpec font = FontTable.FromFile(file);
        Assert.Equal((family, bold, italic), (font.Family.Split(',')[0], font.Bold, font.Italic));
    }

    [Theory]
    [InlineData("Verdana", true, false, "Verdana", true, false)]
    [InlineData("@Gothic, Bold", false, true, "Gothic  Bold", false, true)] // vertical writing, and a list of one
    [InlineData("romand.shx", false, true, "Liberation Sans", true, true)]
    [InlineData("arialbd.ttf", false, false, "Arial", true, false)]
    [InlineData(" ", true, true, "Liberation Sans", true, true)]
    public void Families_keep_the_weight_that_is_asked_for(
        string name, bool bold, bool italic, string family, bool isBold, bool isItalic)
    {
        FontSpec font = FontTable.FromFamily(name, bold, italic);
        Assert.Equal((family, isBold, isItalic), (font.Family.Split(',')[0], font.Bold, font.Italic));
        Assert.Equal(FontTable.FromFile("simplex.shx"), FontTable.FromName("simplex"));
        Assert.Equal(FontTable.FromFamily("Verdana", false, false), FontTable.FromName("Verdana"));
    }

    [Fact]
    public void Every_geometric_characteristic_has_a_symbol_and_other_characters_stay()
    {
        const string letters = "abcdefghijklmnprstuvwxyz";
        string[] symbols = [.. letters.Select(letter => ToleranceSymbols.Translate(letter.ToString()))];
        Assert.All(symbols.Zip(letters), pair => Assert.NotEqual(pair.Second.ToString(), pair.First));
        Assert.Equal(letters.Length, symbols.Distinct().Count());
        Assert.Equal("0.1 A", ToleranceSymbols.Translate("0.1 A"));
        MTextToken token = Assert.Single(MTextParser.Parse("{\\Fgdt;j}", Start));
        Assert.Equal("\u2316", token.Text);
        string[] fonts = ["gdt", "AMGDT.SHX", "x/gdt___.ttf"];
        Assert.All(fonts, name => Assert.True(FontTable.IsToleranceSymbolFont(name)));
        Assert.False(FontTable.IsToleranceSymbolFont("gdtx"));
    }

    // Horizontal alignment, rotation and width factor of "four", and the box in heights of capitals.
    [Theory]
    [InlineData(0, 0, 1, 0, 0, 3.6, 1)]
    [InlineData(0, 0, 2, 0, 0, 7.2, 1)]
    [InlineData(1, 0, 1, -1.8, 0, 1.8, 1)]
    [InlineData(4, 0, 1, -1.8, 0, 1.8, 1)]
    [InlineData(2, 0, 1, -3.6, 0, 0, 1)]
    [InlineData(0, 90, 1, -1, 0, 0, 3.6)]
    [InlineData(2, 180, 1, 0, -1, 3.6, 0)]
    public void Texts_take_about_their_characters_where_no_font_can_be_asked(
        short alignment, double rotation, double scale, double left, double bottom, double right, double top)
    {
        AssertBox(new CadText
        {
            DefaultValue = "four",
            TextHeight = 10,
            HorizontalAlignment = alignment,
            TextRotation = rotation,
            ScaleX = scale,
            FirstAlignment = new(100, 200, 0),
            SecondAlignment = new(100, 200, 0),
        }, left, bottom, right, top);
    }

    [Theory]
    [InlineData(CadAttachmentPoint.TopLeft, 0, -10 / 3.0, 3.6, 0)]
    [InlineData(CadAttachmentPoint.TopRight, -3.6, -10 / 3.0, 0, 0)]
    [InlineData(CadAttachmentPoint.MiddleCenter, -1.8, -5 / 3.0, 1.8, 5 / 3.0)]
    [InlineData(CadAttachmentPoint.BottomLeft, 0, 0, 3.6, 10 / 3.0)]
    public void Paragraphs_hang_from_their_point_where_no_font_can_be_asked(
        CadAttachmentPoint attachment, double left, double bottom, double right, double top)
    {
        AssertBox(new CadMText
        {
            Text = "\\H9x;on\\Pfour",
            InitialTextHeight = 10,
            AttachmentPoint = attachment,
            InsertionPoint = new(100, 200, 0),
        }, left, bottom, right, top);
    }

    private static void AssertBox(CadEntityBase text, double left, double bottom, double right, double top)
    {
        CadImage drawing = new();
        drawing.AddEntity(text);
        (Cad3DPoint min, Cad3DPoint max) = DrawingExtents.OfModel(drawing.Drawing, static () => null);
        double[] found = [min.X - 100, min.Y - 200, max.X - 100, max.Y - 200];
        Assert.All(found.Zip([left, bottom, right, top]), pair => Assert.Equal(pair.Second * 10, pair.First, 1e-6));
    }
}
