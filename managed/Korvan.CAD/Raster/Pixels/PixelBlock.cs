using System;
using System.IO;
using System.IO.MemoryMappedFiles;
using System.Runtime.InteropServices;
using System.Threading;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.Raster.Pixels;

/// <summary>A zeroed buffer of pixels, in memory or in a mapped file, as <see cref="Cache"/> decides.</summary>
internal sealed unsafe class PixelBlock : IDisposable
{
    private readonly long _bytes;
    private readonly bool _onDisk;
    private readonly Budget? _budget;
    private long _touched;
    private MemoryMappedFile? _file;
    private MemoryMappedViewAccessor? _view;
    private int* _data;

    internal PixelBlock(long pixels)
    {
        _bytes = pixels * sizeof(int);
        bool fitsFile = Budget.Current?.TryTakePixels(_bytes) ?? true;
        _budget = fitsFile ? Budget.Current : null;
        try
        {
            _onDisk = Cache.Book(_bytes, fitsFile);
        }
        catch
        {
            _budget?.ReturnPixels(_bytes);
            GC.SuppressFinalize(this);
            throw;
        }

        try
        {
            _data = _onDisk ? Map() : (int*)NativeMemory.AllocZeroed((nuint)_bytes);
        }
        catch (Exception e)
        {
            Release();
            GC.SuppressFinalize(this);
            if (e is FrameworkException)
            {
                throw;
            }

            throw new LimitMemoryException(
                $"There is no room for {_bytes} bytes of pixels {(_onDisk ? "on disk" : "in memory")}.", e);
        }

        // The collector sees only this small object; it has to know what hangs on it.
        GC.AddMemoryPressure(_bytes);
    }

    ~PixelBlock() => Free();

    internal int* Data => _data;

    /// <summary>Gets whether the pixels are on disk.</summary>
    internal bool IsOnDisk => _onDisk;

    /// <summary>Notes that pixels on disk were used. From time to time they leave the memory of the process, so that
    /// one who goes through the whole does not hold the whole.</summary>
    internal void Touch(long bytes)
    {
        const long kept = 32L << 20;
        if (Interlocked.Add(ref _touched, bytes) > kept)
        {
            Interlocked.Exchange(ref _touched, 0);
            PosixFile.LeaveMemory((byte*)_data, _bytes);
        }
    }

    public void Dispose()
    {
        Free();
        GC.SuppressFinalize(this);
    }

    private int* Map()
    {
        // Unlinked at once, so that no file remains, however the process ends.
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
        try
        {
            // A page of a mapped file that the disk has no room for would be a bus error.
            PosixFile.Reserve(stream.SafeFileHandle, _bytes);
            _file = MemoryMappedFile.CreateFromFile(
                stream, null, _bytes, MemoryMappedFileAccess.ReadWrite, HandleInheritability.None, false);
            _view = _file.CreateViewAccessor(0, _bytes);
            byte* start = null;
            _view.SafeMemoryMappedViewHandle.AcquirePointer(ref start);
            return (int*)start;
        }
        catch
        {
            _view?.Dispose();
            _file?.Dispose();
            stream.Dispose();
            throw;
        }
    }

    private void Free()
    {
        if (_data == null)
        {
            return;
        }

        if (_onDisk)
        {
            _view!.SafeMemoryMappedViewHandle.ReleasePointer();
            _view.Dispose();
            _file!.Dispose();
        }
        else
        {
            NativeMemory.Free(_data);
        }

        _data = null;
        Release();
        GC.RemoveMemoryPressure(_bytes);
    }

    private void Release()
    {
        Cache.Release(_bytes, _onDisk);
        _budget?.ReturnPixels(_bytes);
    }
}
