using Xunit;

namespace Korvan.CAD.Tests;

public class CarriedLibrariesTests
{
    [Theory]
    [InlineData("libcairo-0123abcd.so.2", "libcairo.so.2")]
    [InlineData("libgio-2.0-80d4cb3d.so.0", "libgio-2.0.so.0")]
    [InlineData("libpangocairo-1.0.so.0", "libpangocairo-1.0.so.0")] // a version is no checksum
    [InlineData("libcairo-0123ABCD.so.2", "libcairo-0123ABCD.so.2")]
    [InlineData("-0123abcd.so", "-0123abcd.so")]
    [InlineData("korvanssl.3", "korvanssl.3")]
    public void The_checksum_is_no_part_of_the_plain_name(string file, string name) =>
        Assert.Equal(name, CarriedLibraries.PlainName(file));

    [Fact]
    public void A_library_that_is_not_carried_is_the_one_of_the_system()
    {
        Assert.True(CarriedLibraries.TryLoad("libc.so.6", out _));
        Assert.False(CarriedLibraries.TryLoad("libnone-0123abcd.so.9", out _));
    }
}
