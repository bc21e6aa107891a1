using System;
using System.IO;
using System.Runtime.ExceptionServices;
using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>Lets a native codec read and write a .NET stream. An exception of the stream never crosses native frames:
/// it is kept, the callback reports a failure to the codec, and <see cref="Rethrow"/> throws it on the managed
/// side.</summary>
internal sealed unsafe class StreamBridge : IDisposable
{
    private readonly Stream _stream;
    private GCHandle _handle;

    internal StreamBridge(Stream stream)
    {
        _stream = stream;
        _handle = GCHandle.Alloc(this);
    }

    internal nint Closure => GCHandle.ToIntPtr(_handle);

    internal Exception? Failure { get; private set; }

    /// <summary>The codec's first error message.</summary>
    internal string? Error { get; set; }

    internal long Length => Guard(() => (nint)_stream.Length);

    internal static StreamBridge Of(nint closure) => (StreamBridge)GCHandle.FromIntPtr(closure).Target!;

    internal void Rethrow()
    {
        if (Failure != null)
        {
            ExceptionDispatchInfo.Throw(Failure);
        }
    }

    /// <summary>Returns how many bytes were read; -1 after a failure.</summary>
    internal nint Read(byte* target, nint count)
    {
        return Guard(
            () => _stream.ReadAtLeast(new Span<byte>(target, checked((int)count)), checked((int)count), false));
    }

    internal nint Write(byte* data, nint count)
    {
        return Guard(() =>
        {
            _stream.Write(new ReadOnlySpan<byte>(data, checked((int)count)));
            return count;
        });
    }

    internal long Seek(long offset, System.IO.SeekOrigin origin) => Guard(() => (nint)_stream.Seek(offset, origin));

    internal long Position => Guard(() => (nint)_stream.Position);

    public void Dispose()
    {
        if (_handle.IsAllocated)
        {
            _handle.Free();
        }
    }

    private nint Guard(Func<nint> action)
    {
        if (Failure != null)
        {
            return -1;
        }

        try
        {
            return action();
        }
        catch (Exception e)
        {
            Failure = e;
            return -1;
        }
    }
}
