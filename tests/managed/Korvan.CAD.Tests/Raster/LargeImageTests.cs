using System;
using System.Collections.Generic;
using System.IO;
using System.Runtime.CompilerServices;
using Korvan.CAD.FileFormats.Png;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Pixels;
using Korvan.CAD.Tests.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.Raster;

/// <summary>What large images are written and read by: bands on several threads, shared pixels, long tables.</summary>
public class LargeImageTests
{
    private const int Width = 1301;
    private const int Height = 1103;

    [Fact]
    public void Jpeg_2000_that_several_threads_write_holds_every_pixel()
    {
        var random = new Random(5);
        using var image = Samples.Of(Width, Height, (_, y) => y < 900 ? -1 : random.Next() | PixelGrid.Opaque);
        string file = Samples.Save(image, new Jpeg2000Options(), ".jp2");
        using var again = (RasterImage)Image.Load(file);
        var all = new Rectangle(0, 0, Width, Height);
        Assert.Equal(image.LoadArgb32Pixels(all), again.LoadArgb32Pixels(all));
    }

    [Theory]
    [InlineData(PngFilterType.None, 0, 255)]
    [InlineData(PngFilterType.Sub, 1, 255)]
    [InlineData(PngFilterType.Up, 6, 255)]
    [InlineData(PngFilterType.Paeth, 9, 77)]
    [InlineData(PngFilterType.Adaptive, 6, 77)]
    public void Png_in_bands_holds_every_pixel(PngFilterType filter, int level, int alpha)
    {
        var random = new Random(5);
        using var image = Samples.Of(Width, Height, (x, y) => y > 900 ? Samples.Rgb(10, 20, 30, alpha)
            : x < y ? Samples.Rgb(x & 255, y & 255, x * y & 255) : random.Next() | PixelGrid.Opaque);
        string file = Samples.Save(
            image, new PngOptions { FilterType = filter, CompressionLevel = level }, ".png");
        Assert.Equal(0, Samples.LargestDifference(image, file));
        using RasterCachedImage back = Samples.Load(file);
        Assert.Equal(image.GetArgb32Pixel(Width - 1, Height - 1), back.GetArgb32Pixel(Width - 1, Height - 1));
    }

    [Fact]
    public void Shared_pixels_are_copied_at_the_first_change()
    {
        var original = new PixelGrid(5, 4);
        original.Fill(7);
        using PixelGrid changed = original.CopyOnWrite();
        using PixelGrid cropped = original.CopyOnWrite();
        using PixelGrid read = original.CopyOnWrite();
        Assert.True(Unsafe.AreSame(in original.Row(3)[0], in read.Row(3)[0]));
        changed.WritableRow(3)[4] = 1;
        cropped.CropInPlace(new Rectangle(1, 1, 2, 3));
        cropped.Fill(2);
        Assert.Equal((7, 1, 7), (original.Row(3)[4], changed.Row(3)[4], changed.Row(3)[3]));
        Assert.Equal((2, 3, 2), (cropped.Width, cropped.Height, cropped.Row(2)[1]));
        original.Dispose();
        Assert.Equal(7, read.Row(0)[0]);
    }

    [Fact]
    public void Saving_for_formats_without_alpha_leaves_the_image_as_it_is()
    {
        using var image = Samples.Of(4, 3, (x, y) => Samples.Rgb(x, y, 9, 100));
        foreach ((ImageOptionsBase options, string extension) in new (ImageOptionsBase, string)[]
            { (new JpegOptions(), ".jpg"), (new BmpOptions(), ".bmp"), (new GifOptions(), ".gif") })
        {
            Samples.Save(image, options, extension);
            Assert.Equal(Samples.Rgb(3, 2, 9, 100), image.GetArgb32Pixel(3, 2));
        }
    }

    // An encoder need not clear the full table: codes keep 12 bits, and what follows is not added.
    [Fact]
    public void Gif_whose_table_is_never_cleared_is_read()
    {
        var random = new Random(3);
        var codes = new List<int> { 256 };
        for (int i = 0; i < 20_000; i++)
        {
            codes.Add(i < 4_500 ? random.Next(256) : random.Next(258, 4096));
        }

        byte[] pixels = Expand(codes);
        const int side = 150;
        codes.Add(257);
        string file = Tools.TempFile(".gif");
        File.WriteAllBytes(file, Gif(side, codes));
        using RasterCachedImage image = Samples.Load(file);
        Assert.Equal(0, Samples.LargestDifference(image, file));
        Assert.Equal(pixels[(side * side) - 1], (byte)image.GetArgb32Pixel(side - 1, side - 1));
    }

    private static byte[] Expand(List<int> codes)
    {
        var table = new List<byte[]>();
        var all = new List<byte>();
        byte[] last = [];
        foreach (int code in codes.GetRange(1, codes.Count - 1))
        {
            byte[] bytes = code < 256 ? [(byte)code] : table[code - 258];
            if (last.Length > 0 && table.Count < 4096 - 258)
            {
                table.Add([.. last, bytes[0]]);
            }

            all.AddRange(bytes);
            last = bytes;
        }

        return [.. all];
    }

    private static byte[] Gif(int side, List<int> codes)
    {
        var packed = new List<byte>();
        long bits = 0;
        int count = 0;
        for (int i = 0; i < codes.Count; i++)
        {
            int width = Math.Clamp((int)Math.Log2(256 + i) + 1, 9, 12);
            bits |= (long)codes[i] << count;
            for (count += i == 0 ? 9 : width; count >= 8; count -= 8, bits >>= 8)
            {
                packed.Add((byte)bits);
            }
        }

        packed.Add((byte)bits);
        var file = new List<byte>("GIF89a"u8.ToArray()) { (byte)side, 0, (byte)side, 0, 0xF7, 0, 0 };
        for (int i = 0; i < 256; i++)
        {
            file.AddRange([(byte)i, (byte)i, (byte)i]);
        }

        file.AddRange([0x2C, 0, 0, 0, 0, (byte)side, 0, (byte)side, 0, 0, 8]);
        for (int i = 0; i < packed.Count; i += 255)
        {
            List<byte> block = packed.GetRange(i, Math.Min(255, packed.Count - i));
            file.AddRange([(byte)block.Count, .. block]);
        }

        return [.. file, 0, 0x3B];
    }
}
