using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>The part of libwebp's simple interface that is called.</summary>
internal static unsafe partial class WebP
{
    /// <summary>The maximum width and height, 14 bits.</summary>
    internal const int MaxSide = 16383;

    internal const string Library = "libwebp.so.7";

    internal static void Require() => SharedLibrary.Require(Library, "libwebp7");

    [LibraryImport(Library, EntryPoint = "WebPGetInfo")]
    internal static partial int GetInfo(byte* data, nuint size, int* width, int* height);

    [LibraryImport(Library, EntryPoint = "WebPDecodeBGRAInto")]
    internal static partial byte* DecodeBgra(byte* data, nuint size, byte* target, nuint targetSize, int stride);

    [LibraryImport(Library, EntryPoint = "WebPEncodeLosslessBGRA")]
    internal static partial nuint EncodeLossless(
        byte* pixels, int width, int height, int stride, out WebPBufferHandle output);

    [LibraryImport(Library, EntryPoint = "WebPFree")]
    internal static partial void Free(nint data);
}
