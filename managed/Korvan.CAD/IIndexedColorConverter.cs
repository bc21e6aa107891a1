namespace Korvan.CAD;

/// <summary>Turns numbers of colours into 32-bit colours, and back to the nearest.</summary>
public interface IIndexedColorConverter : IColorConverter
{
    /// <summary>Gets the colours that are numbered.</summary>
    IColorPalette Palette { get; }
}
