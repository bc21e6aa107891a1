using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster.Operations;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD;

/// <content>Resizing, rotation and colour changes, all in place.</content>
public abstract partial class RasterImage
{
    private const int MaxFilterSize = 101;

    /// <summary>Crops the image to a rectangle.</summary>
    /// <param name="rectangle">The rectangle in pixels; it lies within the image.</param>
    public abstract void Crop(Rectangle rectangle);

    /// <summary>Crops the image by margins.</summary>
    /// <param name="leftShift">Columns at the left.</param>
    /// <param name="rightShift">Columns at the right.</param>
    /// <param name="topShift">Rows at the top.</param>
    /// <param name="bottomShift">Rows at the bottom.</param>
    public void Crop(int leftShift, int rightShift, int topShift, int bottomShift)
    {
        Crop(new Rectangle(leftShift, topShift, Width - leftShift - rightShift, Height - topShift - bottomShift));
    }

    /// <summary>Resizes the image with <see cref="ResizeType.Adaptive"/>.</summary>
    /// <param name="newWidth">The width in pixels.</param>
    /// <param name="newHeight">The height in pixels.</param>
    public void Resize(int newWidth, int newHeight) => Resize(newWidth, newHeight, ResizeType.Adaptive);

    /// <summary>Resizes the image.</summary>
    /// <param name="newWidth">The width in pixels.</param>
    /// <param name="newHeight">The height in pixels.</param>
    /// <param name="resizeType">The resampling filter.</param>
    public void Resize(int newWidth, int newHeight, ResizeType resizeType) =>
        Resize(newWidth, newHeight, new ImageResizeSettings { Mode = resizeType });

    /// <summary>Resizes the image.</summary>
    /// <param name="newWidth">The width in pixels.</param>
    /// <param name="newHeight">The height in pixels.</param>
    /// <param name="settings">The resampling filter and the number of colours.</param>
    public void Resize(int newWidth, int newHeight, ImageResizeSettings settings)
    {
        VerifyNotDisposed();
        Verify.NotNull(settings);
        Replace(Resampler.Resize(Pixels, newWidth, newHeight, settings.Mode, settings.BackgroundColor.ToArgb()));
        if (settings.EntriesCount > 0)
        {
            IColorPalette palette = ColorPaletteHelper.GetCloseImagePalette(
                this, settings.EntriesCount, settings.ColorQuantizationMethod);
            Raster.Colors.Ditherer.Apply(Pixels, palette.Argb32Entries, DitheringMethod.Threshold);
            Palette = palette;
        }
    }

    /// <summary>Resizes to a width and keeps the aspect ratio.</summary>
    /// <param name="newWidth">The width in pixels.</param>
    public void ResizeWidthProportionally(int newWidth) =>
        Resize(newWidth, (int)Math.Max(1, Math.Round((double)Height * newWidth / Width)));

    /// <summary>Resizes to a height and keeps the aspect ratio.</summary>
    /// <param name="newHeight">The height in pixels.</param>
    public void ResizeHeightProportionally(int newHeight) =>
        Resize((int)Math.Max(1, Math.Round((double)Width * newHeight / Height)), newHeight);

    /// <summary>Rotates by multiples of 90 degrees and flips, without loss.</summary>
    /// <param name="rotateFlipType">The rotation and flip.</param>
    public void RotateFlip(RotateFlipType rotateFlipType)
    {
        VerifyNotDisposed();
        Replace(Rotation.RotateFlip(Pixels, rotateFlipType));
        if (((int)rotateFlipType & 1) != 0)
        {
            (HorizontalResolution, VerticalResolution) = (VerticalResolution, HorizontalResolution);
        }
    }

    /// <summary>Rotates clockwise about the centre; the image grows to hold the result.</summary>
    /// <param name="angle">The angle in degrees.</param>
    public void Rotate(float angle) => Rotate(angle, true, Color.Transparent);

    /// <summary>Rotates clockwise about the centre.</summary>
    /// <param name="angle">The angle in degrees.</param>
    /// <param name="resizeProportionally">Whether the image grows to hold the result; if not, it keeps its size and
    /// corners are cut off.</param>
    /// <param name="backgroundColor">The colour of uncovered corners.</param>
    public void Rotate(float angle, bool resizeProportionally, Color backgroundColor)
    {
        VerifyNotDisposed();
        if (!float.IsFinite(angle))
        {
            throw Verify.OutOfRange(nameof(angle), angle, "An angle is a finite number.");
        }

        Replace(Rotation.Rotate(Pixels, angle, resizeProportionally, backgroundColor.ToArgb()));
    }

    /// <summary>Dithers the image to a palette that is chosen for it.</summary>
    /// <param name="ditheringMethod">The dithering method.</param>
    /// <param name="bitsCount">The bits of a palette index: 1 (black and white) to 8.</param>
    public void Dither(DitheringMethod ditheringMethod, int bitsCount) => Dither(ditheringMethod, bitsCount, null);

    /// <summary>Dithers the image to a palette.</summary>
    /// <param name="ditheringMethod">The dithering method.</param>
    /// <param name="bitsCount">The bits of a palette index, 1 to 8.</param>
    /// <param name="customPalette">The palette, at most 2 to the power of the bits; <see langword="null"/> for one that
    /// is chosen for the image, black and white at 1 bit.</param>
    public abstract void Dither(DitheringMethod ditheringMethod, int bitsCount, IColorPalette? customPalette);

    /// <summary>Converts the image to grayscale with the luma weights of ITU-R BT.601.</summary>
    public void Grayscale()
    {
        VerifyNotDisposed();
        ColorAdjustment.Grayscale(Pixels);
    }

    /// <summary>Binarizes the image: pixels of at least the threshold become white, the others black.</summary>
    /// <param name="threshold">The luma threshold, 0 to 255.</param>
    public void BinarizeFixed(byte threshold)
    {
        VerifyNotDisposed();
        Binarization.Fixed(Pixels, threshold);
    }

    /// <summary>Binarizes the image at the threshold that separates its histogram best (N. Otsu, 1979).</summary>
    public void BinarizeOtsu()
    {
        VerifyNotDisposed();
        Binarization.Fixed(Pixels, Binarization.OtsuThreshold(Pixels));
    }

    /// <summary>Binarizes the image with an adaptive threshold (D. Bradley and G. Roth, 2007).</summary>
    /// <param name="windowSize">The side of the square around each pixel, in pixels.</param>
    /// <param name="brightnessDifference">How much darker than the mean of the square black is, 0 to 1.</param>
    public void BinarizeBradley(int windowSize, double brightnessDifference)
    {
        new AdaptiveBinarizer(windowSize, brightnessDifference).Process(this);
    }

    /// <summary>Applies gamma correction: above 1 makes colours lighter, below 1 darker; black and white
    /// stay.</summary>
    /// <param name="gamma">The gamma, the inverse of the exponent, above 0.</param>
    public void AdjustGamma(float gamma) => AdjustGamma(gamma, gamma, gamma);

    /// <summary>Applies gamma correction: above 1 makes colours lighter, below 1 darker; black and white
    /// stay.</summary>
    /// <param name="gammaRed">The gamma of red, above 0.</param>
    /// <param name="gammaGreen">The gamma of green, above 0.</param>
    /// <param name="gammaBlue">The gamma of blue, above 0.</param>
    public void AdjustGamma(float gammaRed, float gammaGreen, float gammaBlue)
    {
        VerifyNotDisposed();
        foreach (float gamma in (ReadOnlySpan<float>)[gammaRed, gammaGreen, gammaBlue])
        {
            if (!float.IsFinite(gamma) || gamma <= 0)
            {
                throw Verify.OutOfRange("gamma", gamma, "A gamma is a finite number above 0.");
            }
        }

        ColorAdjustment.Gamma(Pixels, gammaRed, gammaGreen, gammaBlue);
    }

    /// <summary>Adjusts the brightness: adds to red, green and blue.</summary>
    /// <param name="brightness">The amount, -255 (all black) to 255 (all white).</param>
    public void AdjustBrightness(int brightness)
    {
        VerifyNotDisposed();
        Verify.InRange(brightness, -255, 255);
        ColorAdjustment.Brightness(Pixels, brightness);
    }

    /// <summary>Adjusts the contrast about middle gray.</summary>
    /// <param name="contrast">The amount, -100 (all gray) to 100 (only black and full colours).</param>
    public void AdjustContrast(float contrast)
    {
        VerifyNotDisposed();
        Verify.InRange(contrast, -100, 100);
        ColorAdjustment.Contrast(Pixels, contrast);
    }

    /// <summary>Multiplies the components of each pixel by a matrix.</summary>
    /// <param name="matrix">A matrix of 5 × 5 numbers, row by row: the contributions of red, green, blue, alpha and 1
    /// to red, green, blue and alpha; the fifth column is not used.</param>
    /// <param name="flag">Which colours are changed.</param>
    public void ApplyColorMatrix(float[] matrix, ColorMatrixFlag flag)
    {
        VerifyNotDisposed();
        Verify.NotNull(matrix);
        if (matrix.Length != 25 || !Array.TrueForAll(matrix, float.IsFinite))
        {
            throw new ArgumentException($"A colour matrix has 25 finite numbers; {matrix.Length} were given.");
        }

        if (!Enum.IsDefined(flag))
        {
            throw Verify.OutOfRange(nameof(flag), flag, "There is no such choice of colours.");
        }

        ColorAdjustment.Matrix(Pixels, matrix, flag);
    }

    /// <summary>Applies a neighbourhood filter.</summary>
    /// <param name="filterType">The filter.</param>
    /// <param name="size">The side of the square, an odd number of 3 to 101 pixels; edges and emboss always use
    /// 3.</param>
    public void Filter(ImageFilterType filterType, int size)
    {
        VerifyNotDisposed();
        Verify.InRange(size, 3, MaxFilterSize);
        if (size % 2 == 0)
        {
            throw Verify.OutOfRange(nameof(size), size, "The side of a filter is an odd number of pixels.");
        }

        Replace(Filters.Apply(Pixels, filterType, size));
    }

    /// <summary>Replaces the pixels.</summary>
    internal abstract void Replace(PixelGrid pixels);
}
