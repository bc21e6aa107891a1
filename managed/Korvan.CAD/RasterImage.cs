using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Exif;
using Korvan.CAD.Formats;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD;

/// <summary>A picture of pixels. Pixels are colours of 8 bits each for red, green, blue and opacity, whatever the file
/// stored; rows run from the top down.</summary>
public abstract partial class RasterImage
    : Image, IPixelContent, IRasterImageArgb32PixelLoader, IRasterImagePixelLoader, IRasterImageRawDataLoader
{
    private const double DefaultResolution = 96;

    internal RasterImage()
    {
    }

    /// <summary>Gets the format of the file that the picture was read from.</summary>
    public abstract FileFormat FileFormat { get; }

    /// <summary>Gets how many bits the file had for a pixel.</summary>
    public abstract int BitsPerPixel { get; }

    /// <summary>Gets how many pictures the file holds: pages, or frames of an animation.</summary>
    public abstract int PageCount { get; }

    /// <summary>Gets the name of the page in its file; empty for none.</summary>
    public abstract string PageTitle { get; }

    /// <summary>Gets or sets the pixels an inch along X, above 0; 96 where the file states none.</summary>
    public double HorizontalResolution { get; private protected set; } = DefaultResolution;

    /// <summary>Gets or sets the pixels an inch along Y, above 0; 96 where the file states none.</summary>
    public double VerticalResolution { get; private protected set; } = DefaultResolution;

    /// <summary>Gets whether any pixel is less than opaque.</summary>
    public bool HasAlpha => !Pixels.IsOpaque();

    /// <inheritdoc/>
    public override int Width => Pixels.Width;

    /// <inheritdoc/>
    public override int Height => Pixels.Height;

    /// <inheritdoc/>
    public RawDataSettings RawDataSettings => new(PixelDataFormat.Rgb32Bpp, Width);

    /// <inheritdoc/>
    public bool IsRawDataAvailable => !Disposed;

    /// <summary>Gets or sets what the camera says of the picture; nothing where the file holds no such data.</summary>
    public ExifData? ExifData { get; set; }

    /// <summary>Gets or sets metadata as properties; nothing where the file holds none.</summary>
    public XmpPacketWrapper? XmpData { get; set; }

    internal abstract PixelGrid Pixels { get; }

    /// <summary>Gives a page or frame. It belongs to this image and lives as long.</summary>
    /// <param name="index">Its number, from 0.</param>
    /// <returns>A page or frame.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such page.</exception>
    public abstract RasterImage GetPage(int index);

    /// <summary>Sets how many pixels an inch of paper has; pixels do not change.</summary>
    /// <param name="dpiX">Pixels an inch along X, above 0.</param>
    /// <param name="dpiY">Pixels an inch along Y, above 0.</param>
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

    /// <summary>Copies of the pages; a single picture where the format has no pages.</summary>
    private sealed class Frames(RasterImage image, ImageOptionsBase options, bool all) : IRasterPages
    {
        public IReadOnlyList<string> Titles { get; } =
            [.. Enumerable.Range(0, all ? image.PageCount : 1).Select(i => all ? image.GetPage(i).PageTitle : image.PageTitle)];

        public RasterPageData Render(int index)
        {
            RasterImage page = all ? image.GetPage(index) : image;
            ResolutionSetting? set = options.ResolutionSettings;
            double across = set?.HorizontalResolution ?? page.HorizontalResolution;
            double down = set?.VerticalResolution ?? page.VerticalResolution;
            return new RasterPageData(page.Pixels.Copy(), across, down)
            {
                Exif = image.ExifData,
                Xmp = image.XmpData,
            }.RotatedFlipped(options.Rotation);
        }
    }
}
