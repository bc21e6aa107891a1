namespace Korvan.CAD;

/// <summary>A palette: the colours of indexed pixels.</summary>
public interface IColorPalette
{
    /// <summary>Gets the number of colours.</summary>
    int EntriesCount { get; }

    /// <summary>Gets the colours as 32-bit ARGB values.</summary>
    int[] Argb32Entries { get; }

    /// <summary>Gets the colours.</summary>
    Color[] Entries { get; }

    /// <summary>Gets whether the palette has no duplicate colours.</summary>
    bool IsCompactPalette { get; }

    /// <summary>Returns the index of the nearest colour.</summary>
    /// <param name="argb32Color">The colour to find, as a 32-bit ARGB value.</param>
    int GetNearestColorIndex(int argb32Color);

    /// <summary>Returns the index of the nearest colour.</summary>
    /// <param name="color">The colour to find.</param>
    int GetNearestColorIndex(Color color);

    /// <summary>Returns a colour as a 32-bit ARGB value.</summary>
    /// <param name="index">The index, from 0.</param>
    int GetArgb32Color(int index);

    /// <summary>Returns a colour.</summary>
    /// <param name="index">The index, from 0.</param>
    Color GetColor(int index);
}
