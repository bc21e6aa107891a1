using System;
using System.IO;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Raster.Native;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>A TIFF that libtiff has open over a .NET stream.</summary>
internal sealed unsafe class TiffHandle : IDisposable
{
    private const int MostBytesAtOnce = int.MaxValue;

    private readonly StreamBridge bridge;
    private nint tiff;

    /// <summary>Opens a stream; the mode is that of TIFFOpen.</summary>
    internal TiffHandle(Stream stream, string name, string mode)
    {
        Tiff.Require();
        bridge = new StreamBridge(stream);
        nint options = Tiff.AllocOptions();
        Tiff.LimitMemory(options, MostBytesAtOnce);
        Tiff.SetErrorHandler(options, &Complain, bridge.Closure);
        Tiff.SetWarningHandler(options, &Ignore, bridge.Closure);
        tiff = Tiff.Open(name, mode, bridge.Closure, &Read, &Write, &Seek, &Close, &Size, &Map, &Unmap, options);
        Tiff.FreeOptions(options);
        if (tiff == 0)
        {
            bridge.Dispose();
            throw new TiffImageException($"'{name}' is no TIFF that can be read: {Complaint}.");
        }
    }

    internal nint Value => tiff;

    internal string Complaint => bridge.Complaint ?? "unknown failure";

    /// <summary>Throws when a call failed, by the stream's own failure if that is the reason.</summary>
    internal void Verify(bool done, string what)
    {
        if (!done)
        {
            bridge.Rethrow();
            throw new TiffImageException($"{what}: {Complaint}.");
        }
    }

    /// <summary>Writes what is buffered and closes; failures of the stream come out here.</summary>
    internal void Finish()
    {
        Tiff.Close(tiff);
        tiff = 0;
        bridge.Rethrow();
    }

    public void Dispose()
    {
        if (tiff != 0)
        {
            Tiff.Close(tiff);
            tiff = 0;
        }

        bridge.Dispose();
    }

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static nint Read(nint user, byte* target, nint count) => StreamBridge.Of(user).Read(target, count);

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static nint Write(nint user, byte* data, nint count) => StreamBridge.Of(user).Write(data, count);

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static ulong Seek(nint user, ulong offset, int origin) =>
        (ulong)StreamBridge.Of(user).Seek((long)offset, (System.IO.SeekOrigin)origin);

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static int Close(nint user) => 0; // the stream has an owner of its own

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static ulong Size(nint user) => (ulong)StreamBridge.Of(user).Length;

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static int Map(nint user, byte** start, ulong* size) => 0;

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static void Unmap(nint user, byte* start, ulong size)
    {
        // Nothing was mapped.
    }

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static int Complain(nint tiff, nint user, byte* module, byte* format, nint arguments)
    {
        StreamBridge.Of(user).Complaint ??= Tiff.Message(format, arguments).TrimEnd('.');
        return 1;
    }

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static int Ignore(nint tiff, nint user, byte* module, byte* format, nint arguments) => 1;
}
