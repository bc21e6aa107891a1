using System;
using System.Buffers.Binary;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Psd;
using Korvan.CAD.FileFormats.Psd.Resources;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Reads the merged picture of a PSD.</summary>
internal sealed class PsdReader
{
    private const int HeadBytes = 26;

    private readonly RasterSource source;
    private readonly int channels;
    private readonly int width;
    private readonly int height;
    private readonly int depth;
    private readonly ColorModes mode;

    private PsdReader(RasterSource source)
    {
        this.source = source;
        ReadOnlySpan<byte> head = source.Data;
        if (head.Length < HeadBytes || !head.StartsWith("8BPS"u8) || BinaryPrimitives.ReadUInt16BigEndian(head[4..]) != 1)
        {
            throw new PsdImageException($"'{source.Name}' does not begin with the head of a PSD of version 1.");
        }

        channels = BinaryPrimitives.ReadUInt16BigEndian(head[12..]);
        height = BinaryPrimitives.ReadInt32BigEndian(head[14..]);
        width = BinaryPrimitives.ReadInt32BigEndian(head[18..]);
        depth = BinaryPrimitives.ReadUInt16BigEndian(head[22..]);
        mode = (ColorModes)BinaryPrimitives.ReadUInt16BigEndian(head[24..]);
        VerifyHead();
    }

    private int RowBytes => ((width * depth) + 7) / 8;

    internal static DecodedFile Read(RasterSource source)
    {
        var reader = new PsdReader(source);
        ReadOnlySpan<byte> rest = source.Data.AsSpan(HeadBytes);
        ReadOnlySpan<byte> palette = Section(ref rest, source.Name, "palette");
        ReadOnlySpan<byte> resources = Section(ref rest, source.Name, "resources");
        Section(ref rest, source.Name, "layers");
        return reader.File(palette, resources, rest);
    }

    /// <summary>The section of resources of a file.</summary>
    internal static ReadOnlySpan<byte> ResourceBytes(byte[] data, string name)
    {
        _ = new PsdReader(new RasterSource(data, name, false));
        ReadOnlySpan<byte> rest = data.AsSpan(HeadBytes);
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

    private void VerifyHead()
    {
        if (width < 1 || height < 1 || channels is < 1 or > 56)
        {
            throw new PsdImageException($"'{source.Name}' claims {width} × {height} pixels of {channels} channels.");
        }

        PixelGrid.Verify(width, height);
        (int Needed, bool Known) form = (mode, depth) switch
        {
            (ColorModes.Bitmap, 1) or (ColorModes.Indexed, 8) => (1, true),
            (ColorModes.Grayscale or ColorModes.Duotone, 8 or 16) => (1, true),
            (ColorModes.Rgb, 8 or 16) => (3, true),
            (ColorModes.Cmyk, 8 or 16) => (4, true),
            _ => (0, false),
        };
        if (!form.Known || channels < form.Needed)
        {
            throw new PsdImageException(
                $"'{source.Name}' is of mode {mode} with {channels} channels of {depth} bits, which is not read.");
        }
    }

    private DecodedFile File(ReadOnlySpan<byte> paletteBytes, ReadOnlySpan<byte> resources, ReadOnlySpan<byte> picture)
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
                    Pixels = Picture(picture, palette?.Argb32Entries),
                    BitsPerPixel = channels * depth,
                    Palette = palette,
                    HorizontalResolution = x,
                    VerticalResolution = y,
                },
            ],
        };
    }

    private PsdPalette? Palette(ReadOnlySpan<byte> table, ReadOnlySpan<byte> resources)
    {
        if (mode != ColorModes.Indexed)
        {
            return null;
        }

        if (table.Length < PsdPalette.Bytes)
        {
            throw new PsdImageException($"The palette of '{source.Name}' has {table.Length} bytes, not {PsdPalette.Bytes}.");
        }

        ReadOnlySpan<byte> transparent = PsdResources.Find(resources, TransparencyIndexResource.Number);
        return PsdPalette.Read(table, transparent.IsEmpty ? -1 : TransparencyIndexResource.Read(transparent).TransparencyIndex);
    }

    private static (double X, double Y) Resolution(ReadOnlySpan<byte> resources)
    {
        ReadOnlySpan<byte> data = PsdResources.Find(resources, PsdResources.ResolutionInfo);
        return data.Length < 16
            ? default
            : (BinaryPrimitives.ReadUInt32BigEndian(data) / 65536.0, BinaryPrimitives.ReadUInt32BigEndian(data[8..]) / 65536.0);
    }

    private PixelGrid Picture(ReadOnlySpan<byte> data, int[]? palette)
    {
        int method = data.Length < 2 ? -1 : BinaryPrimitives.ReadUInt16BigEndian(data);
        if (method is not ((int)CompressionMethod.Raw or (int)CompressionMethod.Rle))
        {
            throw new PsdImageException(
                $"The merged picture of '{source.Name}' is missing or compressed by method {method}, which is not read.");
        }

        var rows = new PsdRows(data[2..], method == (int)CompressionMethod.Rle, channels, height, RowBytes);
        int used = UsedChannels();
        var planes = new byte[used][];
        for (int c = 0; c < used; c++)
        {
            planes[c] = new byte[RowBytes];
        }

        PixelGrid pixels = source.NewGrid(width, height);
        try
        {
            for (int y = 0; y < height; y++)
            {
                for (int c = 0; c < used; c++)
                {
                    rows.Read(c, y, planes[c]);
                }

                Combine(planes, palette, pixels.Row(y));
            }
        }
        catch (FrameworkException) when (source.Lenient)
        {
            return pixels; // what was read so far is shown
        }
        catch (FrameworkException e)
        {
            pixels.Dispose();
            throw new PsdImageException($"The picture of '{source.Name}' is damaged.", e);
        }

        return pixels;
    }

    // A channel more than the mode needs is taken for opacity.
    private int UsedChannels() => mode switch
    {
        ColorModes.Rgb => Math.Min(channels, 4),
        ColorModes.Cmyk => Math.Min(channels, 5),
        ColorModes.Grayscale or ColorModes.Duotone => Math.Min(channels, 2),
        _ => 1,
    };

    private void Combine(byte[][] planes, int[]? palette, Span<int> row)
    {
        int colors = mode == ColorModes.Cmyk ? 4 : mode == ColorModes.Rgb ? 3 : 1;
        for (int x = 0; x < row.Length; x++)
        {
            int opacity = planes.Length > colors ? Sample(planes[colors], x) : 255;
            int Level(int channel) => PsdMatte.Lift(Sample(planes[channel], x), opacity);
            row[x] = mode switch
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

    private int Sample(byte[] plane, int x) => depth switch
    {
        16 => ((BinaryPrimitives.ReadUInt16BigEndian(plane.AsSpan(2 * x)) * 255) + 32767) / 65535,
        8 => plane[x],
        _ => BitPacking.Value(plane, x, depth),
    };
}
