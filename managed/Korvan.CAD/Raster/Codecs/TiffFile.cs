using System;
using System.IO;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Raster.Native;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>A TIFF that libtiff has open over a .NET stream.</summary>
internal sealed unsafe class TiffFile : IDisposable
{
    private const int MaxAllocation = int.MaxValue;

    private readonly StreamBridge _bridge;
    private readonly TiffHandle _handle;

    /// <summary>Opens a stream; the mode is that of TIFFOpen.</summary>
    internal TiffFile(Stream stream, string name, string mode)
    {
        Tiff.Require();
        using TiffOpenOptionsHandle options = Tiff.AllocOptions();
        if (options.IsInvalid)
        {
            throw new OutOfMemoryException();
        }

        _bridge = new StreamBridge(stream);
        Tiff.LimitMemory(options, MaxAllocation);
        Tiff.SetErrorHandler(options, &OnError, _bridge.Closure);
        Tiff.SetWarningHandler(options, &OnWarning, _bridge.Closure);
        _handle = Tiff.Open(name, mode, _bridge.Closure, &Read, &Write, &Seek, &Close, &Size, &Map, &Unmap, options);
        if (_handle.IsInvalid)
        {
            using (this)
            {
                // What a damaged file makes of a read is no failure of the stream.
                Verify(mode[0] != 'w', "The TIFF cannot be begun");
                throw new TiffImageException($"'{name}' is no TIFF that can be read: {Error}.");
            }
        }
    }

    internal TiffHandle Handle => _handle;

    internal string Error => _bridge.Error ?? "unknown failure";

    /// <summary>Throws when a call failed, by the stream's own failure if that is the reason.</summary>
    internal void Verify(bool done, string what)
    {
        if (!done)
        {
            _bridge.Rethrow();
            throw new TiffImageException($"{what}: {Error}.");
        }
    }

    /// <summary>Writes what is buffered and closes; failures of the stream come out here.</summary>
    internal void Finish()
    {
        _handle.Dispose();
        _bridge.Rethrow();
    }

    public void Dispose()
    {
        _handle.Dispose(); // closing may still write
        _bridge.Dispose();
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
    private static int OnError(nint tiff, nint user, byte* module, byte* format, nint arguments)
    {
        StreamBridge.Of(user).Error ??= Tiff.Message(format, arguments).TrimEnd('.');
        return 1;
    }

    [UnmanagedCallersOnly(CallConvs = [typeof(CallConvCdecl)])]
    private static int OnWarning(nint tiff, nint user, byte* module, byte* format, nint arguments) => 1;
}
