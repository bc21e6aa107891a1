using System;
using System.IO;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

/// <summary>A managed stream, block by block in Python's own memory.</summary>
public static unsafe class SiApiStream
{
    [UnmanagedCallersOnly]
    public static byte CanRead(nint handle) => Ask(handle, static stream => stream.CanRead);

    [UnmanagedCallersOnly]
    public static byte CanSeek(nint handle) => Ask(handle, static stream => stream.CanSeek);

    [UnmanagedCallersOnly]
    public static byte CanWrite(nint handle) => Ask(handle, static stream => stream.CanWrite);

    [UnmanagedCallersOnly]
    public static long Length(nint handle) => Measure(handle, static stream => stream.Length);

    [UnmanagedCallersOnly]
    public static long Position(nint handle) => Measure(handle, static stream => stream.Position);

    [UnmanagedCallersOnly]
    public static void Close(nint handle) => Do(handle, static stream => stream.Close());

    [UnmanagedCallersOnly]
    public static void Flush(nint handle) => Do(handle, static stream => stream.Flush());

    /// <summary>The bytes placed; 0 at the end.</summary>
    [UnmanagedCallersOnly]
    public static int Read(nint handle, byte* buffer, int count)
    {
        try
        {
            return Handles.Self<Stream>(handle).Read(new Span<byte>(buffer, count));
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    [UnmanagedCallersOnly]
    public static long Seek(nint handle, long offset, int whence)
    {
        try
        {
            return Handles.Self<Stream>(handle).Seek(offset, (SeekOrigin)whence);
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    /// <summary>The new length: the position where it stands, or the value.</summary>
    [UnmanagedCallersOnly]
    public static long SetLength(nint handle, int atPosition, long value)
    {
        try
        {
            Stream stream = Handles.Self<Stream>(handle);
            long length = atPosition != 0 ? stream.Position : value;
            stream.SetLength(length);
            return length;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    [UnmanagedCallersOnly]
    public static void Write(nint handle, byte* buffer, int count)
    {
        try
        {
            Handles.Self<Stream>(handle).Write(new ReadOnlySpan<byte>(buffer, count));
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    [UnmanagedCallersOnly]
    public static int btp_IsAssignable(nint value) => Casts.IsAssignable<Stream>(value);

    [UnmanagedCallersOnly]
    public static int btp_TypeOf(nint* type) => Casts.TypeOf(typeof(Stream), type);

    [UnmanagedCallersOnly]
    public static int btp_CastTo(VariantArg* value, nint* result) => Casts.ToReference<Stream>(value, result);

    [UnmanagedCallersOnly]
    public static int btp_ReInterpretObj(nint handle, nint* result) =>
        Casts.ReinterpretReference<Stream>(handle, result);

    [UnmanagedCallersOnly]
    public static int btp_CastAs(nint value, nint* result) => Casts.AsReference<Stream>(value, result);

    private static byte Ask(nint handle, Func<Stream, bool> question)
    {
        try
        {
            return question(Handles.Self<Stream>(handle)) ? (byte)1 : (byte)0;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    private static long Measure(nint handle, Func<Stream, long> measure)
    {
        try
        {
            return measure(Handles.Self<Stream>(handle));
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    private static void Do(nint handle, Action<Stream> action)
    {
        try
        {
            action(Handles.Self<Stream>(handle));
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }
}
