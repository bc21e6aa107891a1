using System;
using System.Linq;
using System.Reflection;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests;

/// <summary>Colours, points and rectangles, and what options refuse.</summary>
public class ValueTests
{
    [Fact]
    public void Colours_are_put_together_and_taken_apart()
    {
        foreach (int argb in new[] { 0, -1, 0x12345678, unchecked((int)0xFF000000), int.MinValue, int.MaxValue })
        {
            Color color = Color.FromArgb(argb);
            Assert.Equal(argb, color.ToArgb());
            Assert.Equal(color, Color.FromArgb(color.A, color.R, color.G, color.B));
            Assert.Equal(color, Color.FromArgb(color.A, Color.FromArgb(color.R, color.G, color.B)));
        }

        Assert.Equal((0x12, 0x34, 0x56, 0x78),
            (Color.FromArgb(0x12345678).A, Color.FromArgb(0x12345678).R, Color.FromArgb(0x12345678).G,
                Color.FromArgb(0x12345678).B));
        Assert.Equal((1f, 0f, 0.5f),
            (Color.White.GetBrightness(), Color.Black.GetBrightness(), Color.Lime.GetBrightness()));
    }

    [Theory]
    [InlineData(-1, 0, 0, 0)]
    [InlineData(0, 256, 0, 0)]
    [InlineData(0, 0, int.MinValue, 0)]
    [InlineData(0, 0, 0, int.MaxValue)]
    public void Parts_beyond_a_byte_are_refused(int alpha, int red, int green, int blue) =>
        Assert.Throws<ArgumentOutOfRangeException>(() => Color.FromArgb(alpha, red, green, blue));

    [Fact]
    public void Every_named_colour_is_found_by_its_name_and_value()
    {
        PropertyInfo[] named = [.. typeof(Color).GetProperties(BindingFlags.Public | BindingFlags.Static)
            .Where(property => property.Name != "Empty")];
        Assert.True(named.Length > 140);
        foreach (PropertyInfo property in named)
        {
            Color color = (Color)property.GetValue(null)!;
            Assert.Equal(color, Color.FromName(property.Name.ToLowerInvariant()));
            Assert.True(color.IsKnownColor);
            Assert.Equal(color, Color.FromName(color.Name)); // two names may stand for one colour
            Assert.Equal(property.Name == "Transparent" ? 0 : 255, color.A);
        }

        Assert.Contains("'Nopink'", Assert.Throws<FrameworkException>(() => Color.FromName("Nopink")).Message);
        Assert.Equal(("12345678", false), (Color.FromArgb(0x12345678).Name, Color.FromArgb(0x12345678).IsKnownColor));
    }

    [Fact]
    public void No_colour_is_not_transparent_black()
    {
        Assert.True(Color.Empty.IsEmpty);
        Assert.False(Color.FromArgb(0).IsEmpty);
        Assert.True(Color.Empty != Color.FromArgb(0));
        Assert.True(Color.Empty == default);
        Assert.False(Color.Red.Equals("Red"));
        Assert.Equal(Color.Aqua.GetHashCode(), Color.Cyan.GetHashCode());
    }

    [Fact]
    public void Shapes_are_equal_by_their_parts_alone()
    {
        Rectangle rectangle = new(new Point(1, 2), new Size(3, 4));
        Assert.Equal((1, 2, 4, 6), (rectangle.Left, rectangle.Top, rectangle.Right, rectangle.Bottom));
        Assert.Equal((new Point(1, 2), new Size(3, 4)), (rectangle.Location, rectangle.Size));
        Rectangle[] others = [new(0, 2, 3, 4), new(1, 0, 3, 4), new(1, 2, 0, 4), new(1, 2, 3, 0)];
        Assert.All(others, other => Assert.True(other != rectangle && !other.Equals((object)rectangle)));
        Assert.True(rectangle == new Rectangle(1, 2, 3, 4)
            && rectangle.GetHashCode() == new Rectangle(1, 2, 3, 4).GetHashCode());
        RectangleF fractions = new(new PointF(0.5f, 1.5f), new SizeF(2f, 3f));
        Assert.Equal((2.5f, 4.5f), (fractions.Right, fractions.Bottom));
        Assert.True(new RectangleF(0, 0, 0, 1e-30f) != RectangleF.Empty && Rectangle.Empty.IsEmpty
            && !new Rectangle(0, 0, 0, 1).IsEmpty);
        Assert.Equal(5f, new Vector2F(3, -4).Length);
        Assert.True(new Point(1, 2) != new Point(2, 1) && new Size(1, 2) != new Size(2, 1)
            && new PointF(1, 2) != new PointF(2, 1) && new SizeF(1, 2) != new SizeF(2, 1));
    }

    [Fact]
    public void Texts_of_numbers_do_not_follow_the_language_of_the_system()
    {
        System.Globalization.CultureInfo before = System.Globalization.CultureInfo.CurrentCulture;
        try
        {
            System.Globalization.NumberFormatInfo comma = new() { NumberDecimalSeparator = ",", NegativeSign = "~" };
            System.Globalization.CultureInfo.CurrentCulture = new System.Globalization
                .CultureInfo(string.Empty)
            { NumberFormat = comma };
            Assert.Equal("RectangleF(-0.5, 1.5, 2, 3)", new RectangleF(-0.5f, 1.5f, 2, 3).ToString());
            CadImage image = new();
            image.AddEntity(new Korvan.CAD.FileFormats.Cad.CadObjects.CadCircle { Radius = -1.5, LineWeight = -3 });
            string saved = FileFormats.Cad.DxfText.Save(image);
            Assert.Contains("\n-1.5\r", saved);
            Assert.Contains("\n-3\r", saved);
            Assert.Equal(-1.5,
                ((Korvan.CAD.FileFormats.Cad.CadObjects.CadCircle)FileFormats.Cad.DxfText
                    .Load(saved).Entities[0]).Radius);
        }
        finally
        {
            System.Globalization.CultureInfo.CurrentCulture = before;
        }
    }

    [Fact]
    public void Options_begin_with_what_most_drawings_need()
    {
        CadRasterizationOptions raster = new();
        Assert.Equal((0f, 0f, 1f, 0f, 0f),
            (raster.PageWidth, raster.PageHeight, raster.Zoom, raster.BorderX, raster.BorderY));
        Assert.Equal((Color.White, Color.Black, CadDrawTypeMode.UseObjectColor),
            (raster.BackgroundColor, raster.DrawColor, raster.DrawType));
        Assert.Equal((ScaleType.GrowToFit, true, false, UnitType.Unitless),
            (raster.ScaleMethod, raster.AutomaticLayoutsScaling, raster.NoScaling, raster.UnitType));
        Assert.Equal((FileFormat.Png, FileFormat.Pdf, FileFormat.Svg),
            (new PngOptions().TargetFormat, new PdfOptions().TargetFormat, new SvgOptions().TargetFormat));
        Assert.Equal((96.0, 96.0),
            (new ResolutionSetting().HorizontalResolution, new ResolutionSetting().VerticalResolution));
        Assert.False(new LoadOptions().IgnoreErrors);
        raster.PageSize = new SizeF(3, 4);
        Assert.Equal((3f, 4f), (raster.PageWidth, raster.PageHeight));
    }

    [Theory]
    [InlineData(float.NaN)]
    [InlineData(float.PositiveInfinity)]
    [InlineData(-1f)]
    public void Lengths_that_are_none_are_refused_and_change_nothing(float value)
    {
        CadRasterizationOptions raster = new() { PageWidth = 5, PageHeight = 6, Zoom = 2 };
        Assert.Throws<ArgumentOutOfRangeException>(() => raster.PageWidth = value);
        Assert.Throws<ArgumentOutOfRangeException>(() => raster.PageHeight = value);
        Assert.Throws<ArgumentOutOfRangeException>(() => raster.PageSize = new SizeF(1, value));
        Assert.Throws<ArgumentOutOfRangeException>(() => raster.Zoom = value);
        Assert.Throws<ArgumentOutOfRangeException>(() => new ResolutionSetting(96, value));
        Assert.Equal((6f, 2f), (raster.PageHeight, raster.Zoom));
        Assert.Throws<ArgumentOutOfRangeException>(() => new PngOptions { CompressionLevel = 10 });
        Assert.Throws<ArgumentOutOfRangeException>(() => new PdfOptions { Timeout = -1 });
    }
}
