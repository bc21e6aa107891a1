using System;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Operations;

/// <summary>Adjusts the colours of pixels one by one.</summary>
internal static class ColorAdjustment
{
    internal static void Grayscale(PixelGrid pixels) =>
        Each(pixels, static pixel => (pixel & PixelGrid.Opaque) | (PixelGrid.Luma(pixel) * 0x010101));

    /// <summary>Adds to each component, from -255 to 255.</summary>
    internal static void Brightness(PixelGrid pixels, int by) =>
        Curves(pixels, Table(value => value + by));

    /// <summary>Changes the contrast about middle gray; -100 makes all gray, 100 leaves black and full
    /// colours.</summary>
    internal static void Contrast(PixelGrid pixels, double by)
    {
        double factor = by >= 100 ? 1e6 : by > 0 ? 100 / (100 - by) : (100 + by) / 100;
        Curves(pixels, Table(value => ((value - 127.5) * factor) + 127.5));
    }

    internal static void Gamma(PixelGrid pixels, double red, double green, double blue)
    {
        static Func<double, double> Curve(double gamma) => value => Math.Pow(value / 255, 1 / gamma) * 255;
        Curves(pixels, Table(Curve(red)), Table(Curve(green)), Table(Curve(blue)));
    }

    /// <summary>Multiplies red, green, blue, alpha and 1 by a matrix of 5 × 5.</summary>
    internal static void Matrix(PixelGrid pixels, float[] matrix, ColorMatrixFlag flag)
    {
        Each(pixels, pixel =>
        {
            bool gray = PixelGrid.IsGray(pixel);
            bool skip = (flag == ColorMatrixFlag.SkipGrays && gray) || (flag == ColorMatrixFlag.AltGrays && !gray);
            return skip ? pixel : Multiply(pixel, matrix);
        });
    }

    internal static void Each(PixelGrid pixels, Func<int, int> change)
    {
        int last = 0;
        int result = change(0);
        for (int y = 0; y < pixels.Height; y++)
        {
            foreach (ref int pixel in pixels.WritableRow(y))
            {
                if (pixel != last)
                {
                    last = pixel;
                    result = change(pixel);
                }

                pixel = result;
            }
        }
    }

    private static int Multiply(int pixel, float[] m)
    {
        Span<float> from = [(pixel >> 16) & 255, (pixel >> 8) & 255, pixel & 255, pixel >>> 24, 255];
        Span<int> shifts = [16, 8, 0, 24];
        int result = 0;
        for (int column = 0; column < 4; column++)
        {
            float sum = 0;
            for (int row = 0; row < 5; row++)
            {
                sum += from[row] * m[(row * 5) + column];
            }

            result |= (int)Math.Clamp(sum + 0.5f, 0, 255) << shifts[column];
        }

        return result;
    }

    private static void Curves(PixelGrid pixels, byte[] all) => Curves(pixels, all, all, all);

    private static void Curves(PixelGrid pixels, byte[] red, byte[] green, byte[] blue)
    {
        for (int y = 0; y < pixels.Height; y++)
        {
            foreach (ref int pixel in pixels.WritableRow(y))
            {
                int warm = (red[(byte)(pixel >> 16)] << 16) | (green[(byte)(pixel >> 8)] << 8);
                pixel = (pixel & PixelGrid.Opaque) | warm | blue[(byte)pixel];
            }
        }
    }

    private static byte[] Table(Func<double, double> curve)
    {
        var table = new byte[256];
        for (int i = 0; i < 256; i++)
        {
            table[i] = (byte)Math.Clamp(Math.Round(curve(i)), 0, 255);
        }

        return table;
    }
}
