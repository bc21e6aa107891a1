using System;
using System.IO;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>Content that grows in a file of the cache folder, which takes no memory. The file has no name, so that it
/// disappears with the process, however that ends.</summary>
internal sealed class CacheFile : IDisposable
{
    private FileStream? _file;

    ~CacheFile() => Free();

    /// <summary>Gets the bytes of the content.</summary>
    internal long Length { get; private set; }

    /// <summary>Adds bytes at the end.</summary>
    /// <exception cref="LimitMemoryException">The disk, or what the cache may take of it, is full.</exception>
    internal void Append(ReadOnlySpan<byte> bytes)
    {
        Cache.BookOnDisk(bytes.Length);
        Length += bytes.Length;
        try
        {
            _file ??= MappedMemory.OpenUnnamed();
            _file.Write(bytes);
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException)
        {
            throw new LimitMemoryException($"There is no room for {Length} bytes of the output on disk.", e);
        }
    }

    /// <summary>Writes the content to a stream.</summary>
    /// <param name="output">The stream.</param>
    /// <param name="start">How many bytes at the begin are left out.</param>
    internal void WriteTo(Stream output, long start)
    {
        if (_file is not null && start < Length)
        {
            _file.Position = start;
            _file.CopyTo(output, 1 << 20);
        }
    }

    /// <inheritdoc/>
    public void Dispose()
    {
        _file?.Dispose();
        Free();
        GC.SuppressFinalize(this);
    }

    private void Free()
    {
        Cache.Release(Length, onDisk: true);
        Length = 0;
    }
}
