namespace Korvan.CAD;

/// <summary>Converts palette indices to 32-bit ARGB values, and back to the index of the nearest colour.</summary>
public interface IIndexedColorConverter : IColorConverter
{
    /// <summary>Gets the palette.</summary>
    IColorPalette Palette { get; }
}
