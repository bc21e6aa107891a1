using Korvan.CAD.DisplayList;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>
/// The indexed colours 1 to 255. From 10 on the table is regular: 24 hues of 15°, five brightnesses each, and at odd
/// indexes the same colour half faded to its grey.
/// </summary>
internal static class AciPalette
{
    internal const int ByBlock = 0;
    internal const int ByLayer = 256;

    /// <summary>The index that shows as black on light and white on dark backgrounds.</summary>
    internal const int Contrast = 7;

    private static readonly int[] Fixed =
        [0x000000, 0xff0000, 0xffff00, 0x00ff00, 0x00ffff, 0x0000ff, 0xff00ff, 0xffffff, 0x808080, 0xc0c0c0];
    private static readonly int[] Greys = [0x333333, 0x505050, 0x696969, 0x828282, 0xbebebe, 0xffffff];
    private static readonly int[] Brightness = [255, 165, 127, 76, 38];
    private static readonly Rgba[] Table = Build();

    internal static Rgba Color(int index) => index is > 0 and < 256 ? Table[index] : Rgba.Black;

    /// <summary>The colour of an index on a page: white and black change places, so that they stay visible.</summary>
    internal static Rgba Color(int index, Rgba background) =>
        index is Contrast or <= 0 or > 255 ? (background.IsLight ? Rgba.Black : Rgba.White) : Table[index];

    private static Rgba[] Build()
    {
        var table = new Rgba[256];
        for (int i = 0; i < 256; i++)
        {
            table[i] = i < 10 ? Rgba.FromRgb(Fixed[i]) : i >= 250 ? Rgba.FromRgb(Greys[i - 250]) : Hue(i);
        }

        return table;
    }

    private static Rgba Hue(int index)
    {
        int quarter = (index - 10) / 10;
        int value = Brightness[index % 10 / 2];
        bool faded = index % 2 == 1;
        return new Rgba(Channel(quarter + 8), Channel(quarter), Channel(quarter + 16));

        // A channel is full for 120°, gone for 120°, and passes between them in four steps of a quarter.
        byte Channel(int shifted)
        {
            int step = shifted % 24;
            double part = step switch { <= 4 => step / 4.0, <= 12 => 1, <= 16 => (16 - step) / 4.0, _ => 0 };
            double level = value * part;
            return (byte)(faded ? (value + level) / 2 : level);
        }
    }
}
