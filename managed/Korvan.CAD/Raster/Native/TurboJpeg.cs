using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>The part of libjpeg-turbo's plain interface (version 2.1) that is called.</summary>
internal static unsafe partial class TurboJpeg
{
    internal const int FlagStopOnWarning = 8192;
    internal const int FlagProgressive = 16384;
    internal const int FlagLimitScans = 32768;

    private const string Library = "libturbojpeg.so.0";

    internal enum PixelLayout
    {
        Bgrx = 3,
        Gray = 6,
        Bgra = 8,
        Cmyk = 11,
    }

    internal enum Subsampling
    {
        None = 0,
        Half = 1,
        Quarter = 2,
        Gray = 3,
    }

    internal enum Colors
    {
        Rgb = 0,
        YCbCr = 1,
        Gray = 2,
        Cmyk = 3,
        Ycck = 4,
    }

    internal static void Require() => SharedLibrary.Require(Library, "libturbojpeg0");

    [LibraryImport(Library, EntryPoint = "tjInitCompress")]
    internal static partial TurboJpegHandle InitCompress();

    [LibraryImport(Library, EntryPoint = "tjInitDecompress")]
    internal static partial TurboJpegHandle InitDecompress();

    [LibraryImport(Library, EntryPoint = "tjDestroy")]
    internal static partial int Destroy(nint handle);

    [LibraryImport(Library, EntryPoint = "tjFree")]
    internal static partial void Free(nint buffer);

    [LibraryImport(Library, EntryPoint = "tjCompress2")]
    internal static partial int Compress(
        TurboJpegHandle handle, byte* source, int width, int pitch, int height, PixelLayout layout,
        out TurboJpegBufferHandle jpeg, ref nuint size, Subsampling subsampling, int quality, int flags);

    [LibraryImport(Library, EntryPoint = "tjDecompressHeader3")]
    internal static partial int ReadHeader(
        TurboJpegHandle handle, byte* jpeg, nuint size, int* width, int* height, int* subsampling, int* colors);

    [LibraryImport(Library, EntryPoint = "tjDecompress2")]
    internal static partial int Decompress(
        TurboJpegHandle handle, byte* jpeg, nuint size, byte* target, int width, int pitch, int height,
        PixelLayout layout, int flags);

    [LibraryImport(Library, EntryPoint = "tjGetErrorStr2")]
    private static partial nint ErrorText(TurboJpegHandle handle);

    internal static string Error(TurboJpegHandle handle) =>
        Marshal.PtrToStringUTF8(ErrorText(handle)) ?? "unknown failure";
}
