namespace Korvan.CAD;

/// <summary>The colours that the pixels of an image are numbers of.</summary>
public interface IColorPalette
{
    /// <summary>Gets how many colours there are.</summary>
    int EntriesCount { get; }

    /// <summary>Gets the colours as 32-bit numbers: opacity, red, green, blue from the highest byte on.</summary>
    int[] Argb32Entries { get; }

    /// <summary>Gets the colours.</summary>
    Color[] Entries { get; }

    /// <summary>Gets whether no colour stands twice in the palette.</summary>
    bool IsCompactPalette { get; }

    /// <summary>Gives the number of the colour that is nearest.</summary>
    /// <param name="argb32Color">The colour looked for, as a 32-bit number.</param>
    int GetNearestColorIndex(int argb32Color);

    /// <summary>Gives the number of the colour that is nearest.</summary>
    /// <param name="color">The colour looked for.</param>
    int GetNearestColorIndex(Color color);

    /// <summary>Gives one colour as a 32-bit number.</summary>
    /// <param name="index">Its number, from 0.</param>
    int GetArgb32Color(int index);

    /// <summary>Gives one colour.</summary>
    /// <param name="index">Its number, from 0.</param>
    Color GetColor(int index);
}
