using System;
using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster.Colors;

namespace Korvan.CAD;

/// <summary>A palette of colours for indexed pixels.</summary>
public class ColorPalette : IColorPalette
{
    private readonly int[] _entries;
    private PaletteLookup? _lookup;
    private ColorCompareMethod _compareMethod;

    /// <summary>Creates a palette.</summary>
    /// <param name="argb32Entries">The colours as 32-bit ARGB values; 1 to 65536 of them.</param>
    /// <exception cref="ArgumentException">There are no colours, or too many.</exception>
    public ColorPalette(int[] argb32Entries)
    {
        Verify.NotNull(argb32Entries);
        if (argb32Entries.Length is < 1 or > 65536)
        {
            throw new ArgumentException($"A palette has 1 to 65536 colours, not {argb32Entries.Length}.");
        }

        _entries = (int[])argb32Entries.Clone();
    }

    /// <summary>Gets or sets how the nearest colour is found.</summary>
    public ColorCompareMethod CompareMethod
    {
        get => _compareMethod;
        set
        {
            _compareMethod = value;
            _lookup = null;
        }
    }

    /// <inheritdoc/>
    public int EntriesCount => _entries.Length;

    /// <inheritdoc/>
    public int[] Argb32Entries => (int[])_entries.Clone();

    /// <inheritdoc/>
    public Color[] Entries => Array.ConvertAll(_entries, Color.FromArgb);

    /// <inheritdoc/>
    public bool IsCompactPalette => new HashSet<int>(_entries).Count == _entries.Length;

    /// <summary>Creates a palette.</summary>
    /// <param name="colors">The colours; 1 to 65536 of them.</param>
    /// <returns>The palette.</returns>
    /// <exception cref="ArgumentException">There are no colours, or too many.</exception>
    public static ColorPalette FromColors(Color[] colors)
    {
        Verify.NotNull(colors);
        return new ColorPalette(Array.ConvertAll(colors, static color => color.ToArgb()));
    }

    /// <inheritdoc/>
    public int GetNearestColorIndex(int argb32Color) =>
        (_lookup ??= new PaletteLookup(_entries, _compareMethod)).Nearest(argb32Color);

    /// <inheritdoc/>
    public int GetNearestColorIndex(Color color) => GetNearestColorIndex(color.ToArgb());

    /// <inheritdoc/>
    public int GetArgb32Color(int index)
    {
        if ((uint)index >= (uint)_entries.Length)
        {
            throw Verify.OutOfRange(nameof(index), index, $"The palette has {_entries.Length} colours, from 0 on.");
        }

        return _entries[index];
    }

    /// <inheritdoc/>
    public Color GetColor(int index) => Color.FromArgb(GetArgb32Color(index));
}
