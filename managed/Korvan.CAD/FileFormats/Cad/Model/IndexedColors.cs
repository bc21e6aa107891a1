namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// The indexed colours 1 to 255 as 0xRRGGBB. From 10 on the table is regular: 24 hues of 15°, five brightnesses each,
/// and at odd indexes the same colour half faded to its grey.
/// </summary>
internal static class IndexedColors
{
    /// <summary>The index that shows as black on light and white on dark backgrounds.</summary>
    internal const int Contrast = 7;

    private const int FirstHue = 10;
    private const int FirstGrey = 250;
    private const int FirstFixedGrey = 8;

    private static readonly int[] Fixed =
        [0x000000, 0xff0000, 0xffff00, 0x00ff00, 0x00ffff, 0x0000ff, 0xff00ff, 0xffffff, 0x808080, 0xc0c0c0];

    private static readonly int[] Greys = [0x333333, 0x505050, 0x696969, 0x828282, 0xbebebe, 0xffffff];
    private static readonly int[] Brightness = [255, 165, 127, 76, 38];
    private static readonly int[] Table = Build();

    internal static int Rgb(int index) => Table[index];

    /// <summary>Gets the index of the colour that is nearest; a grey for a grey.</summary>
    internal static int Nearest(int rgb)
    {
        bool isGrey = ((rgb >> 16) & 255) == (rgb & 255) && ((rgb >> 8) & 255) == (rgb & 255);
        int nearest = Contrast;
        for (int i = 1; i < Table.Length; i++)
        {
            bool allowed = !isGrey || i is Contrast or FirstFixedGrey or FirstFixedGrey + 1 or >= FirstGrey;
            nearest = allowed && Distance(Table[i], rgb) < Distance(Table[nearest], rgb) ? i : nearest;
        }

        return nearest;
    }

    private static int Distance(int a, int b)
    {
        int red = ((a >> 16) & 255) - ((b >> 16) & 255);
        int green = ((a >> 8) & 255) - ((b >> 8) & 255);
        int blue = (a & 255) - (b & 255);
        return (red * red) + (green * green) + (blue * blue);
    }

    private static int[] Build()
    {
        var table = new int[256];
        for (int i = 0; i < table.Length; i++)
        {
            table[i] = i < FirstHue ? Fixed[i] : i >= FirstGrey ? Greys[i - FirstGrey] : Hue(i);
        }

        return table;
    }

    private static int Hue(int index)
    {
        int quarter = (index - FirstHue) / 10;
        int value = Brightness[index % 10 / 2];
        bool faded = index % 2 == 1;
        return (Channel(quarter + 8) << 16) | (Channel(quarter) << 8) | Channel(quarter + 16);

        // A channel is full for 120°, gone for 120°, and passes between them in four steps of a quarter.
        int Channel(int shifted)
        {
            int step = shifted % 24;
            double part = step switch { <= 4 => step / 4.0, <= 12 => 1, <= 16 => (16 - step) / 4.0, _ => 0 };
            double level = value * part;
            return (byte)(faded ? (value + level) / 2 : level);
        }
    }
}
