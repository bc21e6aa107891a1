using Korvan.CAD.Binding;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster.Colors;

/// <summary>Chooses the palette that an image is dithered to.</summary>
internal static class DitherPalette
{
    internal static int[] For(PixelGrid pixels, int bits, IColorPalette? given)
    {
        if (bits is < 1 or > 8)
        {
            throw Verify.OutOfRange(nameof(bits), bits, "A palette index takes 1 to 8 bits.");
        }

        return given == null && bits == 1
            ? [PixelGrid.Opaque, -1]
            : PaletteChoice.For(pixels, given, 1 << bits, ColorQuantizationMethod.MedianCut);
    }
}
