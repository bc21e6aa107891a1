namespace Korvan.CAD;

/// <summary>The colours that the pixels of an image are numbers of.</summary>
public interface IColorPalette
{
    /// <summary>Gets how many colours there are.</summary>
    int EntriesCount { get; }

    /// <summary>Gets the colours as 32-bit numbers: opacity, red, green, blue from the highest byte on.</summary>
    int[] Argb32Entries { get; }

    /// <summary>Gives one colour.</summary>
    /// <param name="index">Its number, from 0.</param>
    Color GetColor(int index);

    /// <summary>Gives the number of the colour that is nearest in red, green and blue.</summary>
    /// <param name="color">The colour looked for.</param>
    int GetNearestColorIndex(Color color);
}
