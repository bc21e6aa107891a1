using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>The part of OpenJPEG (openjpeg.h, version 2.5) that is called.</summary>
internal static unsafe partial class OpenJpeg
{
    internal const int CodecJ2K = 0;
    internal const int CodecJp2 = 2;
    internal const int ColorUnknown = -1;
    internal const int ColorRgb = 1;
    internal const int ColorGray = 2;
    internal const int ColorYcc = 3;
    internal const int ColorCmyk = 5;

    /// <summary>Size of the structure of the decoder's parameters.</summary>
    internal const int DecoderParameters = 8252;

    private const string Library = "libopenjp2.so.7";

    internal static void Require() => SharedLibrary.Require(Library, "libopenjp2-7");

    [LibraryImport(Library, EntryPoint = "opj_create_compress")]
    internal static partial OpenJpegCodecHandle CreateCompress(int codec);

    [LibraryImport(Library, EntryPoint = "opj_create_decompress")]
    internal static partial OpenJpegCodecHandle CreateDecompress(int codec);

    [LibraryImport(Library, EntryPoint = "opj_destroy_codec")]
    internal static partial void DestroyCodec(nint codec);

    [LibraryImport(Library, EntryPoint = "opj_set_default_encoder_parameters")]
    internal static partial void SetDefaults(EncoderParameters* parameters);

    [LibraryImport(Library, EntryPoint = "opj_set_default_decoder_parameters")]
    internal static partial void SetDecoderDefaults(byte* parameters);

    [LibraryImport(Library, EntryPoint = "opj_setup_encoder")]
    internal static partial int SetupEncoder(
        OpenJpegCodecHandle codec, EncoderParameters* parameters, OpenJpegImageHandle image);

    [LibraryImport(Library, EntryPoint = "opj_setup_decoder")]
    internal static partial int SetupDecoder(OpenJpegCodecHandle codec, byte* parameters);

    [LibraryImport(Library, EntryPoint = "opj_codec_set_threads")]
    internal static partial int SetThreads(OpenJpegCodecHandle codec, int count);

    [LibraryImport(Library, EntryPoint = "opj_decoder_set_strict_mode")]
    internal static partial int SetStrict(OpenJpegCodecHandle codec, int strict);

    [LibraryImport(Library, EntryPoint = "opj_set_error_handler")]
    internal static partial int SetErrorHandler(
        OpenJpegCodecHandle codec, delegate* unmanaged[Cdecl]<byte*, nint, void> handler, nint data);

    [LibraryImport(Library, EntryPoint = "opj_image_create")]
    internal static partial OpenJpegImageHandle CreateImage(
        uint components, ComponentParameters* parameters, int colors);

    [LibraryImport(Library, EntryPoint = "opj_image_tile_create")]
    internal static partial OpenJpegImageHandle CreateTileImage(
        uint components, ComponentParameters* parameters, int colors);

    [LibraryImport(Library, EntryPoint = "opj_write_tile")]
    internal static partial int WriteTile(
        OpenJpegCodecHandle codec, uint index, byte* data, uint length, OpenJpegStreamHandle stream);

    [LibraryImport(Library, EntryPoint = "opj_image_destroy")]
    internal static partial void DestroyImage(nint image);

    [LibraryImport(Library, EntryPoint = "opj_start_compress")]
    internal static partial int Start(
        OpenJpegCodecHandle codec, OpenJpegImageHandle image, OpenJpegStreamHandle stream);

    [LibraryImport(Library, EntryPoint = "opj_encode")]
    internal static partial int Encode(OpenJpegCodecHandle codec, OpenJpegStreamHandle stream);

    [LibraryImport(Library, EntryPoint = "opj_end_compress")]
    internal static partial int End(OpenJpegCodecHandle codec, OpenJpegStreamHandle stream);

    [LibraryImport(Library, EntryPoint = "opj_read_header")]
    internal static partial int ReadHeader(
        OpenJpegStreamHandle stream, OpenJpegCodecHandle codec, out OpenJpegImageHandle image);

    [LibraryImport(Library, EntryPoint = "opj_decode")]
    internal static partial int Decode(
        OpenJpegCodecHandle codec, OpenJpegStreamHandle stream, OpenJpegImageHandle image);

    [LibraryImport(Library, EntryPoint = "opj_end_decompress")]
    internal static partial int EndDecompress(OpenJpegCodecHandle codec, OpenJpegStreamHandle stream);

    [LibraryImport(Library, EntryPoint = "opj_stream_default_create")]
    internal static partial OpenJpegStreamHandle CreateStream(int isInput);

    [LibraryImport(Library, EntryPoint = "opj_stream_destroy")]
    internal static partial void DestroyStream(nint stream);

    [LibraryImport(Library, EntryPoint = "opj_stream_set_user_data")]
    internal static partial void SetUserData(OpenJpegStreamHandle stream, nint data, nint free);

    [LibraryImport(Library, EntryPoint = "opj_stream_set_user_data_length")]
    internal static partial void SetUserDataLength(OpenJpegStreamHandle stream, ulong length);

    [LibraryImport(Library, EntryPoint = "opj_stream_set_read_function")]
    internal static partial void SetRead(
        OpenJpegStreamHandle stream, delegate* unmanaged[Cdecl]<byte*, nuint, nint, nuint> read);

    [LibraryImport(Library, EntryPoint = "opj_stream_set_write_function")]
    internal static partial void SetWrite(
        OpenJpegStreamHandle stream, delegate* unmanaged[Cdecl]<byte*, nuint, nint, nuint> write);

    [LibraryImport(Library, EntryPoint = "opj_stream_set_skip_function")]
    internal static partial void SetSkip(
        OpenJpegStreamHandle stream, delegate* unmanaged[Cdecl]<long, nint, long> skip);

    [LibraryImport(Library, EntryPoint = "opj_stream_set_seek_function")]
    internal static partial void SetSeek(
        OpenJpegStreamHandle stream, delegate* unmanaged[Cdecl]<long, nint, int> seek);

    /// <summary>The fields of opj_cparameters_t that are set; the library fills in the others.</summary>
    [StructLayout(LayoutKind.Explicit, Size = 18720)]
    internal struct EncoderParameters
    {
        [FieldOffset(0)]
        public int HasTiles;

        [FieldOffset(12)]
        public int TileWidth;

        [FieldOffset(16)]
        public int TileHeight;

        [FieldOffset(20)]
        public int AllocateByRate;

        [FieldOffset(4796)]
        public int Layers;

        [FieldOffset(4800)]
        public float FirstRate;

        [FieldOffset(5600)]
        public int Resolutions;

        [FieldOffset(5616)]
        public int Irreversible;

        [FieldOffset(18698)]
        public byte ColorTransform;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal struct ComponentParameters
    {
        public uint Dx;
        public uint Dy;
        public uint Width;
        public uint Height;
        public uint X0;
        public uint Y0;
        public uint Precision;
        public uint Obsolete;
        public uint Signed;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal struct ImageHeader
    {
        public uint X0;
        public uint Y0;
        public uint X1;
        public uint Y1;
        public uint ComponentCount;
        public int Colors;
        public Component* Components;
        public byte* IccProfile;
        public uint IccLength;
    }

    [StructLayout(LayoutKind.Explicit, Size = 64)]
    internal struct Component
    {
        [FieldOffset(0)]
        public uint Dx;

        [FieldOffset(4)]
        public uint Dy;

        [FieldOffset(8)]
        public uint Width;

        [FieldOffset(12)]
        public uint Height;

        [FieldOffset(16)]
        public uint X0;

        [FieldOffset(20)]
        public uint Y0;

        [FieldOffset(24)]
        public uint Precision;

        [FieldOffset(32)]
        public uint Signed;

        [FieldOffset(48)]
        public int* Data;

        [FieldOffset(56)]
        public ushort Alpha;
    }
}
