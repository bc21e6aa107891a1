using System;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Tiff;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;
using Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

namespace Korvan.CAD.Exif;

/// <summary>Exif metadata of a JPEG file, with a thumbnail (Exif 2.32).</summary>
public class JpegExifData : ExifData
{
    private byte[] _thumbnail = [];

    /// <summary>Creates metadata without tags.</summary>
    public JpegExifData()
    {
    }

    /// <summary>Reads metadata.</summary>
    /// <param name="data">The Exif block of a file, from its byte-order mark on.</param>
    /// <exception cref="TiffImageException">The block is damaged.</exception>
    public JpegExifData(byte[] data)
        : base(data)
    {
    }

    /// <summary>Gets or sets the thumbnail as a JPEG file; empty for none.</summary>
    /// <exception cref="JpegException">The bytes are not a JPEG file.</exception>
    public byte[] ThumbnailData
    {
        get => _thumbnail;
        set
        {
            Verify.NotNull(value);
            if (value.Length > 0 && !value.AsSpan().StartsWith((ReadOnlySpan<byte>)[0xFF, 0xD8, 0xFF]))
            {
                throw new JpegException("The thumbnail of Exif metadata is a JPEG file; these bytes are not.");
            }

            _thumbnail = value;
        }
    }

    private protected override bool HasRest => _thumbnail.Length > 0;

    /// <inheritdoc/>
    public override void Clear()
    {
        base.Clear();
        _thumbnail = [];
    }

    private protected override void ReadRest(TiffStreamReader reader, long offset)
    {
        _thumbnail = [];
        if (offset == 0)
        {
            return;
        }

        var second = new TiffDataTypeController(TiffExifIfd.Read(reader, offset));
        double place = second.GetNumber(ExifProperties.JpegInterchangeFormat, 0);
        double length = second.GetNumber(ExifProperties.JpegInterchangeFormatLength, 0);
        if (place > 0 && length > 0 && place + length <= reader.Length)
        {
            _thumbnail = reader.ReadBytes((long)place, (int)length);
        }
    }

    private protected override void WriteRest(TiffStreamWriter writer, long place)
    {
        if (!HasRest)
        {
            return;
        }

        var second = new TiffExifIfd();
        second.Set(new TiffShortType((int)ExifProperties.Compression, [(int)TiffCompressions.OldJpeg]));
        second.Set(new TiffLongType((int)ExifProperties.JpegInterchangeFormat, [0]));
        second.Set(new TiffLongType((int)ExifProperties.JpegInterchangeFormatLength, [_thumbnail.Length]));
        second.Set(new TiffLongType((int)ExifProperties.JpegInterchangeFormat, [place + second.Size]));
        second.Write(writer, place, 0);
        writer.Write(_thumbnail);
    }
}
