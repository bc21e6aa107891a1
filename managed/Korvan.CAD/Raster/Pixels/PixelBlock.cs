using System;
using System.Runtime.InteropServices;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.Raster.Pixels;

/// <summary>A zeroed buffer of pixels, in memory or in a mapped file, as <see cref="Cache"/> and the budget of the call
/// decide.</summary>
internal sealed unsafe class PixelBlock : IDisposable
{
    private readonly long _bytes;
    private readonly bool _onDisk;
    private readonly Budget? _budget;
    private readonly MappedMemory? _mapped;
    private int* _data;

    /// <summary>Takes a buffer.</summary>
    /// <param name="pixels">The number of pixels.</param>
    /// <param name="forPage">Whether a page is drawn into them.</param>
    internal PixelBlock(long pixels, bool forPage = false)
    {
        _bytes = pixels * sizeof(int);
        bool fitsFile = Budget.Current?.TryTakePixels(_bytes, forPage) ?? true;
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
            _mapped = _onDisk ? new MappedMemory(_bytes) : null;
            _data = (int*)(_mapped is null ? NativeMemory.AllocZeroed((nuint)_bytes) : _mapped.Start);
        }
        catch (Exception e)
        {
            Return();
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

    /// <summary>Gets the file that the pixels are in; null for pixels in memory.</summary>
    internal MappedMemory? Mapped => _mapped;

    public void Dispose()
    {
        Free();
        GC.SuppressFinalize(this);
    }

    private void Free()
    {
        if (_data == null)
        {
            return;
        }

        if (_mapped is null)
        {
            NativeMemory.Free(_data);
        }
        else
        {
            _mapped.Dispose();
        }

        _data = null;
        Return();
        GC.RemoveMemoryPressure(_bytes);
    }

    private void Return()
    {
        Cache.Release(_bytes, _onDisk);
        _budget?.ReturnPixels(_bytes);
    }
}
