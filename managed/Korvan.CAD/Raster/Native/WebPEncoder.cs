using System;
using System.Runtime.InteropServices;
using Korvan.CAD.Raster.Pixels;

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

    /// <summary>Rows that are converted at once, an even number since two share their chroma.</summary>
    private const int BandRows = 64;

    private const int FormatWithAlpha = 4;

    /// <summary>Compresses pixels with loss.</summary>
    /// <param name="pixels">The pixels.</param>
    /// <param name="quality">The quality, 0 to 100.</param>
    /// <param name="method">How long to search: 0, which is fast, to 6, which gives the fewest bytes.</param>
    /// <param name="savesMemory">Whether to keep nothing between passes, which takes longer.</param>
    /// <returns>The file; null where it could not be made.</returns>
    internal static byte[]? TryEncode(PixelGrid pixels, float quality, int method, bool savesMemory)
    {
        Configuration configuration;
        Picture picture;
        if (InitializeConfiguration(&configuration, 0, quality, Abi) == 0 || InitializePicture(&picture, Abi) == 0)
        {
            return null;
        }

        configuration.Method = method;
        configuration.SavesMemory = savesMemory ? 1 : 0;
        (picture.Width, picture.Height) = (pixels.Width, pixels.Height);
        Output output;
        InitializeOutput(&output);
        picture.Writer = AppendToOutput.Value;
        picture.Target = &output;
        try
        {
            bool isDone = TryImport(&picture, pixels) && Encode(&configuration, &picture) != 0;
            return isDone ? new ReadOnlySpan<byte>(output.Data, checked((int)output.Size)).ToArray() : null;
        }
        finally
        {
            FreePicture(&picture);
            ClearOutput(&output);
        }
    }

    // A few rows at a time, so that pixels in a mapped file are not all in memory at once.
    private static bool TryImport(Picture* picture, PixelGrid pixels)
    {
        picture->Format = pixels.IsOpaque() ? 0 : FormatWithAlpha;
        if (Allocate(picture) == 0)
        {
            return false;
        }

        for (int y = 0; y < pixels.Height; y += BandRows)
        {
            Picture band;
            if (InitializePicture(&band, Abi) == 0)
            {
                return false;
            }

            (band.Width, band.Height) = (pixels.Width, Math.Min(BandRows, pixels.Height - y));
            try
            {
                fixed (int* row = pixels.Row(y))
                {
                    if (Import(&band, (byte*)row, pixels.Width * sizeof(int)) == 0)
                    {
                        return false;
                    }
                }

                MappedMemory.Touch((long)band.Width * band.Height * sizeof(int));
                CopyBand(&band, picture, y);
            }
            finally
            {
                FreePicture(&band);
            }
        }

        return true;
    }

    private static void CopyBand(Picture* band, Picture* whole, int y)
    {
        int width = band->Width;
        int half = (width + 1) / 2;
        int halfRows = (band->Height + 1) / 2;
        CopyRows(band->Luma, band->LumaStride, whole->Luma, whole->LumaStride, y, width, band->Height);
        CopyRows(band->BlueChroma, band->ChromaStride, whole->BlueChroma, whole->ChromaStride, y / 2, half, halfRows);
        CopyRows(band->RedChroma, band->ChromaStride, whole->RedChroma, whole->ChromaStride, y / 2, half, halfRows);
        for (int row = 0; row < band->Height && whole->Alpha != null; row++)
        {
            var target = new Span<byte>(whole->Alpha + ((long)(y + row) * whole->AlphaStride), width);
            if (band->Alpha == null)
            {
                target.Fill(byte.MaxValue);
            }
            else
            {
                new ReadOnlySpan<byte>(band->Alpha + ((long)row * band->AlphaStride), width).CopyTo(target);
            }
        }
    }

    private static void CopyRows(
        byte* source, int sourceStride, byte* target, int stride, int first, int width, int rows)
    {
        for (int row = 0; row < rows; row++)
        {
            new ReadOnlySpan<byte>(source + ((long)row * sourceStride), width).CopyTo(
                new Span<byte>(target + ((long)(first + row) * stride), width));
        }
    }

    [LibraryImport(WebP.Library, EntryPoint = "WebPConfigInitInternal")]
    private static partial int InitializeConfiguration(
        Configuration* configuration, int preset, float quality, int abi);

    [LibraryImport(WebP.Library, EntryPoint = "WebPPictureInitInternal")]
    private static partial int InitializePicture(Picture* picture, int abi);

    [LibraryImport(WebP.Library, EntryPoint = "WebPPictureAlloc")]
    private static partial int Allocate(Picture* picture);

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

    [StructLayout(LayoutKind.Explicit, Size = 256)]
    private struct Configuration
    {
        [FieldOffset(8)]
        public int Method;

        [FieldOffset(88)]
        public int SavesMemory;
    }

    [StructLayout(LayoutKind.Explicit, Size = 512)]
    private struct Picture
    {
        [FieldOffset(4)]
        public int Format;

        [FieldOffset(8)]
        public int Width;

        [FieldOffset(12)]
        public int Height;

        [FieldOffset(16)]
        public byte* Luma;

        [FieldOffset(24)]
        public byte* BlueChroma;

        [FieldOffset(32)]
        public byte* RedChroma;

        [FieldOffset(40)]
        public int LumaStride;

        [FieldOffset(44)]
        public int ChromaStride;

        [FieldOffset(48)]
        public byte* Alpha;

        [FieldOffset(56)]
        public int AlphaStride;

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
