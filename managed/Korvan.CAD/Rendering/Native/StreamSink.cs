using System;
using System.IO;
using System.Runtime.CompilerServices;
using System.Runtime.ExceptionServices;
using System.Runtime.InteropServices;

namespace Korvan.CAD.Rendering.Native;

/// <summary>
/// Lets cairo write into a .NET stream. An exception of the stream never crosses the native frames: it is kept,
/// cairo is told of a write error, and <see cref="Rethrow"/> brings it back on the managed side.
/// </summary>
internal sealed unsafe class StreamSink : IDisposable
{
    private const int BlockSize = 64 * 1024;
    private const int StatusSuccess = 0;
    private const int StatusWriteError = 11;

    private readonly Stream output;
    private readonly byte[] block = new byte[BlockSize];
    private GCHandle handle;
    private int used;
    private Exception? failure;

    internal StreamSink(Stream output)
    {
        this.output = output;
        handle = GCHandle.Alloc(this);
    }

    internal nint Closure => GCHandle.ToIntPtr(handle);

    internal static delegate* unmanaged[Cdecl]<nint, byte*, uint, int> Callback => &Write;

    /// <summary>Hands on what is still buffered, then throws what the stream threw.</summary>
    internal void Complete()
    {
        if (failure == null)
        {
            Drain();
        }

        Rethrow();
    }

    internal void Rethrow()
    {
        if (failure != null)
        {
            ExceptionDispatchInfo.Throw(failure);
        }
    }

    public void Dispose()
    {
        if (handle.IsAllocated)
        {
            handle.Free();
        }
    }

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static int Write(nint closure, byte* data, uint length)
    {
        if (GCHandle.FromIntPtr(closure).Target is not StreamSink sink || sink.failure != null)
        {
            return StatusWriteError;
        }

        try
        {
            sink.Append(new ReadOnlySpan<byte>(data, checked((int)length)));
            return StatusSuccess;
        }
        catch (Exception e)
        {
            sink.failure = e;
            return StatusWriteError;
        }
    }

    private void Append(ReadOnlySpan<byte> data)
    {
        if (data.Length > BlockSize - used)
        {
            DrainOrThrow();
        }

        if (data.Length >= BlockSize)
        {
            output.Write(data);
            return;
        }

        data.CopyTo(block.AsSpan(used));
        used += data.Length;
    }

    private void Drain()
    {
        try
        {
            DrainOrThrow();
        }
        catch (Exception e)
        {
            failure = e;
        }
    }

    private void DrainOrThrow()
    {
        int count = used;
        used = 0;
        if (count > 0)
        {
            output.Write(block, 0, count);
        }
    }
}
