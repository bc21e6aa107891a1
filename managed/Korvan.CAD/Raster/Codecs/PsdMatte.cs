using System;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>
/// The white paper that the merged picture of a PSD with opacity is laid on, so that programs show it right that do not
/// know of the opacity. Inks are stored inverted, so no ink is white, too.
/// </summary>
internal static class PsdMatte
{
    private const int White = 255;

    /// <summary>Lays a level on the paper.</summary>
    internal static int Blend(int level, int opacity) => White - ((((White - level) * opacity) + 127) / 255);

    /// <summary>Takes a level off the paper.</summary>
    internal static int Unblend(int level, int opacity) => opacity switch
    {
        255 => level,
        0 => White,
        _ => Math.Clamp(White - ((((White - level) * 255) + (opacity / 2)) / opacity), 0, White),
    };
}
