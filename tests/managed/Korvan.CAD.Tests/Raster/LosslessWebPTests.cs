using System;
using System.IO;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Codecs;
using Korvan.CAD.Raster.Native;
using Korvan.CAD.Raster.Pixels;
using Xunit;

namespace Korvan.CAD.Tests.Raster;

/// <summary>WebP of images that libwebp would take too much memory for; libwebp reads what is written.</summary>
public class LosslessWebPTests
{
    [Theory]
    [InlineData("flat", 1, 1)]
    [InlineData("flat", 9000, 3)]
    [InlineData("noise", 67, 130)]
    [InlineData("gradient", 300, 33)]
    [InlineData("lines", 1000, 65)]
    [InlineData("alpha", 64, 64)]
    public void Rows_written_one_by_one_give_the_same_pixels(string kind, int width, int height)
    {
        using PixelGrid pixels = Make(kind, width, height);
        using var output = new MemoryStream();
        LosslessWebP.Write(pixels, output);
        byte[] file = output.ToArray();
        Assert.Equal(file.Length - 8, BitConverter.ToInt32(file, 4));
        Assert.Equal(0, file.Length % 2);
        using PixelGrid back = Decode(file, width, height);
        for (int y = 0; y < height; y++)
        {
            Assert.True(pixels.Row(y).SequenceEqual(back.Row(y)), $"row {y}");
        }

        Assert.True(kind == "noise" || file.Length < 200 + (width * height), $"{file.Length} bytes");
    }

    [Theory]
    [InlineData(true)]
    [InlineData(false)]
    public void A_large_image_of_a_small_file_is_written_in_less_memory(bool lossless)
    {
        using PixelGrid pixels = Make("gradient", 3000, 2200);
        using var output = new MemoryStream();
        using (Budget budget = Budget.Begin(1000))
        {
            WebPCodec.Write(pixels, new WebPOptions { Lossless = lossless }, output);
        }

        using PixelGrid back = Decode(output.ToArray(), 3000, 2200);
        int difference = Math.Abs((byte)back.Row(2199)[1500] - (byte)pixels.Row(2199)[1500]);
        Assert.InRange(difference, 0, lossless ? 0 : 8);
        Assert.True(lossless == back.Row(700).SequenceEqual(pixels.Row(700)));
    }

    private static unsafe PixelGrid Decode(byte[] file, int width, int height)
    {
        var back = new PixelGrid(width, height);
        fixed (byte* data = file)
        {
            nuint size = (nuint)width * (nuint)height * 4;
            Assert.True(
                WebP.DecodeBgra(data, (nuint)file.Length, back.WritablePointer, size, width * 4) != null, "decoded");
        }

        return back;
    }

    private static PixelGrid Make(string kind, int width, int height)
    {
        var random = new Random(7);
        var pixels = new PixelGrid(width, height);
        for (int y = 0; y < height; y++)
        {
            Span<int> row = pixels.WritableRow(y);
            for (int x = 0; x < width; x++)
            {
                row[x] = kind switch
                {
                    "noise" => random.Next() | PixelGrid.Opaque,
                    "gradient" => PixelGrid.Opaque | (x * 255 / width << 16) | ((y % 256) << 8) | ((x + y) & 255),
                    "lines" => x % 97 == 5 || y % 40 == 3 ? unchecked((int)0xFF102030) : -1,
                    "alpha" => ((x * 4) << 24) | 0x203040,
                    _ => unchecked((int)0xFF00FF80),
                };
            }
        }

        return pixels;
    }
}
