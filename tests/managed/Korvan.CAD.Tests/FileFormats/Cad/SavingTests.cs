using System;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Places that drawings are read from and written to.</summary>
public sealed class SavingTests : IDisposable
{
    private readonly string _folder = Directory.CreateTempSubdirectory("korvan-").FullName;

    [Theory]
    [InlineData("AC1001", FileFormat.DxfCadR0222)]
    [InlineData("AC1004", FileFormat.DxfCadR9)]
    [InlineData("AC1006", FileFormat.DxfCadR10)]
    [InlineData("AC1009", FileFormat.DxfCadR012)]
    [InlineData("AC1012", FileFormat.DxfCadR13)]
    [InlineData("AC1015", FileFormat.DxfCadR2000)]
    [InlineData("AC1024", FileFormat.DxfCadR2010)]
    [InlineData("AC1032", FileFormat.DxfCadR2013)] // the newest that has a number of its own
    [InlineData("AC9999", FileFormat.DxfCadR012)] // a release that nobody knows is read as the plainest
    public void Every_release_is_told_apart_and_read(string release, FileFormat format)
    {
        string file = Path.Combine(_folder, "plan.dxf");
        File.WriteAllText(file, DxfText.Header(release) + DxfText.Entities(0, "POINT", 8, "0", 10, 1, 20, 2)
            + DxfText.Tags(0, "EOF"));
        Assert.Equal(format, Image.GetFileFormat(file));
        Assert.True(Image.CanLoad(file));
        using CadImage image = (CadImage)Image.Load(file);
        Assert.Single(image.Entities);
    }

    [Fact]
    public void Long_comments_before_the_drawing_do_not_hide_its_format()
    {
        string comments = string.Concat(Enumerable.Repeat("999\nwritten by hand, long ago\n", 400));
        Assert.Single(DxfText.Load(comments + DxfText.Drawing(0, "POINT", 8, "0")).Entities);
    }

    [Theory]
    [InlineData("%PDF-1.7\n", FileFormat.Pdf)]
    [InlineData("solid cube\nfacet", FileFormat.Stl)]
    [InlineData("ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('AUTOMOTIVE_DESIGN'));", FileFormat.Stp)]
    [InlineData("<?xml version=\"1.0\"?><svg xmlns=\"x\"/>", FileFormat.Svg)]
    [InlineData("0\nSECTIONS\n", FileFormat.Undefined)]
    [InlineData("", FileFormat.Undefined)]
    public void Other_formats_are_named_and_not_loaded(string header, FileFormat format)
    {
        using MemoryStream stream = new(Encoding.Latin1.GetBytes("xx" + header)) { Position = 2 };
        Assert.Equal(format, Image.GetFileFormat(stream));
        Assert.False(Image.CanLoad(stream));
        Assert.Equal(2, stream.Position);
        Assert.Throws<ImageLoadException>(() => Image.Load(stream));
    }

    [Fact]
    public void A_file_is_replaced_whole_and_read_from_where_it_lies()
    {
        string file = Path.Combine(_folder, "plan.dxf");
        File.WriteAllText(file, DxfText.Drawing(0, "LINE", 8, "0", 10, 1, 20, 1, 11, 2, 21, 2)
            + new string('\n', 100_000));
        using (CadImage image = (CadImage)Image.Load(file))
        {
            image.Entities[0].LayerName = "Changed";
            image.Save();
        }

        Assert.True(new FileInfo(file).Length < 100_000);
        Assert.Equal("Changed", ((CadImage)Image.Load(file)).Entities[0].LayerName);
        Assert.Equal([file], Directory.GetFiles(_folder));
    }

    [Fact]
    public void What_cannot_be_written_is_refused_with_file_and_cause()
    {
        CadImage image = new();
        string missing = Path.Combine(_folder, "none", "plan.dxf");
        ImageSaveException failure = Assert.Throws<ImageSaveException>(() => image.Save(missing));
        Assert.Contains(missing, failure.Message);
        Assert.Contains("does not exist", failure.Message);
        Assert.Contains("folder", Assert.Throws<ImageSaveException>(() => image.Save(_folder)).Message);
        string file = Path.Combine(_folder, "kept.dxf");
        image.Save(file, new PdfOptions());
        byte[] before = File.ReadAllBytes(file);
        Assert.Contains("over_write=True", Assert.Throws<ImageSaveException>(() => image.Save(file, false)).Message);
        image.AddEntity(new CadCircle { Radius = double.PositiveInfinity });
        Assert.Contains("CIRCLE", Assert.Throws<ImageSaveException>(() => image.Save(file)).Message);
        Assert.Equal(before, File.ReadAllBytes(file));
        Assert.Equal([file], Directory.GetFiles(_folder));
    }

    [Theory]
    [InlineData(0)]
    [InlineData(1)]
    [InlineData(70_000)]
    public void A_stream_that_fails_brings_its_own_error(int room)
    {
        CadImage image = new();
        for (int i = 0; i < 2000; i++)
        {
            image.AddEntity(new CadPoint());
        }

        Assert.Throws<OperationCanceledException>(() => image.Save(new FullStream(room)));
        Assert.Equal(2000, DxfText.Reload(image).Entities.Count); // and the drawing is as before
    }

    [Fact]
    public void A_stream_is_read_from_its_place_and_left_open_unless_handed_over()
    {
        byte[] drawing = Encoding.Latin1.GetBytes(DxfText.Drawing(0, "POINT", 8, "0"));
        MemoryStream stream = new([1, 2, 3, .. drawing]) { Position = 3 };
        using (CadImage image = (CadImage)Image.Load(stream))
        {
            Assert.Single(image.Entities);
        }

        Assert.True(stream.CanRead);
        stream.Position = 3;
        Image.Load(stream, new LoadOptions { UnloadOnDispose = true }).Dispose();
        Assert.False(stream.CanRead);
    }

    [Theory]
    [InlineData(1)]
    [InlineData(249)]
    [InlineData(250)]
    [InlineData(251)]
    [InlineData(5000)]
    public void Long_texts_break_nowhere(int length)
    {
        // Pairs of surrogates and blanks at every possible break.
        string text = string.Concat(Enumerable.Repeat("a😀 ", (length / 4) + 1));
        CadImage image = new();
        image.AddEntity(new CadMText { Text = text });
        Assert.Equal(text, ((CadMText)DxfText.Reload(image).Entities[0]).Text);
    }

    [Fact]
    public void A_line_break_cannot_forge_a_tag()
    {
        CadImage image = new();
        image.AddEntity(new CadText { DefaultValue = "one\n0\nLINE\r\n  8\rx" });
        CadImage again = DxfText.Reload(image);
        Assert.Equal("one^J0^JLINE^J  8^Mx", Assert.IsType<CadText>(Assert.Single(again.Entities)).DefaultValue);
    }

    public void Dispose() => Directory.Delete(_folder, true);

    /// <summary>Takes so many bytes and no more.</summary>
    private sealed class FullStream(int room) : MemoryStream
    {
        public override void Write(byte[] buffer, int offset, int count)
        {
            if (Length + count > room)
            {
                throw new OperationCanceledException("enough");
            }

            base.Write(buffer, offset, count);
        }

        public override void Write(ReadOnlySpan<byte> buffer) => Write(buffer.ToArray(), 0, buffer.Length);
    }
}
