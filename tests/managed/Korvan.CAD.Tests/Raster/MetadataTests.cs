using System;
using System.IO;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Exif;
using Korvan.CAD.Exif.Enums;
using Korvan.CAD.FileFormats.Jpeg;
using Korvan.CAD.FileFormats.Psd;
using Korvan.CAD.FileFormats.Psd.Resources;
using Korvan.CAD.FileFormats.Tiff;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;
using Korvan.CAD.FileFormats.Tiff.InstanceFactory;
using Korvan.CAD.FileFormats.Tiff.TiffTagTypes;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Tests.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.Raster;

public class MetadataTests
{
    private const string Dc = "http://purl.org/dc/elements/1.1/";

    [Theory]
    [InlineData(TiffByteOrder.LittleEndian)]
    [InlineData(TiffByteOrder.BigEndian)]
    public void Another_program_reads_the_exif_metadata(TiffByteOrder order)
    {
        using var image = Samples.Colors();
        var exif = new JpegExifData { ByteOrder = order, Make = "Korvan", Model = "One \u00c4" };
        exif.Orientation = ExifOrientation.RightTop;
        exif.ExposureTime = new TiffRational(1, 250);
        exif.FNumber = TiffRational.FromDouble(5.6);
        exif.Flash = ExifFlash.YesAuto;
        exif.WhiteBalance = ExifWhiteBalance.Manual;
        exif.GpsLatitude = -33.865;
        exif.GpsAltitude = new TiffRational(58, 1);
        exif.GpsAltitudeRef = ExifGPSAltitudeRef.BelowSeaLevel;
        exif.ThumbnailData = File.ReadAllBytes(Samples.Save(image, new JpegOptions { Quality = 20 }, ".jpg"));
        string file = Samples.Save(image, new JpegOptions { ExifData = exif }, ".jpg");
        string text = Tools.Run("exiv2", "-pt", file);
        string[] lines =
        [
            "Korvan", "One \u00c4", "right, top", "1/250 s", "F5.6", "Yes, auto", "Manual", "South", "33deg 51' 54\"",
                "Below sea level", "58 m",
        ];
        foreach (string expected in lines)
        {
            Assert.Contains(expected, text);
        }

        Assert.Contains("image/jpeg", Tools.Run("exiv2", "-pp", file));
        using RasterCachedImage back = Samples.Load(file);
        var read = Assert.IsType<JpegExifData>(back.ExifData);
        Assert.Equal(
            ("One \u00c4", ExifFlash.YesAuto, new TiffRational(1, 250)), (read.Model, read.Flash, read.ExposureTime));
        Assert.Equal(-33.865, read.GpsLatitude, 1e-6);
        Assert.Equal(exif.ThumbnailData, read.ThumbnailData);
        Assert.Equal(exif.SerializeData(), read.SerializeData());
        Assert.Equal("Korvan", Samples.Load(Samples.Save(back, new PngOptions(), ".png")).ExifData!.Make);
    }

    [Fact]
    public void Tags_of_all_types_round_trip()
    {
        var directory = new TiffExifIfd();
        TiffDataType[] fields =
        [
            new TiffByteType(1, [1, 2, 3, 4, 5]), new TiffASCIIType(2, "\u00e9t\u00e9"), new TiffShortType(3, [65535]),
                new TiffLongType(4, [uint.MaxValue]),
            new TiffRationalType(5, [new TiffRational(3, 7)]), new TiffSByteType(6, [-128, 127]),
                new TiffUndefinedType(7, [9]),
            new TiffSShortType(8, [-32768]), new TiffSLongType(9, [int.MinValue, 5]),
                new TiffSRationalType(10, [TiffSRational.FromDouble(-0.75)]),
            new TiffFloatType(11, [1.5f]), new TiffDoubleType(12, [Math.PI]), new TiffIfdType(13, [77]),
        ];
        Array.ForEach(fields, directory.Set);
        foreach (TiffByteOrder order in Enum.GetValues<TiffByteOrder>())
        {
            using var stream = new MemoryStream();
            directory.Write(new TiffStreamWriter(stream, order), 0, 99);
            Assert.Equal(directory.Size, stream.Length);
            TiffExifIfd read = TiffExifIfd.Read(new TiffStreamReader(stream.ToArray(), order), 0);
            Assert.Equal(fields.Select(f => f.ToString()), read.Tags.Select(f => f.ToString()));
            Assert.Equal(fields.Select(f => f.GetType()), read.Tags.Select(f => f.GetType()));
            Assert.Equal(99, read.NextOffset);
        }

        Assert.Equal("-3/4", TiffSRational.FromDouble(-0.75).ToString());
        Assert.IsType<TiffFloatType>(TiffTagFactory.GetCreator(TiffDataTypes.Float).CreateTag(5));
        Assert.Throws<ArgumentOutOfRangeException>(() => new TiffShortType(1, [65536]));
        Assert.Throws<TiffImageException>(() => TiffTagFactory.CreateTag(1, (TiffDataTypes)99));
    }

    [Fact]
    public void Damaged_blocks_are_rejected_and_dropped_by_images()
    {
        byte[] whole = new JpegExifData { Make = "Korvan and company" }.SerializeData();
        Assert.Throws<TiffImageException>(() => new ExifData(whole[..12]));
        Assert.Throws<TiffImageException>(() => new ExifData("JUNK JUNK"u8.ToArray()));

        // A thousand fields that share one block of bytes would be a thousand times its size.
        var bomb = new byte[2 + (12 * 1000) + 4];
        (bomb[0], bomb[1]) = (1000 & 255, 1000 >> 8);
        for (int i = 0; i < 1000; i++)
        {
            new byte[] { (byte)i, (byte)(i >> 8), 1, 0, 0xE0, 0x2E, 0, 0, 4, 0, 0, 0 }.CopyTo(bomb, 2 + (12 * i));
        }

        Assert.Throws<TiffImageException>(
            () => TiffExifIfd.Read(new TiffStreamReader(bomb, TiffByteOrder.LittleEndian), 0));
    }

    [Fact]
    public void Properties_are_stored_in_every_format_that_holds_them()
    {
        var xmp = new XmpPacketWrapper();
        xmp.SetLocalizedText(Dc, "title", "Plan <\u00c4>");
        xmp.SetValues(Dc, "creator", ["one", "two"]);
        xmp.SetValue("urn:own", "Sheet", "7");
        using var image = Samples.Colors();
        ImageOptionsBase[] formats = [new JpegOptions(), new PngOptions(), new TiffOptions(), new PsdOptions()];
        foreach (ImageOptionsBase options in formats)
        {
            options.XmpData = xmp;
            string file = Samples.Save(image, options, ".x");
            XmpPacketWrapper read = Samples.Load(file).XmpData!;
            Assert.Equal("Plan <\u00c4>", read.GetValue(Dc, "title"));
            Assert.Equal(["one", "two"], read.GetValues(Dc, "creator"));
            Assert.Equal(
                ["{http://purl.org/dc/elements/1.1/}title", "{http://purl.org/dc/elements/1.1/}creator",
                "{urn:own}Sheet"], read.PropertyNames);
            Assert.Contains("Plan", options is PsdOptions ? read.ToXml() : Tools.Run("exiv2", "-px", file));
        }

        var foreign = new XmpPacketWrapper(
            "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description rdf:about=''"
            + " xmlns:a='urn:a' a:b='c'/></rdf:RDF>");
        Assert.Equal("c", foreign.GetValue("urn:a", "b"));
        Assert.True(foreign.Remove("urn:a", "b"));
        Assert.Equal(0, foreign.Count);
        Assert.Throws<XmpException>(() => new XmpPacketWrapper("<rdf:RDF"));
        Assert.Throws<XmpException>(() => new XmpPacketWrapper("<!DOCTYPE x [<!ENTITY a 'b'>]><x>&a;</x>"));
        Assert.Throws<XmpException>(() => foreign.SetValue("urn:a", "no name", "x"));
        Assert.Throws<XmpException>(() => foreign.SetValue("urn:a", "name", "\u0001"));
    }

    [Fact]
    public void Resources_of_a_psd_are_read_with_their_types()
    {
        using var image = Samples.Colors(300, 200);
        var guides = new GridAndGuidesResouce { VerticalGuides = [10, 20.5], HorizontalGuides = [5], Name = "odd" };
        var options = new PsdOptions
        {
            Resources =
            [
                guides, new ThumbnailResource(image, 60), new TransparencyIndexResource(3),
                new UnknownResource(4000, [1, 2, 3]),
            ],
        };
        string file = Samples.Save(image, options, ".psd");
        ResourceBlock[] blocks = ResourceBlock.ReadAll(file);
        Assert.Equal([1005, 1032, 1036, 1047, 4000], blocks.Select(b => b.ID));
        var read = Assert.IsType<GridAndGuidesResouce>(blocks[1]);
        Assert.Equal([10, 20.5], read.VerticalGuides);
        Assert.Equal([5], read.HorizontalGuides);
        Assert.Equal("odd", read.Name);
        Assert.Equal(ResourceBlock.ResourceBlockState.Unchanged, read.State);
        read.GridCycleX = 32;
        Assert.Equal(ResourceBlock.ResourceBlockState.Changed, read.State);
        Assert.Equal((60, 40), (((ThumbnailResource)blocks[2]).Width, ((ThumbnailResource)blocks[2]).Height));
        Assert.Equal(3, ((TransparencyIndexResource)blocks[3]).TransparencyIndex);
        Assert.Equal([1, 2, 3], ((UnknownResource)blocks[4]).Data);
        Assert.Contains("300x200", Tools.Run("identify", file));
        Assert.Throws<PsdImageResourceException>(() => GridAndGuidesResouce.Read([0, 0]));
        Assert.Throws<JpegException>(() => new Thumbnail4Resource([1, 2, 3]));
        options = new PsdOptions { ColorMode = ColorModes.Indexed, Resources = [new TransparencyIndexResource(0)] };
        var palette =
            Assert.IsAssignableFrom<IPsdColorPalette>(Samples.Load(Samples.Save(image, options, ".psd")).Palette);
        Assert.Equal(
            (0, 768, true),
            (palette.TransparentIndex, palette.GetRawEntries().Length,
            ColorPaletteHelper.HasTransparentColors(palette)));
    }

    [Fact]
    public void The_jfif_header_of_a_jpeg_can_be_given()
    {
        using var image = Samples.Colors();
        var header = new JFIFData { DensityUnits = JfifDensityUnits.PixelsPerCm, XDensity = 100, YDensity = 50 };
        string file = Samples.Save(image, new JpegOptions { Jfif = header }, ".jpg");
        Assert.Equal("PixelsPerCentimeter 100 50", Tools.Run("identify", "-format", "%U %x %y", file));
        Assert.Equal(254, Samples.Load(file).HorizontalResolution, 1e-9);
        Assert.Throws<ArgumentOutOfRangeException>(() => header.XDensity = 0);
    }
}
