using System;
using System.IO;
using Korvan.CAD.CadExceptions;
using Xunit;

namespace Korvan.CAD.Tests.Raster;

/// <summary>The settings are global to the process, so these tests run alone.</summary>
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
}
