using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Raster.Pixels;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Text;
using Korvan.CAD.Tests.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.Raster;

/// <summary>Tests of what is global to the process: settings and memory. They run alone.</summary>
[CollectionDefinition("whole process", DisableParallelization = true)]
public class WholeProcess;

[Collection("whole process")]
public class CacheTests : IDisposable
{
    private readonly string _folder = Directory.CreateTempSubdirectory("korvan").FullName;

    public void Dispose()
    {
        Cache.SetDefaults();
        Directory.Delete(_folder, true);
    }

    [Fact]
    public void Many_small_images_on_disk_leave_the_memory_of_the_process()
    {
        Cache.CacheFolder = _folder;
        Cache.CacheType = CacheType.CacheOnDiskOnly;
        const int count = 100;
        const int side = 1000;
        var images = new List<PixelGrid>();
        for (int i = 0; i < count; i++)
        {
            images.Add(new PixelGrid(side, side));
            images[i].Fill(i);
        }

        long mapped = long.Parse(File.ReadLines("/proc/self/status").First(static line => line.StartsWith(
            "RssFile:", StringComparison.Ordinal)).Split(' ', StringSplitOptions.RemoveEmptyEntries)[1],
            CultureInfo.InvariantCulture) << 10;
        Assert.True(mapped < count * side * side * sizeof(int) / 2, $"{mapped >> 20} MiB");
        Assert.Equal(count - 1, images[^1].Row(side - 1)[side - 1]);
        images.ForEach(static image => image.Dispose());
    }

    [Fact]
    public void Pixels_are_stored_as_configured_and_released()
    {
        Cache.CacheFolder = _folder;
        Cache.CacheType = CacheType.CacheOnDiskOnly;
        long before = Cache.AllocatedDiskBytesCount;
        using (var image = Samples.Colors(100, 50))
        {
            Assert.Equal(before + (100 * 50 * 4), Cache.AllocatedDiskBytesCount);
            Assert.Empty(Directory.GetFiles(_folder)); // open, but without a name
            image.Grayscale();
            Assert.Equal(image.GetPixel(3, 3).R, image.GetPixel(3, 3).B);
        }

        Assert.Equal(before, Cache.AllocatedDiskBytesCount);
    }

    [Fact]
    public void Limits_move_pixels_to_disk_or_raise_errors()
    {
        Cache.MaxMemoryForCache = Cache.AllocatedMemoryBytesCount + 50_000;
        long disk = Cache.AllocatedDiskBytesCount;
        using (Samples.Colors(100, 100))
        using (Samples.Colors(100, 100))
        {
            Assert.Equal(disk + 40_000, Cache.AllocatedDiskBytesCount);
            Cache.CacheType = CacheType.CacheInMemoryOnly;
            var e = Assert.Throws<LimitMemoryException>(() => Samples.Colors(100, 100));
            Assert.Contains("MaxMemoryForCache", e.Message);
        }

        Cache.CacheType = CacheType.CacheOnDiskOnly;
        Cache.MaxDiskSpaceForCache = 1;
        Assert.Throws<LimitMemoryException>(() => Samples.Colors(10, 10));
        Assert.Throws<FrameworkException>(() => Cache.CacheFolder = Path.Combine(_folder, "absent"));
    }

    [Fact]
    public void Cropping_keeps_its_place_unless_exact_sizes_are_asked_for()
    {
        foreach (bool exact in new[] { false, true })
        {
            Cache.ExactReallocateOnly = exact;
            using var image = Samples.Colors(100, 100);
            int corner = image.GetArgb32Pixel(10, 20);
            long before = Cache.AllocatedMemoryBytesCount;
            image.Crop(new Rectangle(10, 20, 30, 40));
            Assert.Equal((30, 40, corner), (image.Width, image.Height, image.GetArgb32Pixel(0, 0)));
            Assert.Equal(exact, Cache.AllocatedMemoryBytesCount < before);
        }
    }

    [Fact]
    public void A_page_that_is_refused_under_a_mask_keeps_no_pixels()
    {
        var circle = new PathBuffer();
        var zigzag = new PathBuffer();
        circle.MoveTo(new Vec2(170, 90));
        zigzag.MoveTo(new Vec2(0, 0));
        for (int i = 1; i < 60_000; i++)
        {
            zigzag.LineTo(new Vec2((i * 79.19) % 300, (i & 1) * 200));
            if (i < 200)
            {
                (double sin, double cos) = Math.SinCos(i * Math.PI / 100);
                circle.LineTo(new Vec2(90 + (80 * cos), 90 + (80 * sin)));
            }
        }

        var list = new DrawingList();
        list.PushClip(circle, evenOdd: false);
        list.Stroke(zigzag, new StrokeAttributes
        { Color = new Rgba(255, 0, 0), LineWeight = 4, WeightInUnits = true, Dash = -1 });
        list.PopClip();
        using var engine = new TextEngine();
        using Budget budget = Budget.Begin(1000);
        long before = Cache.AllocatedMemoryBytesCount;
        Assert.Throws<LimitMemoryException>(() => RasterPage.Render(engine, PdfSample.PageOf(list)).Dispose());
        Assert.Equal(before, Cache.AllocatedMemoryBytesCount);
    }
}
