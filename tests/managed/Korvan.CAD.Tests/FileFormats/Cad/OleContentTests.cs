using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Runtime.InteropServices;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Previews in the data of embedded documents.</summary>
public class OleContentTests
{
    private static readonly byte[] Before = [0x80, 0x55, .. Enumerable.Repeat((byte)0xEE, 150)];

    [Theory]
    [InlineData(3, 2, 24, 0, 24)] // rows are padded to four bytes
    [InlineData(3, -2, 24, 0, 24)] // from the top down
    [InlineData(9, 2, 1, 0, 8 + 8)]
    [InlineData(5, 3, 8, 4, 16 + 24)] // four colours of 256
    [InlineData(5, 3, 8, 0, 1024 + 24)]
    [InlineData(5, 3, 4, 16, 64 + 12)]
    [InlineData(1, 1, 32, 0, 4)]
    public void Bitmaps_get_the_header_of_a_file(int width, int height, short bits, int colors, int length)
    {
        byte[] rest = [.. Enumerable.Range(0, length).Select(static i => (byte)i)];
        CadEmbeddedImage image = Preview([.. Before, .. Bitmap(width, height, bits, colors), .. rest, 9, 9, 9])!;
        Assert.Equal((".bmp", 54 + length), (image.FileExtension, image.Data.Length));
        Assert.Equal((width, Math.Abs(height)), (image.Size.Width, image.Size.Height));
        Assert.Equal("BM"u8.ToArray(), image.Data[..2]);
        Assert.Equal((54 + length, 54 + length - PixelBytes(width, height, bits)),
            (BitConverter.ToInt32(image.Data, 2), BitConverter.ToInt32(image.Data, 10)));
        Assert.Equal(rest, image.Data[54..]);
        using Image loaded = Image.Load(new MemoryStream(image.Data));
        Assert.Equal((width, Math.Abs(height)), (loaded.Width, loaded.Height));
    }

    /// <summary>Why it is no image, and the bytes.</summary>
    public static readonly TheoryData<string, byte[]> Others = new()
    {
        { "nothing", [] },
        { "noise", Before },
        { "half of a header", Bitmap(3, 2, 24)[..39] },
        { "fewer pixels than stated", [.. Bitmap(3, 2, 24), .. new byte[23]] },
        { "two planes", [.. Bitmap(3, 2, 24, planes: 2), .. new byte[24]] },
        { "a depth that there is not", [.. Bitmap(3, 2, 17), .. new byte[24]] },
        { "run lengths", [.. Bitmap(3, 2, 8, 1, compression: 1), .. new byte[24]] },
        { "no width", [.. Bitmap(0, 2, 24), .. new byte[24]] },
        { "no height", [.. Bitmap(3, 0, 24), .. new byte[24]] },
        { "the smallest height", [.. Bitmap(3, int.MinValue, 24), .. new byte[24]] },
        { "an area beyond all", [.. Bitmap(32767, 32767, 32), .. new byte[24]] },
        { "a metafile that is longer than the data", Metafile(1000, 88) },
        { "a metafile that is shorter than its header", Metafile(80, 120) },
        { "a record of the type of a header", [1, 0, 0, 0, .. new byte[200]] },
    };

    [Theory]
    [MemberData(nameof(Others))]
    public void Other_data_has_no_preview(string why, byte[] data)
    {
        Assert.True(Preview(data) is null, why);
        bool wouldBeWhole = why.Contains("than", StringComparison.Ordinal)
            || why.StartsWith("half", StringComparison.Ordinal);
        Assert.True(wouldBeWhole || Preview([.. data, .. Before]) is null, why);
    }

    [Fact]
    public void Metafiles_end_where_they_say_and_have_the_size_of_their_frame()
    {
        CadEmbeddedImage image = Preview([.. Before, .. Metafile(120, 120), 1, 2, 3])!;
        Assert.Equal((".emf", 120), (image.FileExtension, image.Data.Length));
        Assert.Equal((2100.0, 2900.0), (image.Size.Width, image.Size.Height));
        Assert.Equal(Metafile(120, 120), image.Data);
    }

    [Fact]
    public void The_first_of_several_images_is_the_preview()
    {
        byte[] bitmap = [.. Bitmap(3, 2, 24), .. new byte[24]];
        Assert.Equal(".bmp", Preview([.. bitmap, .. Metafile(120, 120)])!.FileExtension);
        Assert.Equal(".emf", Preview([.. Metafile(120, 120), .. bitmap])!.FileExtension);
    }

    [Fact]
    public void Previews_survive_saving()
    {
        DxfImage image = new();
        image.AddEntity(new CadOle2Frame { Data = [.. Before, .. Bitmap(3, 2, 24), .. new byte[24]] });
        CadOle2Frame frame = Assert.IsType<CadOle2Frame>(Assert.Single(DxfText.Reload(image).Entities));
        Assert.Equal(3, frame.GetPreview()!.Size.Width);
        frame.Data = [];
        Assert.Null(frame.GetPreview());
    }

    [Fact]
    public void Drawing_databases_state_the_corners_in_the_data()
    {
        byte[] data = [0x80, 0x55, .. new byte[12 * sizeof(double)], 7];
        DxfImage image = new();
        image.AddEntity(new CadOle2Frame
        {
            UpperLeftPoint = new Cad3DPoint(1, 9, 2),
            LowerRightPoint = new Cad3DPoint(4, 3, 2),
            Data = data,
        });
        using MemoryStream saved = new();
        image.Save(saved, new DwgOptions());
        saved.Position = 0;
        CadOle2Frame frame = ((CadImage)Image.Load(saved)).Entities.OfType<CadOle2Frame>().Single();
        double[] corners = [.. MemoryMarshal.Cast<byte, double>(frame.Data.AsSpan(2, 12 * sizeof(double)))];
        Assert.Equal([1, 9, 2, 4, 9, 2, 4, 3, 2, 1, 3, 2], corners);
        Assert.Equal((1.0, 9.0, 2.0), (frame.UpperLeftPoint.X, frame.UpperLeftPoint.Y, frame.UpperLeftPoint.Z));
        Assert.Equal((4.0, 3.0), (frame.LowerRightPoint.X, frame.LowerRightPoint.Y));
        Assert.Equal(7, frame.Data[^1]);
        Assert.All(data[2..^1], value => Assert.Equal(0, value));
    }

    private static CadEmbeddedImage? Preview(byte[] data) => new CadOle2Frame { Data = data }.GetPreview();

    private static int PixelBytes(int width, int height, int bits) => ((width * bits) + 31) / 32 * 4 * Math.Abs(height);

    private static byte[] Bitmap(
        int width, int height, short bits, int colors = 0, short planes = 1, int compression = 0)
    {
        List<byte> bytes = [.. BitConverter.GetBytes(40), .. BitConverter.GetBytes(width)];
        bytes.AddRange([.. BitConverter.GetBytes(height), .. BitConverter.GetBytes(planes)]);
        bytes.AddRange([.. BitConverter.GetBytes(bits), .. BitConverter.GetBytes(compression), .. new byte[12]]);
        bytes.AddRange([.. BitConverter.GetBytes(colors), .. new byte[4]]);
        return [.. bytes];
    }

    // Record type 1, its length, bounds, frame in hundredths of a millimetre, signature, version, length of the file.
    private static byte[] Metafile(int stated, int length)
    {
        byte[] bytes = new byte[length];
        int[] header = [1, 88, 0, 0, 100, 100, 0, 0, 2100, 2900, 0x464D4520, 0x10000, stated];
        Buffer.BlockCopy(header, 0, bytes, 0, sizeof(int) * header.Length);
        return bytes;
    }
}
