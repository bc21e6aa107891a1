using System;
using System.Collections.Concurrent;
using System.IO;
using System.IO.MemoryMappedFiles;
using System.Threading;

namespace Korvan.CAD;

/// <summary>Memory in a file of the cache folder. The file has no name, so that it disappears with the process, however
/// that ends, and all of its bytes have their room on the disk. Pages that are not in use leave the memory of the
/// process.</summary>
internal sealed unsafe class MappedMemory : IDisposable
{
    private const long MaxResident = 32L << 20;

    private static readonly ConcurrentDictionary<Region, bool> Regions = new();
    private static long _touched;

    private readonly MemoryMappedFile _file;
    private readonly MemoryMappedViewAccessor _view;
    private readonly Region _region;

    /// <summary>Maps a new file.</summary>
    /// <param name="length">Its length in bytes.</param>
    /// <exception cref="IOException">The disk has no room for it.</exception>
    internal MappedMemory(long length)
    {
        FileStream stream = OpenUnnamed();
        try
        {
            // A page of a mapped file that the disk has no room for would be a bus error.
            PosixFile.Reserve(stream.SafeFileHandle, length);
            _file = MemoryMappedFile.CreateFromFile(
                stream, null, length, MemoryMappedFileAccess.ReadWrite, HandleInheritability.None, false);
            _view = _file.CreateViewAccessor(0, length);
        }
        catch
        {
            _file?.Dispose();
            stream.Dispose();
            throw;
        }

        byte* start = null;
        _view.SafeMemoryMappedViewHandle.AcquirePointer(ref start);
        _region = new Region(start, length);
        Regions[_region] = true;
    }

    /// <summary>Gets the first byte.</summary>
    internal byte* Start => _region.Start;

    /// <summary>Takes all mapped memory out of the memory of the process; it comes back where it is used.</summary>
    internal static void TrimAll()
    {
        foreach (Region region in Regions.Keys)
        {
            region.Trim();
        }
    }

    /// <summary>Notes a use of bytes of any mapped memory. After many, all leave the memory of the process, so that
    /// going through the whole, or through many small ones, does not hold the whole.</summary>
    internal static void Touch(long bytes)
    {
        if (Interlocked.Add(ref _touched, bytes) > MaxResident)
        {
            Interlocked.Exchange(ref _touched, 0);
            TrimAll();
        }
    }

    /// <inheritdoc/>
    public void Dispose()
    {
        Regions.TryRemove(_region, out _);
        _region.End();
        _view.SafeMemoryMappedViewHandle.ReleasePointer();
        _view.Dispose();
        _file.Dispose();
    }

    /// <summary>Opens a new file of the cache folder, which has no name any more.</summary>
    internal static FileStream OpenUnnamed()
    {
        string path = Path.Combine(Cache.CacheFolder, $"korvan-{Guid.NewGuid():N}.pixels");
        var options = new FileStreamOptions
        {
            Mode = FileMode.CreateNew,
            Access = FileAccess.ReadWrite,
            Share = FileShare.None,
            BufferSize = 0,
            Options = FileOptions.DeleteOnClose,
        };
        if (!OperatingSystem.IsWindows())
        {
            options.UnixCreateMode = UnixFileMode.UserRead | UnixFileMode.UserWrite;
        }

        var stream = new FileStream(path, options);
        File.Delete(path);
        return stream;
    }

    // Does not lead to its owner, so that the owner of memory that nobody releases is found by the collector.
    private sealed class Region(byte* start, long length)
    {
        private readonly Lock _gate = new();
        private bool _isEnded;

        internal byte* Start { get; } = start;

        internal void Trim()
        {
            lock (_gate)
            {
                if (!_isEnded)
                {
                    PosixFile.LeaveMemory(Start, length);
                }
            }
        }

        internal void End()
        {
            lock (_gate)
            {
                _isEnded = true;
            }
        }
    }
}
