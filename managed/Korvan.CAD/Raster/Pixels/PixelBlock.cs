using System;
using System.IO;
using System.IO.MemoryMappedFiles;
using System.Runtime.InteropServices;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.Raster.Pixels;

/// <summary>A zeroed buffer of pixels, in memory or in a mapped file, as <see cref="Cache"/> decides.</summary>
internal sealed unsafe class PixelBlock : IDisposable
{
    private readonly long _bytes;
    private readonly bool _onDisk;
    private MemoryMappedFile? _file;
    private MemoryMappedViewAccessor? _view;
    private int* _data;

    internal PixelBlock(long pixels)
    {
        _bytes = pixels * sizeof(int);
        _onDisk = Cache.Book(_bytes);
        try
        {
            _data = _onDisk ? Map() : (int*)NativeMemory.AllocZeroed((nuint)_bytes);
        }
        catch (Exception e)
        {
            Cache.Release(_bytes, _onDisk);
            GC.SuppressFinalize(this);
            throw new LimitMemoryException(
                $"There is no room for {_bytes} bytes of pixels {(_onDisk ? "on disk" : "in memory")}.", e);
        }

        // The collector sees only this small object; it has to know what hangs on it.
        GC.AddMemoryPressure(_bytes);
    }

    ~PixelBlock() => Free();

    internal int* Data => _data;

    public void Dispose()
    {
        Free();
        GC.SuppressFinalize(this);
    }

    private int* Map()
    {
        // Unlinked at once, so that no file remains, however the process ends.
        string path = Path.Combine(Cache.CacheFolder, $"korvan-{Guid.NewGuid():N}.pixels");
        var stream = new FileStream(
            path, FileMode.CreateNew, FileAccess.ReadWrite, FileShare.None, 1, FileOptions.DeleteOnClose);
        File.Delete(path);
        stream.SetLength(_bytes);
        _file = MemoryMappedFile.CreateFromFile(
            stream, null, _bytes, MemoryMappedFileAccess.ReadWrite, HandleInheritability.None, false);
        _view = _file.CreateViewAccessor(0, _bytes);
        byte* start = null;
        _view.SafeMemoryMappedViewHandle.AcquirePointer(ref start);
        return (int*)start;
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
        Cache.Release(_bytes, _onDisk);
        GC.RemoveMemoryPressure(_bytes);
    }
}
