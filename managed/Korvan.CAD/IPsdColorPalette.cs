namespace Korvan.CAD;

/// <summary>The palette of a PSD, one of whose colours may be transparent.</summary>
public interface IPsdColorPalette : IColorPalette
{
    /// <summary>Gets the index of the transparent colour; -1 for none.</summary>
    int TransparentIndex { get; }

    /// <summary>Gets whether a colour is transparent.</summary>
    bool HasTransparentColor { get; }

    /// <summary>Returns the 768 bytes of the file: all reds, all greens, all blues.</summary>
    byte[] GetRawEntries();
}
