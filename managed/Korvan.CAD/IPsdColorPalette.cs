namespace Korvan.CAD;

/// <summary>The palette of a PSD, one of whose colours may stand for transparency.</summary>
public interface IPsdColorPalette : IColorPalette
{
    /// <summary>Gets the number of the colour that is transparent, or -1 for none.</summary>
    int TransparentIndex { get; }

    /// <summary>Gets whether a colour is transparent.</summary>
    bool HasTransparentColor { get; }

    /// <summary>Gives the 768 bytes of the file: all reds, all greens, all blues.</summary>
    byte[] GetRawEntries();
}
