using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Operations;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD;

/// <content>Changes of size, direction and colour. All of them change this picture in place.</content>
public abstract partial class RasterImage
{
    private const int MaxFilterSize = 101;

    /// <summary>Keeps a part of the picture.</summary>
    /// <param name="rectangle">The part.</param>
    public abstract void Crop(Rectangle rectangle);

    /// <summary>Cuts stripes off the sides.</summary>
    /// <param name="leftShift">Columns at the left.</param>
    /// <param name="rightShift">Columns at the right.</param>
    /// <param name="topShift">Rows at the top.</param>
    /// <param name="bottomShift">Rows at the bottom.</param>
    public void Crop(int leftShift, int rightShift, int topShift, int bottomShift)
    {
        Crop(new Rectangle(leftShift, topShift, Width - leftShift - rightShift, Height - topShift - bottomShift));
    }

    /// <summary>Changes the size, with <see cref="ResizeType.Adaptive"/>.</summary>
    /// <param name="newWidth">The width in pixels.</param>
    /// <param name="newHeight">The height in pixels.</param>
    public void Resize(int newWidth, int newHeight) => Resize(newWidth, newHeight, ResizeType.Adaptive);

    /// <summary>Changes the size.</summary>
    /// <param name="newWidth">The width in pixels.</param>
    /// <param name="newHeight">The height in pixels.</param>
    /// <param name="resizeType">How pixels are found.</param>
    public void Resize(int newWidth, int newHeight, ResizeType resizeType) =>
        Resize(newWidth, newHeight, new ImageResizeSettings { Mode = resizeType });

    /// <summary>Changes the size.</summary>
    /// <param name="newWidth">The width in pixels.</param>
    /// <param name="newHeight">The height in pixels.</param>
    /// <param name="settings">How pixels are found, and what becomes of few colours.</param>
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

    /// <summary>Changes the width, and the height by as much.</summary>
    /// <param name="newWidth">The width in pixels.</param>
    public void ResizeWidthProportionally(int newWidth) =>
        Resize(newWidth, (int)Math.Max(1, Math.Round((double)Height * newWidth / Width)));

    /// <summary>Changes the height, and the width by as much.</summary>
    /// <param name="newHeight">The height in pixels.</param>
    public void ResizeHeightProportionally(int newHeight) =>
        Resize((int)Math.Max(1, Math.Round((double)Width * newHeight / Height)), newHeight);

    /// <summary>Turns by quarters and mirrors, without loss.</summary>
    /// <param name="rotateFlipType">What is done.</param>
    public void RotateFlip(RotateFlipType rotateFlipType)
    {
        VerifyNotDisposed();
        Replace(Rotation.RotateFlip(Pixels, rotateFlipType));
        if (((int)rotateFlipType & 1) != 0)
        {
            (HorizontalResolution, VerticalResolution) = (VerticalResolution, HorizontalResolution);
        }
    }

    /// <summary>Turns clockwise around the middle; the picture becomes as large as the turned one.</summary>
    /// <param name="angle">Degrees.</param>
    public void Rotate(float angle) => Rotate(angle, true, Color.Transparent);

    /// <summary>Turns clockwise around the middle.</summary>
    /// <param name="angle">Degrees.</param>
    /// <param name="resizeProportionally">Whether the picture becomes as large as the turned one; if not, it keeps its
    /// size and loses corners.</param>
    /// <param name="backgroundColor">The colour of the corners that come in.</param>
    public void Rotate(float angle, bool resizeProportionally, Color backgroundColor)
    {
        VerifyNotDisposed();
        if (!float.IsFinite(angle))
        {
            throw Verify.OutOfRange(nameof(angle), angle, "An angle is a finite number.");
        }

        Replace(Rotation.Rotate(Pixels, angle, resizeProportionally, backgroundColor.ToArgb()));
    }

    /// <summary>Brings the picture to few colours, which are chosen for it.</summary>
    /// <param name="ditheringMethod">The pattern.</param>
    /// <param name="bitsCount">The bits that a number of a colour takes: 1 (black and white) to 8.</param>
    public void Dither(DitheringMethod ditheringMethod, int bitsCount) => Dither(ditheringMethod, bitsCount, null);

    /// <summary>Brings the picture to few colours.</summary>
    /// <param name="ditheringMethod">The pattern.</param>
    /// <param name="bitsCount">The bits that a number of a colour takes: 1 to 8.</param>
    /// <param name="customPalette">The colours, at most 2 to the power of the bits; nothing for colours that are chosen
    /// for the picture, black and white at 1 bit.</param>
    public abstract void Dither(DitheringMethod ditheringMethod, int bitsCount, IColorPalette? customPalette);

    /// <summary>Takes the colours away; lightness is weighted as in ITU-R BT.601.</summary>
    public void Grayscale()
    {
        VerifyNotDisposed();
        ColorAdjustment.Grayscale(Pixels);
    }

    /// <summary>Makes pixels white that are at least as light as a threshold, the others black.</summary>
    /// <param name="threshold">The threshold, 0 to 255.</param>
    public void BinarizeFixed(byte threshold)
    {
        VerifyNotDisposed();
        Binarization.Fixed(Pixels, threshold);
    }

    /// <summary>Makes the picture black and white at the threshold that parts its lightness best (N. Otsu,
    /// 1979).</summary>
    public void BinarizeOtsu()
    {
        VerifyNotDisposed();
        Binarization.Fixed(Pixels, Binarization.OtsuThreshold(Pixels));
    }

    /// <summary>Makes the picture black and white; each pixel is compared with what is around it.</summary>
    /// <param name="windowSize">The side of the square that is compared with, in pixels.</param>
    /// <param name="brightnessDifference">How much darker than the mean of the square black is, 0 to 1.</param>
    public void BinarizeBradley(int windowSize, double brightnessDifference)
    {
        new AdaptiveBinarizer(windowSize, brightnessDifference).Process(this);
    }

    /// <summary>Makes colours lighter (above 1) or darker (below 1); black and white stay.</summary>
    /// <param name="gamma">The exponent's inverse, above 0.</param>
    public void AdjustGamma(float gamma) => AdjustGamma(gamma, gamma, gamma);

    /// <summary>Makes colours lighter (above 1) or darker (below 1); black and white stay.</summary>
    /// <param name="gammaRed">The exponent's inverse for red, above 0.</param>
    /// <param name="gammaGreen">The exponent's inverse for green, above 0.</param>
    /// <param name="gammaBlue">The exponent's inverse for blue, above 0.</param>
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

    /// <summary>Adds to red, green and blue.</summary>
    /// <param name="brightness">What is added, -255 (all black) to 255 (all white).</param>
    public void AdjustBrightness(int brightness)
    {
        VerifyNotDisposed();
        Verify.InRange(brightness, -255, 255);
        ColorAdjustment.Brightness(Pixels, brightness);
    }

    /// <summary>Spreads colours away from the middle grey, or draws them to it.</summary>
    /// <param name="contrast">How much, -100 (all grey) to 100 (only black and full colours).</param>
    public void AdjustContrast(float contrast)
    {
        VerifyNotDisposed();
        Verify.InRange(contrast, -100, 100);
        ColorAdjustment.Contrast(Pixels, contrast);
    }

    /// <summary>Gives each pixel the product of its parts with a matrix.</summary>
    /// <param name="matrix">25 numbers, row by row: what red, green, blue, opacity and 1 add to red, green, blue and
    /// opacity; the fifth column is not used.</param>
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

    /// <summary>Changes pixels by what is around them.</summary>
    /// <param name="filterType">The filter.</param>
    /// <param name="size">The side of the square that counts, an odd number of 3 to 101 pixels; edges and emboss always
    /// take 3.</param>
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

    /// <summary>Takes other pixels in the place of these.</summary>
    internal abstract void Replace(PixelGrid pixels);
}
