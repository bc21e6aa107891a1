using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Exif;
using Korvan.CAD.Exif.Enums;
using Korvan.CAD.FileFormats.Jpeg;
using Korvan.CAD.FileFormats.Tiff;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;
using Korvan.CAD.FileFormats.Tiff.InstanceFactory;
using Korvan.CAD.FileFormats.Tiff.TiffTagTypes;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.Raster;

/// <summary>Fields byte by byte, in both orders, and what becomes of the values at the ends of their ranges.</summary>
public class FieldTests
{
    private static readonly (TiffDataType Field, int Type, byte[] Big, int Unit, double[] Numbers)[] Stored =
    [
        (new TiffByteType(1, [0, 255]), 1, [0, 255], 1, [0, 255]),
        (new TiffByteType(1, [1, 2, 3, 4, 5]), 1, [1, 2, 3, 4, 5], 1, [1, 2, 3, 4, 5]),
        (new TiffASCIIType(2, "abc"), 2, [97, 98, 99, 0], 1, []),
        (new TiffASCIIType(2, "\u00c4\u20ac"), 2, [0xC3, 0x84, 0xE2, 0x82, 0xAC, 0], 1, []),
        (new TiffShortType(3, [1, 65535]), 3, [0, 1, 255, 255], 2, [1, 65535]),
        (new TiffShortType(3, [258, 0, 7]), 3, [1, 2, 0, 0, 0, 7], 2, [258, 0, 7]),
        (new TiffLongType(4, [uint.MaxValue]), 4, [255, 255, 255, 255], 4, [uint.MaxValue]),
        (new TiffLongType(4, [0x01020304, 5]), 4, [1, 2, 3, 4, 0, 0, 0, 5], 4, [0x01020304, 5]),
        (new TiffRationalType(5, [new TiffRational(uint.MaxValue, 2)]), 5, [255, 255, 255, 255, 0, 0, 0, 2], 4,
            [uint.MaxValue / 2.0]),
        (new TiffSByteType(6, [-128, -1, 127]), 6, [128, 255, 127], 1, [-128, -1, 127]),
        (new TiffUndefinedType(7, [1, 0, 255]), 7, [1, 0, 255], 1, [1, 0, 255]),
        (new TiffSShortType(8, [-32768, 32767]), 8, [128, 0, 127, 255], 2, [-32768, 32767]),
        (new TiffSLongType(9, [int.MinValue, -2]), 9, [128, 0, 0, 0, 255, 255, 255, 254], 4, [int.MinValue, -2]),
        (new TiffSRationalType(10, [new TiffSRational(-3, 4)]), 10, [255, 255, 255, 253, 0, 0, 0, 4], 4, [-0.75]),
        (new TiffFloatType(11, [-1.5f]), 11, [0xBF, 0xC0, 0, 0], 4, [-1.5]),
        (new TiffDoubleType(12, [1 / 3.0, double.MinValue]), 12,
            [0x3F, 0xD5, 0x55, 0x55, 0x55, 0x55, 0x55, 0x55, 0xFF, 0xEF, 255, 255, 255, 255, 255, 255], 8,
                [1 / 3.0, double.MinValue]),
        (new TiffIfdType(13, [8]), 13, [0, 0, 0, 8], 4, [8]),
    ];

    [Theory]
    [InlineData(TiffByteOrder.LittleEndian)]
    [InlineData(TiffByteOrder.BigEndian)]
    public void Every_tag_type_is_stored_in_its_bytes(TiffByteOrder order)
    {
        bool big = order == TiffByteOrder.BigEndian;
        foreach ((TiffDataType field, int type, byte[] bigBytes, int unit, double[] numbers) in Stored)
        {
            byte[] bytes = big ? bigBytes : [.. bigBytes.Chunk(unit).SelectMany(part => part.Reverse())];
            byte[] entry =
                [.. Number(1, 2, big), .. Number(field.TagId, 2, big), .. Number(type, 2, big),
                .. Number(bytes.Length / field.ElementSize, 4, big)];
            bool inside = bytes.Length <= 4;
            byte[] value = inside ? [.. bytes, .. new byte[4 - bytes.Length]] : Number(18 + 8, 4, big);
            byte[] apart = inside ? [] : [.. bytes, .. new byte[bytes.Length % 2]];
            byte[] expected = [.. entry, .. value, .. Number(0, 4, big), .. apart];

            // Directories need not stand at the start: places count from the start of the block.
            var directory = new TiffExifIfd();
            directory.Set(field);
            using var stream = new MemoryStream();
            var writer = new TiffStreamWriter(stream, order);
            writer.Write(new byte[8]);
            directory.Write(writer, 8, 0);
            Assert.Equal([.. new byte[8], .. expected], stream.ToArray());
            TiffDataType read = Assert.Single(TiffExifIfd.Read(new TiffStreamReader(stream.ToArray(), order), 8).Tags);
            Assert.Equal(
                (field.GetType(), field.ToString(), field.Count), (read.GetType(), read.ToString(), read.Count));
            Assert.Equal(numbers, (read as TiffCommonArrayType)?.ToDoubles() ?? []);
            Assert.Equal((TiffDataTypes)type, TiffTagFactory.CreateTag(5, (TiffDataTypes)type).TagType);
        }
    }

    [Fact]
    public void Numbers_out_of_range_are_rejected_by_tags()
    {
        Action[] calls =
        [
            () => _ = new TiffShortType(1, [-1]), () => _ = new TiffLongType(1, [-1]),
            () => _ = new TiffLongType(1, [1L << 32]),
            () => _ = new TiffSByteType(1, [128]), () => _ = new TiffSShortType(1, [-32769]),
            () => _ = new TiffIfdType(1, [1L << 32]),
            () => _ = new TiffByteType(-1), () => _ = new TiffByteType(65536),
            () => _ = new TiffASCIIType(1, "a\0b"), () => _ = new TiffASCIIType(1, null!),
            () => _ = new TiffRational(-1, 1), () => _ = new TiffRational(1, 1L << 32),
            () => TiffRational.FromDouble(-0.1),
            () => TiffRational.FromDouble(double.NaN), () => TiffSRational.FromDouble(3e9),
            () => TiffSRational.FromDouble(double.NegativeInfinity),
            () => new JpegExifData { GpsLatitude = 90.001 }, () => new JpegExifData { GpsLongitude = -181 },
            () => new JpegExifData { GpsLongitude = double.PositiveInfinity },
            () => new JpegExifData { PhotographicSensitivity = 65536 },
        ];
        for (int i = 0; i < calls.Length; i++)
        {
            Exception? e = Record.Exception(calls[i]);
            Assert.True(e is ArgumentException, $"call {i}: {e?.GetType().Name ?? "nothing was refused"}");
        }

        Assert.Throws<JpegException>(() => new JpegExifData { ThumbnailData = [1, 2, 3] });
    }

    [Theory]
    [InlineData(0, 0, 1)]
    [InlineData(0.5, 1, 2)]
    [InlineData(1 / 250.0, 1, 250)]
    [InlineData(5.6, 28, 5)]
    [InlineData(0.333333333333, 1, 3)]
    [InlineData(29.97002997002997, 30000, 1001)]
    [InlineData(int.MaxValue, int.MaxValue, 1)]
    [InlineData(1e-12, 0, 1)]
    public void Fractions_are_the_simplest_that_are_near(double value, long numerator, long denominator)
    {
        Assert.Equal(new TiffRational(numerator, denominator), TiffRational.FromDouble(value));
        Assert.Equal($"-{numerator}/{denominator}", value > 0.001
            ? TiffSRational.FromDouble(-value).ToString() : $"-{numerator}/{denominator}");
        Assert.Equal(
            new TiffRational(numerator, denominator).GetHashCode(), TiffRational.FromDouble(value).GetHashCode());
        Assert.NotEqual(new TiffRational(1, 2), new TiffRational(2, 4)); // as they are stored, not what they mean
    }

    [Fact]
    public void Gps_angles_round_trip_everywhere()
    {
        double[] angles =
            [0, -0.0, 1e-7, -1e-7, 12.5, -33.865143, 59.999999999, -89.9999999999, 90, -90, 10 + (1 / 60.0),
            45.016666666666, 7.99999999999];
        foreach (double angle in angles)
        {
            var exif = new JpegExifData { GpsLatitude = angle, GpsLongitude = 2 * angle };
            var back = new JpegExifData(exif.SerializeData());
            Assert.Equal(angle, back.GpsLatitude, 1e-8);
            Assert.Equal(2 * angle, back.GpsLongitude, 1e-8);
            Assert.Equal(angle < 0
                ? ("S", "W")
                : ("N", "E"),
                (back.GpsTags.GetText(ExifProperties.GpsLatitudeRef),
                back.GpsTags.GetText(ExifProperties.GpsLongitudeRef)));
            foreach (ExifProperties property in new[] { ExifProperties.GpsLatitude, ExifProperties.GpsLongitude })
            {
                double[] parts = back.GpsTags.GetNumbers(property);
                Assert.True(parts[1] < 60 && parts[2] < 60, $"{angle}: {string.Join(' ', parts)}");
            }
        }

        var none = new JpegExifData { GpsLatitude = 5 };
        none.GpsLatitude = double.NaN;
        Assert.Empty(none.Properties);
        Assert.Equal((double.NaN, double.NaN), (none.GpsLatitude, none.GpsLongitude));
    }

    [Fact]
    public void Tags_of_all_types_survive_two_round_trips()
    {
        foreach (TiffByteOrder order in Enum.GetValues<TiffByteOrder>())
        {
            var exif = new JpegExifData
            {
                ByteOrder = order,
                Make = "A",
                Model = "ABC",
                Software = "ABCD",
                Artist = "\u00e9",
                Copyright = new string('x', 70_000),
                ImageDescription = "one\ntwo",
                DateTime = "2024:02:29 23:59:59",
                DateTimeOriginal = "2024:02:29 23:59:58",
                LensModel = "50 mm",
                Orientation = ExifOrientation.LeftBottom,
                ResolutionUnit = ExifUnit.Cm,
                ExposureTime = new TiffRational(0, 0),
                FNumber = new TiffRational(uint.MaxValue, 1),
                PhotographicSensitivity = 65535,
                ColorSpace = ExifColorSpace.SRgb,
                FileSource = ExifFileSource.Others,
                GpsAltitude = new TiffRational(1, uint.MaxValue),
            };
            exif.ExifTags.SetBytes(ExifProperties.MakerNote, [.. "Korvan"u8, 0, 1, 2]);
            byte[] data = exif.SerializeData();
            Assert.Equal(order == TiffByteOrder.BigEndian ? "MM" : "II", Encoding.ASCII.GetString(data, 0, 2));
            var back = new JpegExifData(data);
            Assert.Equal(exif.Properties.Select(p => p.ToString()), back.Properties.Select(p => p.ToString()));
            Assert.Equal(data, back.SerializeData());
            Assert.Equal(("Korvan", 9), (back.MakerNote!.Name, back.MakerNote.Data.Length));
            Assert.Equal(
                (order, 65535, ExifOrientation.LeftBottom),
                (back.ByteOrder, back.PhotographicSensitivity, back.Orientation));

            // In the other order only the bytes differ.
            back.ByteOrder = order == TiffByteOrder.BigEndian ? TiffByteOrder.LittleEndian : TiffByteOrder.BigEndian;
            Assert.Equal(
                exif.Properties.Select(p => p.ToString()),
                new JpegExifData(back.SerializeData()).Properties.Select(p => p.ToString()));
            (back.Make, back.FNumber, back.ThumbnailData) = ("", null, []);
            Assert.Equal(
                ("", null),
                (new JpegExifData(back.SerializeData()).Make, new JpegExifData(back.SerializeData()).FNumber));
            back.Clear();
            Assert.Empty(new JpegExifData(back.SerializeData()).Properties);
        }
    }

    [Fact]
    public void A_number_keeps_the_tag_type_of_its_file()
    {
        var exif = new ExifData();
        TiffDataType[] given =
            [new TiffLongType((int)ExifProperties.Orientation, [3]),
            new TiffByteType((int)ExifProperties.Orientation, [3]),
            new TiffSLongType((int)ExifProperties.Orientation, [3])];
        foreach (TiffDataType field in given)
        {
            exif.CommonTags.Directory.Set(field);
            Assert.Equal(ExifOrientation.BottomRight, exif.Orientation);
            exif.Orientation = ExifOrientation.LeftBottom;
            Assert.Equal(ExifOrientation.LeftBottom, new ExifData(exif.SerializeData()).Orientation);
        }

        exif.CommonTags.Directory.Set(new TiffASCIIType((int)ExifProperties.Orientation, "up"));
        Assert.Equal(ExifOrientation.TopLeft, exif.Orientation); // a text is no number
        exif.ExifTags.Directory.Set(new TiffByteType((int)ExifProperties.PhotographicSensitivity, [100]));
        exif.PhotographicSensitivity = 6400; // more than the type of the file holds
        Assert.Equal(6400, new ExifData(exif.SerializeData()).PhotographicSensitivity);
        exif.CommonTags.Directory.Set(new TiffShortType((int)ExifProperties.ResolutionUnit));
        Assert.Equal(ExifUnit.Inch, exif.ResolutionUnit); // a tag without values is ignored
    }

    [Fact]
    public void Invalid_directories_are_rejected_or_skipped()
    {
        static byte[] Block(int count, params byte[][] entries) =>
            [.. "II*\0"u8, 8, 0, 0, 0, (byte)count, (byte)(count >> 8), .. entries.SelectMany(e => e), 0, 0, 0, 0];
        static byte[] Entry(int id, int type, uint count, uint value) =>
            [.. Number(id, 2, false), .. Number(type, 2, false), .. Number(count, 4, false),
                .. Number(value, 4, false)];
        (string Why, byte[] Data)[] refused =
        [
            ("more entries than there are", Block(2, Entry(1, 3, 1, 1))),
            ("a place past the end", Block(1, Entry(1, 2, 5, 4000))),
            ("a count past the end", Block(1, Entry(1, 12, 0x7FFFFFFF, 8))),
            ("a place that wraps", Block(1, Entry(1, 4, 2, uint.MaxValue))),
            ("a pointer past the end", Block(1, Entry((int)ExifProperties.ExifIfdPointer, 4, 1, 9999))),
            ("a directory past the end", [.. "II*\0"u8, 0xFF, 0, 0, 0]),
            ("another number than 42", [.. "II+\0"u8, 8, 0, 0, 0, 0, 0]),
            ("a mixed mark", [.. "IM*\0"u8, 8, 0, 0, 0, 0, 0]),
        ];
        foreach ((string why, byte[] data) in refused)
        {
            Assert.True(Record.Exception(() => new JpegExifData(data)) is TiffImageException, why);
        }

        // Types of the future are kept to be seen, and left out when written; a directory that points at itself ends.
        var odd = new JpegExifData(
            Block(3, Entry(1, 99, 4, 0x04030201), Entry(2, 3, 1, 5),
            Entry((int)ExifProperties.ExifIfdPointer, 4, 1, 8)));
        var unknown = Assert.IsType<TiffUnknownType>(odd.CommonTags.Directory.Get(1));
        Assert.Equal((99, 4), (unknown.TypeNumber, unknown.Count));
        Assert.Equal([1, 2, 3, 4], unknown.ValueOrOffset);
        Assert.Null(new JpegExifData(odd.SerializeData()).CommonTags.Directory.Get(1));
        Assert.NotNull(new JpegExifData(odd.SerializeData()).CommonTags.Directory.Get(2));
        Assert.Empty(new JpegExifData(Block(0)).Properties);
        Assert.Throws<TiffImageException>(() => new TiffStreamReader([1, 2], TiffByteOrder.BigEndian).ReadULong(0));
        Assert.Throws<TiffImageException>(
            () => new TiffStreamReader([1, 2], TiffByteOrder.BigEndian).ReadBytes(long.MaxValue, 2));
    }

    [Fact]
    public void The_jfif_header_gives_the_resolution_in_every_unit()
    {
        using var image = Samples.Colors();
        foreach ((JfifDensityUnits unit, int x, int y, double across, double down) in new[]
            { (JfifDensityUnits.PixelsPerInch, 300, 65535, 300.0, 65535.0),
                (JfifDensityUnits.PixelsPerCm, 1, 100, 2.54, 254), (JfifDensityUnits.NoUnits, 4, 3, 96, 96) })
        {
            string file = Samples.Save(
                image, new JpegOptions { Jfif = new JFIFData { DensityUnits = unit, XDensity = x, YDensity = y } },
                ".jpg");
            using RasterCachedImage back = Samples.Load(file);
            Assert.Equal(
                (across, down), (Math.Round(back.HorizontalResolution, 6), Math.Round(back.VerticalResolution, 6)));
        }
    }

    private static byte[] Number(long value, int bytes, bool big)
    {
        var data = new byte[8];
        BinaryPrimitives.WriteInt64LittleEndian(data, value);
        IEnumerable<byte> low = data.Take(bytes);
        return [.. big ? low.Reverse() : low];
    }
}
