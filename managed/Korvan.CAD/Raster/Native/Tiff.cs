using System;
using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>The part of libtiff (tiffio.h, version 4.5) that is called.</summary>
internal static unsafe partial class Tiff
{
    private const string Library = "libtiff.so.6";

    internal static void Require() => SharedLibrary.Require(Library, "libtiff6");

    [LibraryImport(Library, EntryPoint = "TIFFOpenOptionsAlloc")]
    internal static partial TiffOpenOptionsHandle AllocOptions();

    [LibraryImport(Library, EntryPoint = "TIFFOpenOptionsFree")]
    internal static partial void FreeOptions(nint options);

    [LibraryImport(Library, EntryPoint = "TIFFOpenOptionsSetMaxSingleMemAlloc")]
    internal static partial void LimitMemory(TiffOpenOptionsHandle options, nint bytes);

    [LibraryImport(Library, EntryPoint = "TIFFOpenOptionsSetErrorHandlerExtR")]
    internal static partial void SetErrorHandler(
        TiffOpenOptionsHandle options, delegate* unmanaged[Cdecl]<nint, nint, byte*, byte*, nint, int> handler,
        nint user);

    [LibraryImport(Library, EntryPoint = "TIFFOpenOptionsSetWarningHandlerExtR")]
    internal static partial void SetWarningHandler(
        TiffOpenOptionsHandle options, delegate* unmanaged[Cdecl]<nint, nint, byte*, byte*, nint, int> handler,
        nint user);

    [LibraryImport(Library, EntryPoint = "TIFFClientOpenExt", StringMarshalling = StringMarshalling.Utf8)]
    internal static partial TiffHandle Open(
        string name, string mode, nint user, delegate* unmanaged[Cdecl]<nint, byte*, nint, nint> read,
        delegate* unmanaged[Cdecl]<nint, byte*, nint, nint> write,
        delegate* unmanaged[Cdecl]<nint, ulong, int, ulong> seek,
        delegate* unmanaged[Cdecl]<nint, int> close, delegate* unmanaged[Cdecl]<nint, ulong> size,
        delegate* unmanaged[Cdecl]<nint, byte**, ulong*, int> map,
        delegate* unmanaged[Cdecl]<nint, byte*, ulong, void> unmap,
        TiffOpenOptionsHandle options);

    [LibraryImport(Library, EntryPoint = "TIFFClose")]
    internal static partial void Close(nint tiff);

    [LibraryImport(Library, EntryPoint = "TIFFVSetField")]
    private static partial int SetField(TiffHandle tiff, uint tag, ArgumentList* list);

    [LibraryImport(Library, EntryPoint = "TIFFVGetFieldDefaulted")]
    private static partial int GetField(TiffHandle tiff, uint tag, ArgumentList* list);

    [LibraryImport(Library, EntryPoint = "TIFFWriteEncodedStrip")]
    internal static partial nint WriteStrip(TiffHandle tiff, uint strip, byte* data, nint size);

    [LibraryImport(Library, EntryPoint = "TIFFWriteDirectory")]
    internal static partial int WriteDirectory(TiffHandle tiff);

    [LibraryImport(Library, EntryPoint = "TIFFReadDirectory")]
    internal static partial int ReadDirectory(TiffHandle tiff);

    [LibraryImport(Library, EntryPoint = "TIFFIsCODECConfigured")]
    internal static partial int HasCodec(ushort scheme);

    [LibraryImport(Library, EntryPoint = "TIFFRGBAImageOK")]
    internal static partial int CanBecomeRgba(TiffHandle tiff, byte* message);

    [LibraryImport(Library, EntryPoint = "TIFFReadRGBAImageOriented")]
    internal static partial int ReadRgba(
        TiffHandle tiff, uint width, uint height, uint* raster, int orientation, int stopOnError);

    [LibraryImport(Library, EntryPoint = "TIFFReadEncodedStrip")]
    internal static partial nint ReadStrip(TiffHandle tiff, uint strip, byte* target, nint size);

    [LibraryImport(Library, EntryPoint = "TIFFReadEncodedTile")]
    internal static partial nint ReadTile(TiffHandle tiff, uint tile, byte* target, nint size);

    [LibraryImport(Library, EntryPoint = "TIFFComputeStrip")]
    internal static partial uint ComputeStrip(TiffHandle tiff, uint y, ushort plane);

    [LibraryImport(Library, EntryPoint = "TIFFComputeTile")]
    internal static partial uint ComputeTile(TiffHandle tiff, uint x, uint y, uint z, ushort plane);

    [LibraryImport(Library, EntryPoint = "TIFFTileRowSize")]
    internal static partial nint TileRowSize(TiffHandle tiff);

    [LibraryImport(Library, EntryPoint = "TIFFScanlineSize")]
    internal static partial nint ScanlineSize(TiffHandle tiff);

    [LibraryImport(Library, EntryPoint = "TIFFReadScanline")]
    internal static partial int ReadScanline(TiffHandle tiff, byte* target, uint row, ushort plane);

    [LibraryImport(Library, EntryPoint = "TIFFStripSize64")]
    internal static partial ulong StripSize(TiffHandle tiff);

    [LibraryImport(Library, EntryPoint = "TIFFTileSize64")]
    internal static partial ulong TileSize(TiffHandle tiff);

    [LibraryImport(Library, EntryPoint = "TIFFIsTiled")]
    internal static partial int IsTiled(TiffHandle tiff);

    [LibraryImport("libc", EntryPoint = "vsnprintf")]
    private static partial int Format(byte* buffer, nuint size, byte* format, nint arguments);

    /// <summary>Sets a tag whose arguments are integers, each as wide as a register.</summary>
    internal static bool Set(TiffHandle tiff, int tag, ReadOnlySpan<long> arguments)
    {
        fixed (long* start = arguments)
        {
            ArgumentList list = ArgumentList.Over(start);
            return SetField(tiff, (uint)tag, &list) == 1;
        }
    }

    internal static bool Set(TiffHandle tiff, int tag, long value) => Set(tiff, tag, [value]);

    internal static bool SetReal(TiffHandle tiff, int tag, double value) =>
        Set(tiff, tag, BitConverter.DoubleToInt64Bits(value));

    internal static bool SetText(TiffHandle tiff, int tag, string value)
    {
        nint text = Marshal.StringToCoTaskMemUTF8(value);
        bool done = Set(tiff, tag, text); // libtiff copies it
        Marshal.FreeCoTaskMem(text);
        return done;
    }

    /// <summary>Gets a tag of at most 32 bits; its default where the file has none, 0 without a default.</summary>
    internal static uint GetNumber(TiffHandle tiff, int tag)
    {
        ulong value = 0;
        nint place = (nint)(&value);
        ArgumentList list = ArgumentList.Over(&place);
        return GetField(tiff, (uint)tag, &list) == 1 ? (uint)value : 0;
    }

    /// <summary>Gets the meaning of each sample beyond the colour.</summary>
    internal static ushort[] ExtraSamples(TiffHandle tiff)
    {
        ulong count = 0;
        ushort* meanings = null;
        nint* places = stackalloc nint[2];
        (places[0], places[1]) = ((nint)(&count), (nint)(&meanings));
        ArgumentList list = ArgumentList.Over(places);
        bool there = GetField(tiff, (uint)FileFormats.Tiff.Enums.TiffTags.ExtraSamples, &list) == 1;
        return there ? new ReadOnlySpan<ushort>(meanings, (ushort)count).ToArray() : [];
    }

    /// <summary>Gets the colours of a palette. Where all entries are below 256 they are taken as 8-bit values, which
    /// some programs write.</summary>
    internal static int[] Palette(TiffHandle tiff, int count)
    {
        nint* tables = stackalloc nint[3];
        nint* places = stackalloc nint[3];
        (places[0], places[1], places[2]) = ((nint)tables, (nint)(tables + 1), (nint)(tables + 2));
        ArgumentList list = ArgumentList.Over(places);
        var colors = new int[count];
        if (GetField(tiff, (uint)FileFormats.Tiff.Enums.TiffTags.ColorMap, &list) != 1)
        {
            return colors;
        }

        int all = 0;
        for (int i = 0; i < 3 * count; i++)
        {
            all |= ((ushort*)tables[i % 3])[i / 3];
        }

        for (int i = 0; i < 3 * count; i++)
        {
            int value = ((ushort*)tables[i % 3])[i / 3];
            colors[i / 3] = (colors[i / 3] << 8) | (all < 256 ? value : ((value * 255) + 32767) / 65535);
        }

        return colors;
    }

    internal static float GetReal(TiffHandle tiff, int tag)
    {
        float value = 0;
        nint place = (nint)(&value);
        ArgumentList list = ArgumentList.Over(&place);
        return GetField(tiff, (uint)tag, &list) == 1 ? value : 0;
    }

    internal static string GetText(TiffHandle tiff, int tag)
    {
        nint value = 0;
        nint place = (nint)(&value);
        ArgumentList list = ArgumentList.Over(&place);
        return GetField(tiff, (uint)tag, &list) == 1 ? Marshal.PtrToStringUTF8(value) ?? "" : "";
    }

    /// <summary>Formats an error message.</summary>
    internal static string Message(byte* format, nint arguments)
    {
        byte* text = stackalloc byte[512];
        _ = Format(text, 512, format, arguments);
        return Marshal.PtrToStringUTF8((nint)text) ?? "";
    }

    /// <summary>A va_list all of whose arguments lie in memory, eight bytes each, as defined by the System V ABI of
    /// x86-64, section 3.5.7. Variadic functions themselves cannot be called from managed code.</summary>
    [StructLayout(LayoutKind.Sequential)]
    private struct ArgumentList
    {
        private uint _integersUsed;
        private uint _realsUsed;
        private void* _inMemory;
        private void* _inRegisters;

        internal static ArgumentList Over(void* arguments) => new()
        {
            _integersUsed = 48, // both past the last register
            _realsUsed = 176,
            _inMemory = arguments,
            _inRegisters = null,
        };
    }
}
