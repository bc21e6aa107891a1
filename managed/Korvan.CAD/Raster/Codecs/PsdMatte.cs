using System;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>The white matte of the merged image of a PSD with alpha, for programs that ignore alpha. Inks are stored
/// inverted, so 255 is white in CMYK, too.</summary>
internal static class PsdMatte
{
    private const int White = 255;

    /// <summary>Composites a level over the matte.</summary>
    internal static int Blend(int level, int opacity) => White - ((((White - level) * opacity) + 127) / 255);

    /// <summary>Removes the matte from a level.</summary>
    internal static int Unblend(int level, int opacity) => opacity switch
    {
        255 => level,
        0 => White,
        _ => Math.Clamp(White - ((((White - level) * 255) + (opacity / 2)) / opacity), 0, White),
    };
}
