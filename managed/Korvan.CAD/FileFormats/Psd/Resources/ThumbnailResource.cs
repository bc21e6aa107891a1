using System;
using System.Buffers.Binary;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Codecs;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.FileFormats.Psd.Resources;

/// <summary>The resource of a thumbnail, number 1036.</summary>
public class ThumbnailResource : ResourceBlock
{
    internal const int Number = 1036;
    private const int HeaderBytes = 28;
    private const int Quality = 85;

    private byte[] _jpegData = [];

    /// <summary>Creates a block.</summary>
    /// <param name="jpegData">The thumbnail as a JPEG file.</param>
    /// <exception cref="JpegException">The bytes are not a JPEG file.</exception>
    public ThumbnailResource(byte[] jpegData)
        : this(Number, jpegData)
    {
    }

    /// <summary>Creates a block.</summary>
    /// <param name="image">The image to scale down.</param>
    /// <param name="largestSide">The longer side of the thumbnail in pixels, 1 to 1024.</param>
    public ThumbnailResource(RasterImage image, int largestSide)
        : this(Number, Thumbnail(image, largestSide))
    {
    }

    private protected ThumbnailResource(int id, byte[] jpegData)
        : base(id)
    {
        JpegData = jpegData;
    }

    /// <summary>Gets the width of the thumbnail in pixels.</summary>
    public int Width { get; private set; }

    /// <summary>Gets the height of the thumbnail in pixels.</summary>
    public int Height { get; private set; }

    /// <summary>Gets or sets the thumbnail as a JPEG file.</summary>
    /// <exception cref="JpegException">The bytes are not a JPEG file.</exception>
    public byte[] JpegData
    {
        get => (byte[])_jpegData.Clone();
        set
        {
            Verify.NotNull(value);
            using PixelGrid pixels =
                JpegCodec.Decompress(new RasterSource(value, "the thumbnail", false), value, true, out _);
            (Width, Height) = (pixels.Width, pixels.Height);
            _jpegData = (byte[])value.Clone();
            Change();
        }
    }

    /// <inheritdoc/>
    public override byte[] ToBytes()
    {
        int rowBytes = ((Width * 24) + 31) / 32 * 4;
        byte[] data = [.. new byte[HeaderBytes], .. _jpegData];
        Span<byte> header = data;
        BinaryPrimitives.WriteInt32BigEndian(header, 1); // JPEG
        BinaryPrimitives.WriteInt32BigEndian(header[4..], Width);
        BinaryPrimitives.WriteInt32BigEndian(header[8..], Height);
        BinaryPrimitives.WriteInt32BigEndian(header[12..], rowBytes);
        BinaryPrimitives.WriteInt32BigEndian(header[16..], rowBytes * Height);
        BinaryPrimitives.WriteInt32BigEndian(header[20..], _jpegData.Length);
        BinaryPrimitives.WriteInt16BigEndian(header[24..], 24);
        BinaryPrimitives.WriteInt16BigEndian(header[26..], 1);
        return data;
    }

    internal static byte[] JpegOf(ReadOnlySpan<byte> data, int id)
    {
        if (data.Length < HeaderBytes || BinaryPrimitives.ReadInt32BigEndian(data) != 1)
        {
            throw new PsdImageResourceException($"Resource {id} has {data.Length} bytes and holds no JPEG thumbnail.");
        }

        return data[HeaderBytes..].ToArray();
    }

    private static byte[] Thumbnail(RasterImage image, int largestSide)
    {
        Verify.NotNull(image);
        Verify.InRange(largestSide, 1, 1024);
        double scale = Math.Min(1, (double)largestSide / Math.Max(image.Width, image.Height));
        int width = (int)Math.Max(1, Math.Round(image.Width * scale));
        int height = (int)Math.Max(1, Math.Round(image.Height * scale));
        using PixelGrid pixels =
            Raster.Operations.Resampler.Resize(image.Pixels, width, height, ResizeType.Adaptive, 0);
        pixels.Flatten(-1);
        return JpegCodec.Compress(pixels, Jpeg.JpegCompressionColorMode.YCbCr, Quality, false);
    }
}
