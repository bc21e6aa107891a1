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

    private readonly Stream _output;
    private readonly byte[] _block = new byte[BlockSize];
    private GCHandle _handle;
    private int _used;
    private Exception? _failure;

    internal StreamSink(Stream output)
    {
        _output = output;
        _handle = GCHandle.Alloc(this);
    }

    internal nint Closure => GCHandle.ToIntPtr(_handle);

    internal static delegate* unmanaged[Cdecl]<nint, byte*, uint, int> Callback => &Write;

    /// <summary>Hands on what is still buffered, then throws what the stream threw.</summary>
    internal void Complete()
    {
        if (_failure == null)
        {
            Drain();
        }

        Rethrow();
    }

    internal void Rethrow()
    {
        if (_failure != null)
        {
            ExceptionDispatchInfo.Throw(_failure);
        }
    }

    public void Dispose()
    {
        if (_handle.IsAllocated)
        {
            _handle.Free();
        }
    }

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static int Write(nint closure, byte* data, uint length)
    {
        if (GCHandle.FromIntPtr(closure).Target is not StreamSink sink || sink._failure != null)
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
            sink._failure = e;
            return StatusWriteError;
        }
    }

    private void Append(ReadOnlySpan<byte> data)
    {
        if (data.Length > BlockSize - _used)
        {
            DrainOrThrow();
        }

        if (data.Length >= BlockSize)
        {
            _output.Write(data);
            return;
        }

        data.CopyTo(_block.AsSpan(_used));
        _used += data.Length;
    }

    private void Drain()
    {
        try
        {
            DrainOrThrow();
        }
        catch (Exception e)
        {
            _failure = e;
        }
    }

    private void DrainOrThrow()
    {
        int count = _used;
        _used = 0;
        if (count > 0)
        {
            _output.Write(_block, 0, count);
        }
    }
}
