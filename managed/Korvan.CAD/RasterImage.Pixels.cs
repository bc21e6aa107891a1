using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD;

/// <content>Access to pixels, one by one and in blocks.</content>
public abstract partial class RasterImage
{
    private const int BandPixels = 1 << 18;

    /// <summary>Returns the colour of a pixel.</summary>
    /// <param name="x">Its column, from 0 at the left.</param>
    /// <param name="y">Its row, from 0 at the top.</param>
    /// <returns>The colour.</returns>
    public Color GetPixel(int x, int y) => Color.FromArgb(GetArgb32Pixel(x, y));

    /// <summary>Sets the colour of a pixel.</summary>
    /// <param name="x">Its column, from 0 at the left.</param>
    /// <param name="y">Its row, from 0 at the top.</param>
    /// <param name="color">The colour.</param>
    public void SetPixel(int x, int y, Color color) => SetArgb32Pixel(x, y, color.ToArgb());

    /// <summary>Returns a pixel as a 32-bit ARGB value: alpha, red, green, blue from the highest byte on.</summary>
    /// <param name="x">Its column, from 0 at the left.</param>
    /// <param name="y">Its row, from 0 at the top.</param>
    /// <returns>The ARGB value.</returns>
    public int GetArgb32Pixel(int x, int y)
    {
        VerifyInside(new Rectangle(x, y, 1, 1));
        return Pixels.Row(y)[x];
    }

    /// <summary>Sets a pixel to a 32-bit ARGB value: alpha, red, green, blue from the highest byte on.</summary>
    /// <param name="x">Its column, from 0 at the left.</param>
    /// <param name="y">Its row, from 0 at the top.</param>
    /// <param name="argb32Color">The value.</param>
    public void SetArgb32Pixel(int x, int y, int argb32Color)
    {
        VerifyInside(new Rectangle(x, y, 1, 1));
        Pixels.WritableRow(y)[x] = argb32Color;
    }

    /// <summary>Returns a block of pixels as 32-bit ARGB values, row by row.</summary>
    /// <param name="rectangle">The block.</param>
    /// <returns>The ARGB values.</returns>
    public int[] LoadArgb32Pixels(Rectangle rectangle)
    {
        VerifyInside(rectangle);
        var pixels = new int[(long)rectangle.Width * rectangle.Height];
        for (int y = 0; y < rectangle.Height; y++)
        {
            Pixels.Row(rectangle.Y + y).Slice(rectangle.X, rectangle.Width).CopyTo(pixels.AsSpan(y * rectangle.Width));
        }

        return pixels;
    }

    /// <summary>Sets a block of pixels.</summary>
    /// <param name="rectangle">The block.</param>
    /// <param name="pixels">Its pixels as 32-bit ARGB values, row by row.</param>
    public void SaveArgb32Pixels(Rectangle rectangle, int[] pixels)
    {
        Verify.NotNull(pixels);
        VerifyInside(rectangle);
        VerifyCount(rectangle, pixels.Length);
        for (int y = 0; y < rectangle.Height; y++)
        {
            Span<int> row = Pixels.WritableRow(rectangle.Y + y);
            pixels.AsSpan(y * rectangle.Width, rectangle.Width).CopyTo(row[rectangle.X..]);
        }
    }

    /// <summary>Returns a block of pixels as colours, row by row.</summary>
    /// <param name="rectangle">The block.</param>
    /// <returns>The colours.</returns>
    public Color[] LoadPixels(Rectangle rectangle) => Array.ConvertAll(LoadArgb32Pixels(rectangle), Color.FromArgb);

    /// <summary>Sets a block of pixels.</summary>
    /// <param name="rectangle">The block.</param>
    /// <param name="pixels">Its colours, row by row.</param>
    public void SavePixels(Rectangle rectangle, Color[] pixels)
    {
        Verify.NotNull(pixels);
        SaveArgb32Pixels(rectangle, Array.ConvertAll(pixels, static color => color.ToArgb()));
    }

    /// <summary>Returns a block of pixels as bytes, row by row, in the format of the settings.</summary>
    /// <param name="rectangle">The block.</param>
    /// <param name="settings">The format of the bytes.</param>
    /// <returns>The bytes.</returns>
    public byte[] LoadRawData(Rectangle rectangle, RawDataSettings settings)
    {
        Verify.NotNull(settings);
        VerifyInside(rectangle);
        return RawData.Pack(Pixels, rectangle, settings);
    }

    /// <summary>Sets a block of pixels from bytes.</summary>
    /// <param name="data">The bytes, row by row.</param>
    /// <param name="rectangle">The block.</param>
    /// <param name="settings">The format of the bytes.</param>
    public void SaveRawData(byte[] data, Rectangle rectangle, RawDataSettings settings)
    {
        Verify.NotNull(data);
        Verify.NotNull(settings);
        VerifyInside(rectangle);
        RawData.Unpack(data, Pixels, rectangle, settings);
    }

    /// <summary>Passes a block of pixels on in bands, so that no large array is needed.</summary>
    /// <param name="rectangle">The block.</param>
    /// <param name="partialPixelLoader">The receiver of the bands, for example another image.</param>
    public void LoadPartialArgb32Pixels(Rectangle rectangle, IPartialArgb32PixelLoader partialPixelLoader)
    {
        Verify.NotNull(partialPixelLoader);
        InBands(rectangle, band => partialPixelLoader.Process(band, LoadArgb32Pixels(band)));
    }

    /// <summary>Hands a block of pixels on in bands, as colours.</summary>
    /// <param name="rectangle">The block.</param>
    /// <param name="partialPixelLoader">The receiver of the bands, for example another image.</param>
    public void LoadPartialPixels(Rectangle rectangle, IPartialPixelLoader partialPixelLoader)
    {
        Verify.NotNull(partialPixelLoader);
        InBands(rectangle, band => partialPixelLoader.ProcessColors(band, LoadPixels(band)));
    }

    /// <summary>Hands a block of pixels on in bands, as bytes.</summary>
    /// <param name="rectangle">The block.</param>
    /// <param name="settings">The format of the bytes.</param>
    /// <param name="partialRawDataLoader">The receiver of the bands, for example another image.</param>
    public void LoadPartialRawData(
        Rectangle rectangle, RawDataSettings settings, IPartialRawDataLoader partialRawDataLoader)
    {
        Verify.NotNull(partialRawDataLoader);
        InBands(rectangle, band => partialRawDataLoader.ProcessRawData(band, LoadRawData(band, settings), settings));
    }

    /// <summary>Applies a processor to all pixels, in bands of whole rows.</summary>
    /// <param name="processor">The processor, for example a <see cref="TransparencySupporter"/>.</param>
    public void ApplyProcessor(IBufferProcessor processor)
    {
        Verify.NotNull(processor);
        var settings = new RawDataSettings(PixelDataFormat.Rgb32Bpp, Width);
        InBands(Bounds, band =>
        {
            byte[] pixels = LoadRawData(band, settings);
            processor.ProcessBuffer(pixels, pixels.Length);
            SaveRawData(pixels, band, settings);
        });
    }

    private protected void VerifyInside(Rectangle area)
    {
        VerifyNotDisposed();
        PixelGrid pixels = Pixels;
        if (area.X < 0 || area.Y < 0 || area.Width < 1 || area.Height < 1
            || area.Width > pixels.Width - area.X || area.Height > pixels.Height - area.Y)
        {
            throw new ArgumentOutOfRangeException(
                null, $"{area} does not lie in an image of {pixels.Width} × {pixels.Height} pixels.");
        }
    }

    private static void VerifyCount(Rectangle area, int count)
    {
        if (count != (long)area.Width * area.Height)
        {
            throw new ArgumentException($"{area.Width} × {area.Height} pixels are set, but {count} were given.");
        }
    }

    private void InBands(Rectangle area, Action<Rectangle> take)
    {
        VerifyInside(area);
        int rows = Math.Max(1, BandPixels / area.Width);
        for (int y = 0; y < area.Height; y += rows)
        {
            take(new Rectangle(area.X, area.Y + y, area.Width, Math.Min(rows, area.Height - y)));
        }
    }
}
