using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Xunit;
using static Korvan.CAD.Tests.Rendering.MetafilePage;
using Horizontal = Korvan.CAD.FileFormats.Cgm.Commands.TextAlignment.HorizontalAlignmentType;
using TextElement = Korvan.CAD.FileFormats.Cgm.Commands.Text;
using Vertical = Korvan.CAD.FileFormats.Cgm.Commands.TextAlignment.VerticalAlignmentType;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Texts of capital letters, whose foreground is a box from the base line to the height of capitals.</summary>
public class MetafileTextTests
{
    /// <summary>Pixels that the foreground may be off: side bearings of glyphs and grey edges.</summary>
    private const int Off = 3;

    [Theory]
    [InlineData(Horizontal.Left, Vertical.Base, 50, 50)]
    [InlineData(Horizontal.Normal, Vertical.Normal, 50, 50)]
    [InlineData(Horizontal.Centre, Vertical.Half, 30, 40)]
    [InlineData(Horizontal.Right, Vertical.Cap, 10, 30)]
    public void Alignment_puts_a_point_of_the_text_at_its_position(Horizontal horizontal, Vertical vertical, int left,
        int bottom)
    {
        // Two capitals of the height 20 are about 40 wide when stretched to that.
        (int x0, int y0, int x1, int y1) = InkOf(
            new CharacterHeight { Height = 20 }, new RestrictedTextType { Value = RestrictedTextType.Type.BoxedCap },
            new TextAlignment { Horizontal = horizontal, Vertical = vertical }, Restricted("HH", 40, 20));
        Near((left, bottom, left + 40, bottom + 20), (x0, y0, x1, y1));
    }

    [Theory]
    [InlineData(RestrictedTextType.Type.BoxedCap, 40, 10, 40, 10)]
    [InlineData(RestrictedTextType.Type.IsotropicCap, 40, 5, 7, 5)]
    [InlineData(RestrictedTextType.Type.Basic, 400, 200, 40, 20)] // there is room, so nothing is stretched
    public void Restricted_text_fits_its_box(RestrictedTextType.Type type, double width, double height, int inkWidth,
        int inkHeight)
    {
        (int x0, int y0, int x1, int y1) = InkOf(
            new CharacterHeight { Height = 20 }, new RestrictedTextType { Value = type },
                Restricted("HH", width, height));
        Near((50, 50, 50 + inkWidth, 50 + inkHeight), (x0, y0, x1, y1));
    }

    [Fact]
    public void Orientation_turns_stretches_and_mirrors()
    {
        var height = new CharacterHeight { Height = 12 };
        (int x0, int y0, int x1, int y1) plain = InkOf(height, Text("HL"));
        int width = plain.x1 - plain.x0;
        Near((50 - 12, 50, 50, 50 + width),
            InkOf(height, new CharacterOrientation { UpX = -1, UpY = 0, BaseX = 0, BaseY = 1 }, Text("HL")));
        Near((50, 50 - 12, 50 + width, 50),
            InkOf(height, new CharacterOrientation { UpX = 0, UpY = -1, BaseX = 1, BaseY = 0 }, Text("HL")));
        Near(
            (50, 50, 50 + (width / 2), 62),
                InkOf(height, new CharacterOrientation { UpX = 0, UpY = 2, BaseX = 1, BaseY = 0 }, Text("HL")));
        Near((50, 50, 50 + (width * 3 / 2), 62),
            InkOf(height, new CharacterExpansionFactor { Factor = 1.5 }, Text("HL")));
        Near((50, 50, 50 + width + 6, 62), InkOf(height, new CharacterSpacing { Spacing = 0.5 }, Text("HL")));
    }

    [Fact]
    public void Paths_lead_left_and_down()
    {
        var height = new CharacterHeight { Height = 10 };
        (int _, int _, int leftEnd, int _) = InkOf(height, new TextPath { Value = TextPath.Type.Left }, Text("HHH"));
        Assert.InRange(leftEnd, 50 - Off, 50);
        (int x0, int y0, int x1, int y1) = InkOf(height, new TextPath { Value = TextPath.Type.Down }, Text("HHH"));
        Assert.InRange((x0 + x1) / 2, 49, 51);
        Assert.InRange(y1, 50 - Off, 50 + Off);
        Assert.True(y1 - y0 > 30);
    }

    [Fact]
    public void Pieces_are_aligned_as_one_text_and_found_as_one()
    {
        var height = new CharacterHeight { Height = 15 };
        var centred = new TextAlignment { Horizontal = Horizontal.Centre, Vertical = Vertical.Base };
        Command[] pieces =
        [
            height, centred,
                new TextElement { Position = P(50, 50), Content = "HI", Final = AppendText.FinalType.NotFinal },
            new AppendText { Content = "HI", Final = AppendText.FinalType.Final },
        ];
        Near(InkOf(height, centred, Text("HIHI")), InkOf(pieces));
        CgmImage image = Image([new FontList { Fonts = ["Helvetica-Bold"] }], [], pieces);
        Assert.Equal("HIHI", Assert.Single(image.GetStrings()));
        Assert.Equal(("Helvetica-Bold", 15.0), (image.GetTexts()[0].FontName, image.GetTexts()[0].Height));
    }

    [Fact]
    public void Texts_are_told_with_the_font_that_their_bundle_gives()
    {
        var flags = new AspectSourceFlags
        {
            Infos = [new(AspectSourceFlags.ASFType.AllText,
            AspectSourceFlags.ASFValue.Bundled)]
        };
        CgmImage image = Image(
            [new FontList { Fonts = ["Helvetica", "Courier"] }],
            [new TextRepresentation { BundleIndex = 3, FontIndex = 2 }],
            [flags, new TextBundleIndex { Index = 3 }, Text("first"), new TextBundleIndex { Index = 4 },
                Text("second")]);
        Assert.Equal([("first", "Courier"), ("second", "Helvetica")],
            System.Linq.Enumerable.Select(image.GetTexts(), text => (text.Text, text.FontName)));
    }

    [Fact]
    public void Fonts_are_found_by_the_names_of_writers()
    {
        Assert.Equal(("Times New Roman", true, true), Face("TIMES_BOLD_ITALIC"));
        Assert.Equal(("Helvetica", false, true), Face("Helvetica-Oblique"));
        Assert.Equal(("Courier New", true, false), Face("Courier New Bold"));
        Assert.Equal(("My Own", true, false), Face("My Own-Bold"));
    }

    private static (string Family, bool Bold, bool Italic) Face(string name)
    {
        FontSpec spec = Korvan.CAD.Rendering.Metafile.FontNames.Find(name);
        return (spec.Family.Split(',')[0], spec.Bold, spec.Italic);
    }

    private static TextElement Text(string content) =>
        new() { Position = P(50, 50), Content = content, Final = AppendText.FinalType.Final };

    private static RestrictedText Restricted(string content, double width, double height) => new()
    {
        Position = P(50, 50),
        Content = content,
        ExtentWidth = width,
        ExtentHeight = height,
        Final = AppendText.FinalType.Final,
    };

    private static (int X0, int Y0, int X1, int Y1) InkOf(params Command[] body)
    {
        using MetafilePage page = Of([new TextColour { Color = C(CAD.DisplayList.Rgba.Black) }, .. body]);
        return page.Foreground();
    }

    private static void Near((int X0, int Y0, int X1, int Y1) expected, (int X0, int Y0, int X1, int Y1) actual)
    {
        int worst = int.Max(
            int.Max(int.Abs(expected.X0 - actual.X0), int.Abs(expected.Y0 - actual.Y0)),
            int.Max(int.Abs(expected.X1 - actual.X1), int.Abs(expected.Y1 - actual.Y1)));
        Assert.True(worst <= Off, $"foreground at {actual}, expected at {expected}");
    }
}
