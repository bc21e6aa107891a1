using System;
using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD;

/// <summary>A raster image whose pixels are all loaded, in storage of the <see cref="Cache"/>.</summary>
public abstract class RasterCachedImage : RasterImage, IPartialArgb32PixelLoader, IPartialPixelLoader,
    IPartialRawDataLoader
{
    private readonly DecodedFile _file;
    private readonly int _index;
    private readonly List<RasterImage> _pages = [];
    private PixelGrid _pixels;

    internal RasterCachedImage(DecodedFile file)
        : this(file, 0)
    {
        _pages.Add(this);
        for (int i = 1; i < file.Frames.Count; i++)
        {
            _pages.Add(new RasterFileImage(file, i) { Container = this });
        }
    }

    /// <summary>Creates the image of one page of a file.</summary>
    private protected RasterCachedImage(DecodedFile file, int index)
    {
        (_file, _index) = (file, index);
        DecodedFrame frame = file.Frames[index];
        _pixels = frame.Pixels;
        Palette = frame.Palette;
        (ExifData, XmpData) = (file.Exif, file.Xmp);
        HorizontalResolution = frame.HorizontalResolution > 0 ? frame.HorizontalResolution : HorizontalResolution;
        VerticalResolution = frame.VerticalResolution > 0 ? frame.VerticalResolution : VerticalResolution;
    }

    /// <inheritdoc/>
    public override FileFormat FileFormat => _file.Format;

    /// <inheritdoc/>
    public override int BitsPerPixel => _file.Frames[_index].BitsPerPixel;

    /// <inheritdoc/>
    public override int PageCount => Math.Max(1, _pages.Count);

    /// <inheritdoc/>
    public override string PageTitle => _file.Frames[_index].Title;

    /// <inheritdoc/>
    public override bool IsCached => true;

    internal override PixelGrid Pixels
    {
        get
        {
            VerifyNotDisposed();
            return _pixels;
        }
    }

    /// <inheritdoc/>
    public override void CacheData() => VerifyNotDisposed();

    /// <inheritdoc/>
    public override RasterImage GetPage(int index)
    {
        if ((uint)index >= (uint)PageCount)
        {
            throw Verify.OutOfRange(nameof(index), index, $"The image has {PageCount} pages, from 0 on.");
        }

        return _pages.Count == 0 ? this : _pages[index];
    }

    /// <inheritdoc/>
    public override void Crop(Rectangle rectangle)
    {
        VerifyNotDisposed();
        VerifyInside(rectangle);
        if (Cache.ExactReallocateOnly)
        {
            Replace(_pixels.Copy(rectangle));
        }
        else
        {
            _pixels.CropInPlace(rectangle);
        }
    }

    /// <inheritdoc/>
    public override void Dither(DitheringMethod ditheringMethod, int bitsCount, IColorPalette? customPalette)
    {
        VerifyNotDisposed();
        if (!Enum.IsDefined(ditheringMethod))
        {
            throw Verify.OutOfRange(nameof(ditheringMethod), ditheringMethod, "There is no such pattern.");
        }

        int[] palette = Raster.Colors.DitherPalette.For(_pixels, bitsCount, customPalette);
        if (Array.TrueForAll(palette, PixelGrid.IsGray))
        {
            Raster.Operations.ColorAdjustment.Grayscale(_pixels); // luma decides, not the mean of red, green and blue
        }

        Raster.Colors.Ditherer.Apply(_pixels, palette, ditheringMethod);
        Palette = new ColorPalette(palette);
    }

    /// <summary>Replaces a block of pixels.</summary>
    /// <param name="pixelsRectangle">The block.</param>
    /// <param name="pixels">Its pixels as 32-bit ARGB values, row by row.</param>
    public void Process(Rectangle pixelsRectangle, int[] pixels) => SaveArgb32Pixels(pixelsRectangle, pixels);

    /// <summary>Replaces a block of pixels.</summary>
    /// <param name="pixelsRectangle">The block.</param>
    /// <param name="pixels">Its pixels, row by row.</param>
    public void ProcessColors(Rectangle pixelsRectangle, Color[] pixels) => SavePixels(pixelsRectangle, pixels);

    /// <summary>Replaces a block of pixels.</summary>
    /// <param name="dataRectangle">The block.</param>
    /// <param name="data">Its bytes, row by row.</param>
    /// <param name="settings">The format of the bytes.</param>
    public void ProcessRawData(Rectangle dataRectangle, byte[] data, RawDataSettings settings) =>
        SaveRawData(data, dataRectangle, settings);

    internal override void Replace(PixelGrid pixels)
    {
        PixelGrid old = _pixels;
        _pixels = pixels;
        old.Dispose();
    }

    internal override void ReleaseManagedResources()
    {
        _pixels.Dispose();
        foreach (RasterImage page in _pages)
        {
            if (page != this)
            {
                page.Dispose();
            }
        }

        base.ReleaseManagedResources();
    }
}
