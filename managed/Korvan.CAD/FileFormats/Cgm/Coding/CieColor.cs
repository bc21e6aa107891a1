using System;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>
/// L*a*b* and L*u*v* (ISO/CIE 11664-4 and 11664-5) to sRGB (IEC 61966-2-1) and back, all for the white of D65.
/// The fourth number is there for models of four components.
/// </summary>
internal static class CieColor
{
    private const double WhiteX = 0.95047, WhiteY = 1, WhiteZ = 1.08883;
    private const double WhiteU = 4 * WhiteX / (WhiteX + (15 * WhiteY) + (3 * WhiteZ));
    private const double WhiteV = 9 * WhiteY / (WhiteX + (15 * WhiteY) + (3 * WhiteZ));
    private const double Kappa = 24389 / 27.0;
    private const double Bend = 6 / 29.0;

    internal static int FromLab(double lightness, double a, double b)
    {
        double y = (lightness + 16) / 116;
        return FromXyz(WhiteX * Cube(y + (a / 500)), WhiteY * Cube(y), WhiteZ * Cube(y - (b / 200)));
    }

    internal static int FromLuv(double lightness, double u, double v)
    {
        if (lightness <= 0)
        {
            return ColorCoding.Pack(0, 0, 0);
        }

        double y = WhiteY * Cube((lightness + 16) / 116);
        double pu = (u / (13 * lightness)) + WhiteU;
        double pv = Math.Max((v / (13 * lightness)) + WhiteV, 1e-9);
        return FromXyz(y * 9 * pu / (4 * pv), y, y * (12 - (3 * pu) - (20 * pv)) / (4 * pv));
    }

    internal static (double Lightness, double A, double B, double None) ToLab(double red, double green, double blue)
    {
        (double x, double y, double z) = ToXyz(red, green, blue);
        double fy = Root(y / WhiteY);
        return ((116 * fy) - 16, 500 * (Root(x / WhiteX) - fy), 200 * (fy - Root(z / WhiteZ)), 0);
    }

    internal static (double Lightness, double U, double V, double None) ToLuv(double red, double green, double blue)
    {
        (double x, double y, double z) = ToXyz(red, green, blue);
        double sum = x + (15 * y) + (3 * z);
        double lightness = (116 * Root(y / WhiteY)) - 16;
        return sum <= 0 ? (0, 0, 0, 0)
            : (lightness, 13 * lightness * ((4 * x / sum) - WhiteU), 13 * lightness * ((9 * y / sum) - WhiteV), 0);
    }

    private static double Cube(double root) => root > Bend ? root * root * root : ((116 * root) - 16) / Kappa;

    private static double Root(double value) =>
        value > Bend * Bend * Bend ? Math.Cbrt(value) : ((Kappa * value) + 16) / 116;

    private static int FromXyz(double x, double y, double z) => ColorCoding.Pack(
        Encode((3.2404542 * x) - (1.5371385 * y) - (0.4985314 * z)),
        Encode((-0.9692660 * x) + (1.8760108 * y) + (0.0415560 * z)),
        Encode((0.0556434 * x) - (0.2040259 * y) + (1.0572252 * z)));

    private static (double X, double Y, double Z) ToXyz(double red, double green, double blue)
    {
        (double r, double g, double b) = (Decode(red), Decode(green), Decode(blue));
        return ((0.4124564 * r) + (0.3575761 * g) + (0.1804375 * b),
            (0.2126729 * r) + (0.7151522 * g) + (0.0721750 * b),
            (0.0193339 * r) + (0.1191920 * g) + (0.9503041 * b));
    }

    private static double Encode(double linear) =>
        linear <= 0.0031308 ? 12.92 * linear : (1.055 * Math.Pow(linear, 1 / 2.4)) - 0.055;

    private static double Decode(double part) => part <= 0.04045 ? part / 12.92 : Math.Pow((part + 0.055) / 1.055, 2.4);
}
