using System;
using System.IO;
using System.Text;
using Korvan.CAD.CadExceptions;
using Xunit;

namespace Korvan.CAD.Tests;

/// <summary>Output appears whole or not at all, whether or not the file system has files without names.</summary>
[System.Runtime.Versioning.SupportedOSPlatform("linux")]
public sealed class OutputFileTests : IDisposable
{
    private readonly string _folder = Directory.CreateTempSubdirectory("korvan-").FullName;

    public void Dispose() => Directory.Delete(_folder, true);

    [Theory]
    [InlineData(true)]
    [InlineData(false)]
    public void A_file_is_replaced_only_by_a_whole_one(bool avoidName)
    {
        string path = Path.Combine(_folder, "a.txt");
        AtomicFile.Write(path, false, Put("one"), avoidName);
        File.SetUnixFileMode(path, UnixFileMode.UserRead | UnixFileMode.UserWrite);
        Assert.Throws<InvalidOperationException>(() =>
            AtomicFile.Write(path, true, static _ => throw new InvalidOperationException(), avoidName));
        Assert.Contains("over_write=True",
            Assert.Throws<ImageSaveException>(() => AtomicFile.Write(path, false, Put("two"), avoidName)).Message);
        Assert.Equal("one", File.ReadAllText(path));
        AtomicFile.Write(path, true, Put("two"), avoidName);
        Assert.Equal("two", File.ReadAllText(path));
        Assert.Equal(UnixFileMode.UserRead | UnixFileMode.UserWrite, File.GetUnixFileMode(path));
        Assert.Equal([path], Directory.GetFileSystemEntries(_folder));
    }

    [Theory]
    [InlineData(true)]
    [InlineData(false)]
    public void Failures_are_told_once_by_the_name_that_was_given(bool avoidName)
    {
        string path = Path.Combine(_folder, "a.txt");
        ImageSaveException failure = Assert.Throws<ImageSaveException>(
            () => AtomicFile.Write(path, true, static _ => throw new IOException("the disk is gone"), avoidName));
        Assert.Equal($"'{path}' could not be written: the disk is gone", failure.Message);
        Assert.Null(failure.InnerException);
        string forbidden = "/proc/a.txt";
        failure = Assert.Throws<ImageSaveException>(() => AtomicFile.Write(forbidden, true, Put(""), avoidName));
        Assert.DoesNotContain(".part", failure.Message);
        Assert.Contains($"'{forbidden}' could not be written", failure.Message);
        Assert.Empty(Directory.GetFileSystemEntries(_folder));
    }

    [Fact]
    public void A_file_that_came_meanwhile_is_not_replaced_unasked()
    {
        string path = Path.Combine(_folder, "a.txt");
        foreach (bool avoidName in new[] { true, false })
        {
            Assert.Throws<ImageSaveException>(() => AtomicFile.Write(path, false, stream =>
            {
                File.WriteAllText(path, "theirs");
                Put("ours")(stream);
            }, avoidName));
            Assert.Equal("theirs", File.ReadAllText(path));
            File.Delete(path);
        }
    }

    [Fact]
    public void What_an_ended_process_left_goes_with_the_next_output_of_that_name()
    {
        string path = Path.Combine(_folder, "a.txt");
        string forgotten = $"{path}.{Guid.NewGuid():N}.part";
        string written = $"{path}.{Guid.NewGuid():N}.part";
        string other = Path.Combine(_folder, $"b.txt.{Guid.NewGuid():N}.part");
        File.WriteAllText(forgotten, "half");
        File.WriteAllText(other, "half");
        using (new FileStream(written, FileMode.Create, FileAccess.Write, FileShare.None))
        {
            AtomicFile.Write(path, true, Put("whole"), avoidName: false);
            Assert.False(File.Exists(forgotten));
            Assert.True(File.Exists(written) && File.Exists(other) && File.Exists(path));
        }
    }

    private static Action<Stream> Put(string text) => stream => stream.Write(Encoding.UTF8.GetBytes(text));
}
