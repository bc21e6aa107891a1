using System;
using System.IO;
using System.Runtime.ExceptionServices;
using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>
/// Lets a codec read and write a .NET stream. An exception of the stream never crosses native frames: it is kept, the
/// codec is told of a failure, and <see cref="Rethrow"/> brings it back on the managed side.
/// </summary>
internal sealed unsafe class StreamBridge : IDisposable
{
    private readonly Stream stream;
    private GCHandle handle;

    internal StreamBridge(Stream stream)
    {
        this.stream = stream;
        handle = GCHandle.Alloc(this);
    }

    internal nint Closure => GCHandle.ToIntPtr(handle);

    internal Exception? Failure { get; private set; }

    /// <summary>What the codec complained of first.</summary>
    internal string? Complaint { get; set; }

    internal long Length => stream.Length;

    internal static StreamBridge Of(nint closure) => (StreamBridge)GCHandle.FromIntPtr(closure).Target!;

    internal void Rethrow()
    {
        if (Failure != null)
        {
            ExceptionDispatchInfo.Throw(Failure);
        }
    }

    /// <summary>How many bytes were read; -1 after a failure.</summary>
    internal nint Read(byte* target, nint count)
    {
        return Guard(() => stream.ReadAtLeast(new Span<byte>(target, checked((int)count)), checked((int)count), false));
    }

    internal nint Write(byte* data, nint count)
    {
        return Guard(() =>
        {
            stream.Write(new ReadOnlySpan<byte>(data, checked((int)count)));
            return count;
        });
    }

    internal long Seek(long offset, System.IO.SeekOrigin origin) => Guard(() => (nint)stream.Seek(offset, origin));

    internal long Position => stream.Position;

    public void Dispose()
    {
        if (handle.IsAllocated)
        {
            handle.Free();
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
