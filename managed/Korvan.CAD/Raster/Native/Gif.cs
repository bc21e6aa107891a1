using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>The part of giflib (gif_lib.h, version 5) that is called.</summary>
internal static unsafe partial class Gif
{
    internal const int Ok = 1;
    internal const int GraphicsExtension = 0xF9;
    internal const int ApplicationExtension = 0xFF;

    private const string Library = "libgif.so.7";

    internal enum Record
    {
        Undefined = 0,
        ScreenDescriptor = 1,
        Image = 2,
        Extension = 3,
        Terminate = 4,
    }

    internal static void Require() => SharedLibrary.Require(Library, "libgif7");

    [LibraryImport(Library, EntryPoint = "DGifOpen")]
    internal static partial GifReadHandle OpenRead(
        nint user, delegate* unmanaged[Cdecl]<File*, byte*, int, int> read, int* error);

    [LibraryImport(Library, EntryPoint = "DGifCloseFile")]
    internal static partial int CloseRead(nint gif, int* error);

    [LibraryImport(Library, EntryPoint = "DGifGetRecordType")]
    internal static partial int GetRecord(GifReadHandle gif, Record* type);

    [LibraryImport(Library, EntryPoint = "DGifGetImageDesc")]
    internal static partial int GetImage(GifReadHandle gif);

    /// <summary>Returns the first block of compressed pixels, preceded by its length.</summary>
    [LibraryImport(Library, EntryPoint = "DGifGetCode")]
    internal static partial int GetCode(GifReadHandle gif, int* bits, byte** block);

    [LibraryImport(Library, EntryPoint = "DGifGetCodeNext")]
    internal static partial int GetCodeNext(GifReadHandle gif, byte** block);

    [LibraryImport(Library, EntryPoint = "DGifGetExtension")]
    internal static partial int GetExtension(GifReadHandle gif, int* code, byte** block);

    [LibraryImport(Library, EntryPoint = "DGifGetExtensionNext")]
    internal static partial int GetExtensionNext(GifReadHandle gif, byte** block);

    [LibraryImport(Library, EntryPoint = "EGifOpen")]
    internal static partial GifWriteHandle OpenWrite(
        nint user, delegate* unmanaged[Cdecl]<File*, byte*, int, int> write, int* error);

    [LibraryImport(Library, EntryPoint = "EGifCloseFile")]
    internal static partial int CloseWrite(nint gif, int* error);

    [LibraryImport(Library, EntryPoint = "EGifSetGifVersion")]
    internal static partial void SetVersion(GifWriteHandle gif, [MarshalAs(UnmanagedType.U1)] bool gif89);

    [LibraryImport(Library, EntryPoint = "EGifPutScreenDesc")]
    internal static partial int PutScreen(
        GifWriteHandle gif, int width, int height, int resolution, int background, GifColorMapHandle map);

    [LibraryImport(Library, EntryPoint = "EGifPutImageDesc")]
    internal static partial int PutImage(
        GifWriteHandle gif, int left, int top, int width, int height, [MarshalAs(UnmanagedType.U1)] bool interlace,
        ColorMap* map);

    [LibraryImport(Library, EntryPoint = "EGifPutLine")]
    internal static partial int PutLine(GifWriteHandle gif, byte* line, int length);

    [LibraryImport(Library, EntryPoint = "EGifPutExtension")]
    internal static partial int PutExtension(GifWriteHandle gif, int code, int length, byte* data);

    [LibraryImport(Library, EntryPoint = "EGifPutExtensionLeader")]
    internal static partial int PutLeader(GifWriteHandle gif, int code);

    [LibraryImport(Library, EntryPoint = "EGifPutExtensionBlock")]
    internal static partial int PutBlock(GifWriteHandle gif, int length, byte* data);

    [LibraryImport(Library, EntryPoint = "EGifPutExtensionTrailer")]
    internal static partial int PutTrailer(GifWriteHandle gif);

    [LibraryImport(Library, EntryPoint = "GifMakeMapObject")]
    internal static partial GifColorMapHandle MakeMap(int count, byte* rgb);

    [LibraryImport(Library, EntryPoint = "GifFreeMapObject")]
    internal static partial void FreeMap(nint map);

    [LibraryImport(Library, EntryPoint = "GifErrorString")]
    private static partial nint ErrorString(int code);

    internal static string Error(int code) => Marshal.PtrToStringUTF8(ErrorString(code)) ?? $"failure {code}";

    [StructLayout(LayoutKind.Sequential)]
    internal struct ColorMap
    {
        public int Count;
        public int BitsPerPixel;
        public byte Sorted;
        public byte* Colors;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal struct ImageDescription
    {
        public int Left;
        public int Top;
        public int Width;
        public int Height;
        public byte Interlace;
        public ColorMap* Map;
    }

    [StructLayout(LayoutKind.Explicit)]
    internal struct File
    {
        [FieldOffset(0)]
        public int Width;

        [FieldOffset(4)]
        public int Height;

        [FieldOffset(12)]
        public int Background;

        [FieldOffset(24)]
        public ColorMap* Map;

        [FieldOffset(40)]
        public ImageDescription Image;

        [FieldOffset(96)]
        public int Error;

        [FieldOffset(104)]
        public nint User;
    }
}
