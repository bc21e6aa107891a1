using System;
using System.Buffers.Binary;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Psd;
using Korvan.CAD.FileFormats.Psd.Resources;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Reads the merged image of a PSD.</summary>
internal sealed class PsdReader
{
    private const int HeaderBytes = 26;

    private readonly RasterSource _source;
    private readonly int _channels;
    private readonly int _width;
    private readonly int _height;
    private readonly int _depth;
    private readonly ColorModes _mode;

    private PsdReader(RasterSource source)
    {
        _source = source;
        ReadOnlySpan<byte> header = source.Data;
        if (header.Length < HeaderBytes || !header.StartsWith("8BPS"u8)
            || BinaryPrimitives.ReadUInt16BigEndian(header[4..]) != 1)
        {
            throw new PsdImageException($"'{source.Name}' does not begin with the header of a PSD of version 1.");
        }

        _channels = BinaryPrimitives.ReadUInt16BigEndian(header[12..]);
        _height = BinaryPrimitives.ReadInt32BigEndian(header[14..]);
        _width = BinaryPrimitives.ReadInt32BigEndian(header[18..]);
        _depth = BinaryPrimitives.ReadUInt16BigEndian(header[22..]);
        _mode = (ColorModes)BinaryPrimitives.ReadUInt16BigEndian(header[24..]);
        VerifyHeader();
    }

    private int RowBytes => ((_width * _depth) + 7) / 8;

    internal static DecodedFile Read(RasterSource source)
    {
        var reader = new PsdReader(source);
        ReadOnlySpan<byte> rest = source.Data.AsSpan(HeaderBytes);
        ReadOnlySpan<byte> palette = Section(ref rest, source.Name, "palette");
        ReadOnlySpan<byte> resources = Section(ref rest, source.Name, "resources");
        Section(ref rest, source.Name, "layers");
        return reader.File(palette, resources, rest);
    }

    /// <summary>Returns the section of image resources of a file.</summary>
    internal static ReadOnlySpan<byte> ResourceBytes(byte[] data, string name)
    {
        _ = new PsdReader(new RasterSource(data, name, false));
        ReadOnlySpan<byte> rest = data.AsSpan(HeaderBytes);
        Section(ref rest, name, "palette");
        return Section(ref rest, name, "resources");
    }

    private static ReadOnlySpan<byte> Section(scoped ref ReadOnlySpan<byte> rest, string name, string what)
    {
        uint size = rest.Length < 4 ? uint.MaxValue : BinaryPrimitives.ReadUInt32BigEndian(rest);
        if (size > rest.Length - 4)
        {
            throw new PsdImageException($"'{name}' ends inside of its {what}.");
        }

        ReadOnlySpan<byte> section = rest.Slice(4, (int)size);
        rest = rest[(4 + (int)size)..];
        return section;
    }

    private void VerifyHeader()
    {
        if (_width < 1 || _height < 1 || _channels is < 1 or > 56)
        {
            throw new PsdImageException(
                $"'{_source.Name}' claims {_width} × {_height} pixels of {_channels} channels.");
        }

        PixelGrid.VerifySize(_width, _height);
        (int Needed, bool Known) form = (_mode, _depth) switch
        {
            (ColorModes.Bitmap, 1) or (ColorModes.Indexed, 8) => (1, true),
            (ColorModes.Grayscale or ColorModes.Duotone, 8 or 16) => (1, true),
            (ColorModes.Rgb, 8 or 16) => (3, true),
            (ColorModes.Cmyk, 8 or 16) => (4, true),
            _ => (0, false),
        };
        if (!form.Known || _channels < form.Needed)
        {
            throw new PsdImageException(
                $"'{_source.Name}' is of mode {_mode} with {_channels} channels of {_depth} bits, which is not read.");
        }
    }

    private DecodedFile File(
        ReadOnlySpan<byte> paletteBytes, ReadOnlySpan<byte> resources, ReadOnlySpan<byte> imageData)
    {
        PsdPalette? palette = Palette(paletteBytes, resources);
        (double x, double y) = Resolution(resources);
        return new DecodedFile
        {
            Format = FileFormat.Psd,
            Xmp = XmpPacketWrapper.TryRead(PsdResources.Find(resources, XmpResouce.Number)),
            Frames =
            [
                new DecodedFrame
                {
                    Pixels = MergedImage(imageData, palette?.Argb32Entries),
                    BitsPerPixel = _channels * _depth,
                    Palette = palette,
                    HorizontalResolution = x,
                    VerticalResolution = y,
                },
            ],
        };
    }

    private PsdPalette? Palette(ReadOnlySpan<byte> table, ReadOnlySpan<byte> resources)
    {
        if (_mode != ColorModes.Indexed)
        {
            return null;
        }

        if (table.Length < PsdPalette.Bytes)
        {
            throw new PsdImageException(
                $"The palette of '{_source.Name}' has {table.Length} bytes, not {PsdPalette.Bytes}.");
        }

        ReadOnlySpan<byte> transparent = PsdResources.Find(resources, TransparencyIndexResource.Number);
        int index = transparent.IsEmpty ? -1 : TransparencyIndexResource.Read(transparent).TransparencyIndex;
        return PsdPalette.Read(table, index);
    }

    private static (double X, double Y) Resolution(ReadOnlySpan<byte> resources)
    {
        ReadOnlySpan<byte> data = PsdResources.Find(resources, PsdResources.ResolutionInfo);
        return data.Length < 16
            ? default
            : (BinaryPrimitives.ReadUInt32BigEndian(data) / 65536.0,
                BinaryPrimitives.ReadUInt32BigEndian(data[8..]) / 65536.0);
    }

    private PixelGrid MergedImage(ReadOnlySpan<byte> data, int[]? palette)
    {
        int method = data.Length < 2 ? -1 : BinaryPrimitives.ReadUInt16BigEndian(data);
        if (method is not ((int)CompressionMethod.Raw or (int)CompressionMethod.Rle))
        {
            throw new PsdImageException(
                $"The merged image of '{_source.Name}' is missing or compressed by method {method},"
                    + " which is not read.");
        }

        var rows = new PsdRows(data[2..], method == (int)CompressionMethod.Rle, _channels, _height, RowBytes);
        int used = UsedChannels();
        var planes = new byte[used][];
        for (int c = 0; c < used; c++)
        {
            planes[c] = new byte[RowBytes];
        }

        PixelGrid pixels = _source.NewGrid(_width, _height);
        try
        {
            for (int y = 0; y < _height; y++)
            {
                for (int c = 0; c < used; c++)
                {
                    rows.Read(c, y, planes[c]);
                }

                Combine(planes, palette, pixels.WritableRow(y));
            }
        }
        catch (FrameworkException) when (_source.Lenient)
        {
            return pixels; // the pixels that were read are shown
        }
        catch (FrameworkException e)
        {
            pixels.Dispose();
            throw new PsdImageException($"The image of '{_source.Name}' is damaged.", e);
        }

        return pixels;
    }

    // A channel beyond those of the mode is taken as alpha.
    private int UsedChannels() => _mode switch
    {
        ColorModes.Rgb => Math.Min(_channels, 4),
        ColorModes.Cmyk => Math.Min(_channels, 5),
        ColorModes.Grayscale or ColorModes.Duotone => Math.Min(_channels, 2),
        _ => 1,
    };

    private void Combine(byte[][] planes, int[]? palette, Span<int> row)
    {
        int colors = _mode == ColorModes.Cmyk ? 4 : _mode == ColorModes.Rgb ? 3 : 1;
        for (int x = 0; x < row.Length; x++)
        {
            int opacity = planes.Length > colors ? Sample(planes[colors], x) : 255;
            int Level(int channel) => PsdMatte.Unblend(Sample(planes[channel], x), opacity);
            row[x] = _mode switch
            {
                ColorModes.Bitmap => Sample(planes[0], x) == 0 ? -1 : PixelGrid.Opaque,
                ColorModes.Indexed => palette![Sample(planes[0], x)],
                ColorModes.Rgb => (opacity << 24) | (Level(0) << 16) | (Level(1) << 8) | Level(2),
                ColorModes.Cmyk => (opacity << 24) | (0xFFFFFF & CmykColor.FromStored(
                    ~(Level(0) | (Level(1) << 8) | (Level(2) << 16) | (Level(3) << 24))).ToArgb32()),
                _ => (opacity << 24) | (Level(0) * 0x010101),
            };
        }
    }

    private int Sample(byte[] plane, int x) => _depth switch
    {
        16 => ((BinaryPrimitives.ReadUInt16BigEndian(plane.AsSpan(2 * x)) * 255) + 32767) / 65535,
        8 => plane[x],
        _ => BitPacking.Value(plane, x, _depth),
    };
}
