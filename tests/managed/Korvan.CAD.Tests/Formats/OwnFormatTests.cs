using System;
using System.IO;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Tests.Raster;
using Xunit;

namespace Korvan.CAD.Tests.Formats;

/// <summary>Saving without options writes the format that an image was read from, or refuses.</summary>
public sealed class OwnFormatTests
{
    [Fact]
    public void A_traced_image_does_not_replace_the_pixels_it_was_read_from()
    {
        string file = Samples.Save(Samples.Colors(), new PngOptions(), ".png");
        byte[] before = File.ReadAllBytes(file);
        using Image traced = Image.Load(file, Tracing());
        Assert.IsType<DxfImage>(traced);
        Assert.Equal(FileFormat.Png, traced.SourceFormat);

        string message = Assert.Throws<ImageSaveException>(traced.Save).Message;
        Assert.Contains("Portable network graphics", message, StringComparison.Ordinal);
        Assert.Contains("DxfOptions", message, StringComparison.Ordinal);
        Assert.Throws<ImageSaveException>(() => traced.Save(new MemoryStream()));
        Assert.Throws<ImageSaveException>(() => traced.Save(file));
        Assert.Equal(before, File.ReadAllBytes(file));
        File.Delete(file);
    }

    [Fact]
    public void A_traced_image_becomes_a_drawing_under_the_extension_of_one()
    {
        string file = Samples.Save(Samples.Colors(), new PngOptions(), ".png");
        string drawing = Path.ChangeExtension(file, ".dxf");
        using (Image traced = Image.Load(file, Tracing()))
        {
            traced.Save(drawing);
        }

        Assert.IsType<DxfImage>(Image.Load(drawing));
        File.Delete(file);
        File.Delete(drawing);
    }

    [Theory]
    [InlineData(".pdf", "PdfOptions")]
    [InlineData(".dwg", "DwgOptions")]
    [InlineData(".dgn", "cannot be written in that format")]
    [InlineData(".TIFF", "TiffOptions")]
    public void An_extension_of_another_format_names_the_options_to_pass(string extension, string expected)
    {
        string file = Path.Combine(Path.GetTempPath(), $"refused-{Guid.NewGuid():N}{extension}");
        string message = Assert.Throws<ImageSaveException>(() => new CadImage().Save(file)).Message;
        Assert.Contains(expected, message, StringComparison.Ordinal);
        Assert.False(File.Exists(file));
    }

    [Fact]
    public void Two_exports_share_their_options()
    {
        var page = new CadRasterizationOptions { PageWidth = 20, PageHeight = 20 };
        var options = new PngOptions { VectorRasterizationOptions = page };
        using var first = new CadImage();
        using var output = new MemoryStream();
        first.Save(output, options);
        CadRenderResult result = options.RenderResult!;
        first.Save(new MemoryStream(), options);
        Assert.NotSame(result, options.RenderResult);
        Assert.True(result.IsRenderComplete);
    }

    private static LoadOptions Tracing() => new()
    {
        VectorizationOptions = new VectorizationOptions { Method = VectorizationMethod.Contour },
    };
}
