using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>libpng's simplified reader (png.h, version 1.6).</summary>
internal static unsafe partial class Png
{
    internal const uint Version = 1;
    internal const uint SixteenBitsAreSrgb = 0x04;
    internal const uint FormatBgra = 0x01 | 0x02 | 0x10;

    private const string Library = "libpng16.so.16";

    internal static void Require() => SharedLibrary.Require(Library, "libpng16-16");

    [LibraryImport(Library, EntryPoint = "png_image_begin_read_from_memory")]
    internal static partial int Begin(PngImageHandle image, byte* memory, nuint size);

    [LibraryImport(Library, EntryPoint = "png_image_finish_read")]
    internal static partial int Finish(
        PngImageHandle image, void* background, void* buffer, int rowStride, void* colorMap);

    [LibraryImport(Library, EntryPoint = "png_image_free")]
    internal static partial void Free(nint image);

    [StructLayout(LayoutKind.Sequential)]
    internal struct State
    {
        public nint Opaque;
        public uint Version;
        public uint Width;
        public uint Height;
        public uint Format;
        public uint Flags;
        public uint ColorMapEntries;
        public uint WarningOrError;
        public fixed byte Message[64];

        internal string Text()
        {
            fixed (byte* start = Message)
            {
                return Marshal.PtrToStringUTF8((nint)start) ?? "";
            }
        }
    }
}
