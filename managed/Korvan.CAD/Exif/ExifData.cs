using System;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Exif.Enums;
using Korvan.CAD.FileFormats.Tiff;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;
using Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

namespace Korvan.CAD.Exif;

/// <summary>Exif metadata of an image (Exif 2.32).</summary>
public partial class ExifData
{
    private const int HeaderBytes = 8;
    private const int Magic = 42;

    /// <summary>Creates metadata without tags.</summary>
    public ExifData()
        : this(new TiffExifIfd(), new TiffExifIfd(), new TiffExifIfd())
    {
    }

    /// <summary>Reads metadata.</summary>
    /// <param name="data">The Exif block of a file, from its byte-order mark on.</param>
    /// <exception cref="TiffImageException">The block is damaged.</exception>
    public ExifData(byte[] data)
        : this()
    {
        Verify.NotNull(data);
        TiffStreamReader reader = Open(data);
        ByteOrder = reader.ByteOrder;
        TiffExifIfd common = TiffExifIfd.Read(reader, reader.ReadULong(4));
        CommonTags = new TiffDataTypeController(common);
        ExifTags = new TiffDataTypeController(Pointed(reader, ExifProperties.ExifIfdPointer));
        GpsTags = new TiffDataTypeController(Pointed(reader, ExifProperties.GpsIfdPointer));
        ReadRest(reader, common.NextOffset);
    }

    private ExifData(TiffExifIfd common, TiffExifIfd exif, TiffExifIfd gps)
    {
        CommonTags = new TiffDataTypeController(common);
        ExifTags = new TiffDataTypeController(exif);
        GpsTags = new TiffDataTypeController(gps);
    }

    /// <summary>Gets or sets the byte order of numbers.</summary>
    public TiffByteOrder ByteOrder { get; set; } = TiffByteOrder.LittleEndian;

    /// <summary>Gets the tags of the main directory, such as camera, dates and resolution.</summary>
    public TiffDataTypeController CommonTags { get; }

    /// <summary>Gets the tags of the Exif directory, such as exposure and lens.</summary>
    public TiffDataTypeController ExifTags { get; }

    /// <summary>Gets the tags of the GPS directory.</summary>
    public TiffDataTypeController GpsTags { get; }

    /// <summary>Gets the data of the camera's manufacturer, or <see langword="null"/> where there is none.</summary>
    public MakerNote? MakerNote =>
        ExifTags.GetBytes(ExifProperties.MakerNote) is { Length: > 0 } data ? new MakerNote(data) : null;

    /// <summary>Gets or sets the latitude in degrees, -90 (south) to 90 (north); NaN where it is not stated.</summary>
    public double GpsLatitude
    {
        get => GetAngle(ExifProperties.GpsLatitude, ExifProperties.GpsLatitudeRef, "S");
        set => SetAngle(ExifProperties.GpsLatitude, ExifProperties.GpsLatitudeRef, value, 90, "N", "S");
    }

    /// <summary>Gets or sets the longitude in degrees, -180 (west) to 180 (east); NaN where it is not stated.</summary>
    public double GpsLongitude
    {
        get => GetAngle(ExifProperties.GpsLongitude, ExifProperties.GpsLongitudeRef, "W");
        set => SetAngle(ExifProperties.GpsLongitude, ExifProperties.GpsLongitudeRef, value, 180, "E", "W");
    }

    /// <summary>Gets or sets the altitude in metres, without sign; <see langword="null"/> where it is not
    /// stated.</summary>
    public TiffRational? GpsAltitude
    {
        get => GpsTags.GetRational(ExifProperties.GpsAltitude);
        set => GpsTags.SetRational(ExifProperties.GpsAltitude, value);
    }

    /// <summary>Gets or sets the reference of the altitude: above or below sea level.</summary>
    public ExifGPSAltitudeRef GpsAltitudeRef
    {
        get => (ExifGPSAltitudeRef)GpsTags.GetNumber(ExifProperties.GpsAltitudeRef, 0);
        set => GpsTags.Directory.Set(new TiffByteType((int)ExifProperties.GpsAltitudeRef, [(byte)value]));
    }

    /// <summary>Gets the tags of all directories: main, Exif, GPS.</summary>
    public TiffDataType[] Properties =>
        [.. CommonTags.Directory.Tags, .. ExifTags.Directory.Tags, .. GpsTags.Directory.Tags];

    /// <summary>Removes all tags.</summary>
    public virtual void Clear()
    {
        CommonTags.Directory.Clear();
        ExifTags.Directory.Clear();
        GpsTags.Directory.Clear();
    }

    /// <summary>Returns the Exif block of a file, from its byte-order mark on.</summary>
    /// <returns>The bytes of the block.</returns>
    public byte[] SerializeData()
    {
        // Places of the directories follow from their sizes, so pointers are set before anything is written.
        TiffExifIfd common = CommonTags.Directory;
        Point(ExifProperties.ExifIfdPointer, ExifTags.Directory.Count > 0);
        Point(ExifProperties.GpsIfdPointer, GpsTags.Directory.Count > 0);
        ExifTags.Remove(ExifProperties.InteroperabilityIfdPointer);
        long exifPlace = HeaderBytes + common.Size;
        long gpsPlace = exifPlace + (ExifTags.Directory.Count > 0 ? ExifTags.Directory.Size : 0);
        long rest = gpsPlace + (GpsTags.Directory.Count > 0 ? GpsTags.Directory.Size : 0);
        SetPlace(ExifProperties.ExifIfdPointer, exifPlace);
        SetPlace(ExifProperties.GpsIfdPointer, gpsPlace);

        using var stream = new MemoryStream();
        var writer = new TiffStreamWriter(stream, ByteOrder);
        writer.WriteUShort((int)ByteOrder);
        writer.WriteUShort(Magic);
        writer.WriteULong(HeaderBytes);
        common.Write(writer, HeaderBytes, HasRest ? rest : 0);
        WriteDirectory(writer, ExifTags.Directory, exifPlace);
        WriteDirectory(writer, GpsTags.Directory, gpsPlace);
        WriteRest(writer, rest);
        return stream.ToArray();
    }

    private protected virtual bool HasRest => false;

    private protected virtual void ReadRest(TiffStreamReader reader, long offset)
    {
    }

    private protected virtual void WriteRest(TiffStreamWriter writer, long place)
    {
    }

    private static TiffStreamReader Open(byte[] data)
    {
        if (data.Length < HeaderBytes || data[0] != data[1] || data[0] is not ((byte)'I' or (byte)'M'))
        {
            throw new TiffImageException($"A block of {data.Length} bytes does not begin with a byte-order mark.");
        }

        var reader =
            new TiffStreamReader(data, data[0] == (byte)'I' ? TiffByteOrder.LittleEndian : TiffByteOrder.BigEndian);
        return reader.ReadUShort(2) == Magic
            ? reader : throw new TiffImageException("The number 42 does not follow the byte-order mark.");
    }

    private static void WriteDirectory(TiffStreamWriter writer, TiffExifIfd directory, long place)
    {
        if (directory.Count > 0)
        {
            directory.Write(writer, place, 0);
        }
    }

    private TiffExifIfd Pointed(TiffStreamReader reader, ExifProperties pointer)
    {
        double place = CommonTags.GetNumber(pointer, 0);
        return place > 0 ? TiffExifIfd.Read(reader, (long)place) : new TiffExifIfd();
    }

    private void Point(ExifProperties pointer, bool needed)
    {
        if (needed)
        {
            CommonTags.Directory.Set(new TiffLongType((int)pointer, [0]));
        }
        else
        {
            CommonTags.Remove(pointer);
        }
    }

    private void SetPlace(ExifProperties pointer, long place)
    {
        if (CommonTags.GetTag(pointer) is TiffLongType field)
        {
            field.Values = [place];
        }
    }

    private double GetAngle(ExifProperties angle, ExifProperties reference, string negative)
    {
        double[] parts = GpsTags.GetNumbers(angle);
        if (parts.Length < 3)
        {
            return double.NaN;
        }

        double degrees = parts[0] + (parts[1] / 60) + (parts[2] / 3600);
        return GpsTags.GetText(reference) == negative ? -degrees : degrees;
    }

    private void SetAngle(
        ExifProperties angle, ExifProperties reference, double value, double max, string positive, string negative)
    {
        if (double.IsNaN(value))
        {
            GpsTags.Remove(angle);
            GpsTags.Remove(reference);
            return;
        }

        Verify.InRange(value, -max, max, angle.ToString());

        // Rounded as a whole, so that no part becomes 60.
        const long second = 100_000;
        long size = (long)Math.Round(Math.Abs(value) * 3600 * second);
        GpsTags.Directory.Set(new TiffRationalType((int)angle,
        [
            new TiffRational(size / (3600 * second), 1),
            new TiffRational(size / (60 * second) % 60, 1),
            new TiffRational(size % (60 * second), second),
        ]));
        GpsTags.SetText(reference, value < 0 ? negative : positive);
    }
}
