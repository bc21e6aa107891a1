using System;
using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>The part of libwebp's advanced interface that chooses how long compression takes.</summary>
internal static unsafe partial class WebPEncoder
{
    /// <summary>The version of the structures; libraries of the same major version, in the high byte, take them.
    /// </summary>
    private const int Abi = 0x020F;

    private static readonly Lazy<nint> AppendToOutput = new(static () =>
        CarriedLibraries.TryLoad(WebP.Library, out nint library)
            ? NativeLibrary.GetExport(library, "WebPMemoryWrite")
            : throw new DllNotFoundException(WebP.Library));

    /// <summary>Compresses pixels with loss.</summary>
    /// <param name="pixels">The pixels: blue, green, red, alpha.</param>
    /// <param name="width">The width in pixels.</param>
    /// <param name="height">The height in pixels.</param>
    /// <param name="quality">The quality, 0 to 100.</param>
    /// <param name="method">How long to search: 0, which is fast, to 6, which gives the fewest bytes.</param>
    /// <returns>The file; null where it could not be made.</returns>
    internal static byte[]? TryEncode(byte* pixels, int width, int height, float quality, int method)
    {
        Configuration configuration;
        Picture picture;
        if (InitializeConfiguration(&configuration, 0, quality, Abi) == 0 || InitializePicture(&picture, Abi) == 0)
        {
            return null;
        }

        configuration.Method = method;
        (picture.Width, picture.Height) = (width, height);
        Output output;
        InitializeOutput(&output);
        picture.Writer = AppendToOutput.Value;
        picture.Target = &output;
        try
        {
            bool isDone = Import(&picture, pixels, width * 4) != 0 && Encode(&configuration, &picture) != 0;
            return isDone ? new ReadOnlySpan<byte>(output.Data, checked((int)output.Size)).ToArray() : null;
        }
        finally
        {
            FreePicture(&picture);
            ClearOutput(&output);
        }
    }

    [LibraryImport(WebP.Library, EntryPoint = "WebPConfigInitInternal")]
    private static partial int InitializeConfiguration(
        Configuration* configuration, int preset, float quality, int abi);

    [LibraryImport(WebP.Library, EntryPoint = "WebPPictureInitInternal")]
    private static partial int InitializePicture(Picture* picture, int abi);

    [LibraryImport(WebP.Library, EntryPoint = "WebPPictureImportBGRA")]
    private static partial int Import(Picture* picture, byte* pixels, int stride);

    [LibraryImport(WebP.Library, EntryPoint = "WebPEncode")]
    private static partial int Encode(Configuration* configuration, Picture* picture);

    [LibraryImport(WebP.Library, EntryPoint = "WebPPictureFree")]
    private static partial void FreePicture(Picture* picture);

    [LibraryImport(WebP.Library, EntryPoint = "WebPMemoryWriterInit")]
    private static partial void InitializeOutput(Output* output);

    [LibraryImport(WebP.Library, EntryPoint = "WebPMemoryWriterClear")]
    private static partial void ClearOutput(Output* output);

    [StructLayout(LayoutKind.Sequential, Size = 256)]
    private struct Configuration
    {
        public int IsLossless;
        public float Quality;
        public int Method;
    }

    [StructLayout(LayoutKind.Explicit, Size = 512)]
    private struct Picture
    {
        [FieldOffset(8)]
        public int Width;

        [FieldOffset(12)]
        public int Height;

        [FieldOffset(96)]
        public nint Writer;

        [FieldOffset(104)]
        public Output* Target;
    }

    [StructLayout(LayoutKind.Sequential, Size = 64)]
    private struct Output
    {
        public byte* Data;
        public nuint Size;
        public nuint Capacity;
    }
}
