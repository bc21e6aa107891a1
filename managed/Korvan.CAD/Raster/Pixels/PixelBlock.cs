using System;
using System.IO;
using System.IO.MemoryMappedFiles;
using System.Runtime.InteropServices;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.Raster.Pixels;

/// <summary>A zeroed place for pixels, in memory or in a file, as <see cref="Cache"/> decides.</summary>
internal sealed unsafe class PixelBlock : IDisposable
{
    private readonly long bytes;
    private readonly bool onDisk;
    private MemoryMappedFile? file;
    private MemoryMappedViewAccessor? view;
    private int* data;

    internal PixelBlock(long pixels)
    {
        bytes = pixels * sizeof(int);
        onDisk = Cache.Book(bytes);
        try
        {
            data = onDisk ? Map() : (int*)NativeMemory.AllocZeroed((nuint)bytes);
        }
        catch (Exception e)
        {
            Cache.Release(bytes, onDisk);
            GC.SuppressFinalize(this);
            throw new LimitMemoryException($"There is no room for {bytes} bytes of pixels {(onDisk ? "on disk" : "in memory")}.", e);
        }

        // The collector sees only this small object; it has to know what hangs on it.
        GC.AddMemoryPressure(bytes);
    }

    ~PixelBlock() => Free();

    internal int* Data => data;

    public void Dispose()
    {
        Free();
        GC.SuppressFinalize(this);
    }

    private int* Map()
    {
        // Opened and at once without a name: nothing is left behind, however the process ends.
        string path = Path.Combine(Cache.CacheFolder, $"korvan-{Guid.NewGuid():N}.pixels");
        var stream = new FileStream(path, FileMode.CreateNew, FileAccess.ReadWrite, FileShare.None, 1, FileOptions.DeleteOnClose);
        File.Delete(path);
        stream.SetLength(bytes);
        file = MemoryMappedFile.CreateFromFile(
            stream, null, bytes, MemoryMappedFileAccess.ReadWrite, HandleInheritability.None, false);
        view = file.CreateViewAccessor(0, bytes);
        byte* start = null;
        view.SafeMemoryMappedViewHandle.AcquirePointer(ref start);
        return (int*)start;
    }

    private void Free()
    {
        if (data == null)
        {
            return;
        }

        if (onDisk)
        {
            view!.SafeMemoryMappedViewHandle.ReleasePointer();
            view.Dispose();
            file!.Dispose();
        }
        else
        {
            NativeMemory.Free(data);
        }

        data = null;
        Cache.Release(bytes, onDisk);
        GC.RemoveMemoryPressure(bytes);
    }
}
