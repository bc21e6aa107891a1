using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Exif;
using Korvan.CAD.Formats;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD;

/// <summary>A raster image. Pixels have 8 bits each of red, green, blue and alpha, whatever the file stored; rows run
/// from the top down.</summary>
public abstract partial class RasterImage
    : Image, IPixelContent, IRasterImageArgb32PixelLoader, IRasterImagePixelLoader, IRasterImageRawDataLoader
{
    private const double DefaultResolution = 96;

    internal RasterImage()
    {
    }

    /// <summary>Gets the format of the file that the image was read from.</summary>
    public abstract FileFormat FileFormat { get; }

    /// <summary>Gets the bits per pixel in the file.</summary>
    public abstract int BitsPerPixel { get; }

    /// <summary>Gets the number of pages or animation frames.</summary>
    public abstract int PageCount { get; }

    /// <summary>Gets the name of the page in the file; empty for none.</summary>
    public abstract string PageTitle { get; }

    /// <summary>Gets the horizontal resolution in pixels per inch, above 0; 96 where the file states none.</summary>
    public double HorizontalResolution { get; private protected set; } = DefaultResolution;

    /// <summary>Gets the vertical resolution in pixels per inch, above 0; 96 where the file states none.</summary>
    public double VerticalResolution { get; private protected set; } = DefaultResolution;

    /// <summary>Gets whether any pixel is not opaque.</summary>
    public bool HasAlpha => !Pixels.IsOpaque();

    /// <inheritdoc/>
    public override int Width => Pixels.Width;

    /// <inheritdoc/>
    public override int Height => Pixels.Height;

    /// <inheritdoc/>
    public RawDataSettings RawDataSettings => new(PixelDataFormat.Rgb32Bpp, Width);

    /// <inheritdoc/>
    public bool IsRawDataAvailable => !Disposed;

    /// <summary>Gets or sets the Exif metadata; <see langword="null"/> where the file has none.</summary>
    public ExifData? ExifData { get; set; }

    /// <summary>Gets or sets the XMP metadata; <see langword="null"/> where the file has none.</summary>
    public XmpPacketWrapper? XmpData { get; set; }

    internal abstract PixelGrid Pixels { get; }

    /// <summary>Returns a page or frame. It belongs to this image and is disposed with it.</summary>
    /// <param name="index">The index, from 0.</param>
    /// <returns>The page.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such page.</exception>
    public abstract RasterImage GetPage(int index);

    /// <summary>Sets the resolution in pixels per inch; pixels do not change.</summary>
    /// <param name="dpiX">Pixels per inch along X, above 0.</param>
    /// <param name="dpiY">Pixels per inch along Y, above 0.</param>
    public void SetResolution(double dpiX, double dpiY)
    {
        var verified = new ResolutionSetting(dpiX, dpiY);
        (HorizontalResolution, VerticalResolution) = (verified.HorizontalResolution, verified.VerticalResolution);
    }

    /// <inheritdoc/>
    IRasterPages IPixelContent.OpenPages(ImageOptionsBase options, bool all) => new Frames(this, options, all);

    /// <inheritdoc/>
    internal override string Content => $"{Width} × {Height} pixels";

    /// <inheritdoc/>
    private protected override FileFormat NativeFormat => FileFormat;

    /// <summary>Copies of the pages; one image where the format has no pages.</summary>
    private sealed class Frames(RasterImage image, ImageOptionsBase options, bool all) : IRasterPages
    {
        public IReadOnlyList<string> Titles { get; } =
            [.. Enumerable.Range(0, all ? image.PageCount : 1)
                .Select(i => all ? image.GetPage(i).PageTitle : image.PageTitle)];

        public RasterPageData Render(int index)
        {
            RasterImage page = all ? image.GetPage(index) : image;
            ResolutionSetting? set = options.ResolutionSettings;
            double across = set?.HorizontalResolution ?? page.HorizontalResolution;
            double down = set?.VerticalResolution ?? page.VerticalResolution;
            return new RasterPageData(page.Pixels.CopyOnWrite(), across, down)
            {
                Exif = image.ExifData,
                Xmp = image.XmpData,
            }.RotatedFlipped(options.Rotation);
        }
    }
}
