using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Dicom;
using Korvan.CAD.FileFormats.Jpeg;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Pixels;
using J2K = Korvan.CAD.FileFormats.Jpeg2000.Jpeg2000Codec;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Writes secondary capture files (DICOM PS3.3, A.8), a frame for each page.</summary>
internal sealed class DicomWriter
{
    private const int MaxSide = 65_535;
    private const int White = -1;
    private const double MillimetresPerInch = 25.4;

    private readonly DicomOptions _options;
    private readonly bool _color;
    private readonly int _bits;

    private DicomWriter(DicomOptions options)
    {
        _options = options;
        _color = options.ColorType == ColorType.Rgb24Bit;
        _bits = options.ColorType == ColorType.Grayscale16Bit ? 16 : 8;
        if (_bits == 16 && options.Compression.Type is not (CompressionType.None or CompressionType.Rle))
        {
            throw new ImageSaveException(
                $"Samples of 16 bits are stored plain or as run lengths, not as "
                    + $"{Verify.NameOf(options.Compression.Type)}.");
        }
    }

    internal static void Write(IRasterPages pages, DicomOptions options, Stream output)
    {
        var writer = new DicomWriter(options);
        List<int> chosen = PageChoice.Of(pages, options.MultiPageOptions);
        using RasterPageData first = writer.Render(pages, chosen[0]);
        if (first.Pixels.Width > MaxSide || first.Pixels.Height > MaxSide)
        {
            throw new ImageSaveException($"A DICOM file holds at most {MaxSide} pixels on a side.");
        }

        string instance = DicomElementWriter.NewIdentifier();
        writer.WriteMeta(output, instance, chosen.Count);
        writer.WriteHeader(new DicomElementWriter(output), first, instance, chosen.Count);
        writer.WriteFrames(pages, chosen, first, output);
    }

    private string Syntax => _options.Compression.Type switch
    {
        CompressionType.Jpeg => DicomTags.JpegBaseline,
        CompressionType.Jpeg2000 => DicomTags.Jpeg2000Lossless,
        CompressionType.Rle => DicomTags.Rle,
        _ => DicomTags.ExplicitLittleEndian,
    };

    private string Photometric => (_color, _options.Compression.Type) switch
    {
        (false, _) => "MONOCHROME2",
        (_, CompressionType.Jpeg) => _options.Compression.Quality >= 90 ? "YBR_FULL" : "YBR_FULL_422",
        (_, CompressionType.Jpeg2000) => "YBR_RCT",
        _ => "RGB",
    };

    private RasterPageData Render(IRasterPages pages, int index)
    {
        RasterPageData page = PageChoice.Render(pages, index, _options.MultiPageOptions);
        page.Pixels.Flatten(White);
        return page;
    }

    private string Class(int frames) => (frames > 1, _color, _bits) switch
    {
        (false, _, _) => DicomTags.SecondaryCapture,
        (_, true, _) => DicomTags.MultiFrameTrueColor,
        (_, _, 16) => DicomTags.MultiFrameGrayscaleWord,
        _ => DicomTags.MultiFrameGrayscaleByte,
    };

    private void WriteMeta(Stream output, string instance, int frames)
    {
        using var group = new MemoryStream();
        var elements = new DicomElementWriter(group);
        elements.Bytes(0x00020001, "OB", [0, 1]);
        elements.Text(0x00020002, "UI", Class(frames));
        elements.Text(0x00020003, "UI", instance);
        elements.Text(DicomTags.TransferSyntax, "UI", Syntax);
        elements.Text(0x00020012, "UI", "2.25.302838311374213962437184735231337474048");
        elements.Text(0x00020013, "SH", "KORVAN_CAD");
        output.Write(new byte[128]);
        output.Write("DICM"u8);
        Span<byte> length = stackalloc byte[12];
        "\u0002\0\0\0UL\u0004\0"u8.CopyTo(length);
        System.Buffers.Binary.BinaryPrimitives.WriteInt32LittleEndian(length[8..], (int)group.Length);
        output.Write(length);
        group.WriteTo(output);
    }

    private void WriteHeader(DicomElementWriter to, RasterPageData page, string instance, int frames)
    {
        to.Text(0x00080016, "UI", Class(frames));
        to.Text(0x00080018, "UI", instance);
        to.Text(0x00080020, "DA", ""); // no dates and names: this is a drawing, not a patient
        to.Text(0x00080030, "TM", "");
        to.Text(0x00080050, "SH", "");
        to.Text(0x00080060, "CS", "OT");
        to.Text(0x00080064, "CS", "WSD");
        to.Text(0x00080090, "PN", "");
        to.Text(0x00100010, "PN", "");
        to.Text(0x00100020, "LO", "");
        to.Text(0x00100030, "DA", "");
        to.Text(0x00100040, "CS", "");
        to.Text(0x0020000D, "UI", DicomElementWriter.NewIdentifier());
        to.Text(0x0020000E, "UI", DicomElementWriter.NewIdentifier());
        to.Text(0x00200010, "SH", "");
        to.Text(0x00200011, "IS", "");
        to.Text(0x00200013, "IS", "1");
        to.Number(DicomTags.SamplesPerPixel, _color ? 3 : 1);
        to.Text(DicomTags.Photometric, "CS", Photometric);
        if (_color)
        {
            to.Number(DicomTags.PlanarConfiguration, 0);
        }

        if (frames > 1)
        {
            to.Text(DicomTags.NumberOfFrames, "IS", frames.ToString(CultureInfo.InvariantCulture));
        }

        to.Number(DicomTags.Rows, page.Pixels.Height);
        to.Number(DicomTags.Columns, page.Pixels.Width);
        double down = MillimetresPerInch / page.VerticalResolution;
        double across = MillimetresPerInch / page.HorizontalResolution;
        to.Text(DicomTags.PixelSpacing, "DS", string.Create(
            CultureInfo.InvariantCulture, $"{down:0.######}\\{across:0.######}"));
        to.Number(DicomTags.BitsAllocated, _bits);
        to.Number(DicomTags.BitsStored, _bits);
        to.Number(DicomTags.HighBit, _bits - 1);
        to.Number(DicomTags.PixelRepresentation, 0);
        if (_bits == 16)
        {
            to.Text(DicomTags.WindowCenter, "DS", "32768"); // the whole range, or viewers spread what there is
            to.Text(DicomTags.WindowWidth, "DS", "65536");
        }
    }

    private void WriteFrames(IRasterPages pages, List<int> chosen, RasterPageData first, Stream output)
    {
        var elements = new DicomElementWriter(output);
        long plain = first.Pixels.Count * (_color ? 3 : _bits / 8);
        bool packed = _options.Compression.Type != CompressionType.None;
        if (plain * chosen.Count > uint.MaxValue - 1)
        {
            throw new ImageSaveException($"{chosen.Count} frames of {plain} bytes are more than a DICOM file holds.");
        }

        elements.Header(DicomTags.PixelData, packed || _bits == 8 ? "OB" : "OW",
            packed ? DicomTags.UndefinedLength : (plain * chosen.Count) + (plain * chosen.Count & 1));
        if (packed)
        {
            elements.Item(DicomTags.Item, []); // no offset table
        }

        WriteFrame(first.Pixels, output, elements, packed);
        for (int i = 1; i < chosen.Count; i++)
        {
            using RasterPageData page = Render(pages, chosen[i]);
            if (page.Pixels.Width != first.Pixels.Width || page.Pixels.Height != first.Pixels.Height)
            {
                throw new ImageSaveException($"Page {chosen[i]} has {page.Pixels.Width} × {page.Pixels.Height} pixels,"
                    + $" the first {first.Pixels.Width} × {first.Pixels.Height}; all frames of a DICOM file have one"
                        + $" size.");
            }

            WriteFrame(page.Pixels, output, elements, packed);
        }

        if (packed)
        {
            elements.Item(DicomTags.SequenceEnd, []);
        }
        else
        {
            elements.Pad(plain * chosen.Count);
        }
    }

    private void WriteFrame(PixelGrid pixels, Stream output, DicomElementWriter elements, bool packed)
    {
        switch (_options.Compression.Type)
        {
            case CompressionType.Jpeg:
                JpegCompressionColorMode mode = _color
                    ? JpegCompressionColorMode.YCbCr : JpegCompressionColorMode.Grayscale;
                elements.Item(DicomTags.Item, JpegCodec.Compress(pixels, mode, _options.Compression.Quality, false));
                break;
            case CompressionType.Jpeg2000:
                using (var stream = new MemoryStream())
                {
                    if (!_color)
                    {
                        Operations.ColorAdjustment.Grayscale(pixels);
                    }

                    Jpeg2000Codec.Encode(pixels, J2K.J2K, false, 1, !_color, stream);
                    elements.Item(DicomTags.Item, stream.ToArray());
                }

                break;
            case CompressionType.Rle:
                elements.Item(DicomTags.Item, DicomRle.Pack(pixels, _color ? 3 : _bits / 8, _color));
                break;
            default:
                WriteRows(pixels, output);
                break;
        }
    }

    private void WriteRows(PixelGrid pixels, Stream output)
    {
        PixelDataFormat gray = _bits == 16 ? PixelDataFormat.Grayscale16Bpp : PixelDataFormat.Grayscale8Bpp;
        PixelDataFormat format = _color ? PixelDataFormat.Rgb24Bpp : gray;
        ColorConverters converter = ColorConverters.Create(format, null);
        var row = new byte[format.RowBytes(pixels.Width)];
        for (int y = 0; y < pixels.Height; y++)
        {
            converter.Pack(pixels.Row(y), row);
            output.Write(row);
        }
    }
}
