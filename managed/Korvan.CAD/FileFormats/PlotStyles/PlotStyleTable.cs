using System;
using System.Collections.Generic;
using System.IO;

namespace Korvan.CAD.FileFormats.PlotStyles;

/// <summary>A table of plot styles: one for each of the indexed colours (CTB), or one for each name (STB).</summary>
internal sealed class PlotStyleTable
{
    private const string NamedExtension = ".stb";
    private const string ScreeningPrefix = "screening ";
    private const string Unchanged = "Normal";
    private const int LastColor = 255;

    private readonly PlotStyle?[] _byColor = new PlotStyle?[LastColor + 1];
    private readonly Dictionary<string, PlotStyle> _byName = new(StringComparer.OrdinalIgnoreCase);
    private readonly PlotStyle? _others;

    /// <summary>Creates a table.</summary>
    /// <param name="isNamed">Whether styles are assigned by name, not by colour.</param>
    /// <param name="others">The style of the colours and names that the table lacks; null for none.</param>
    internal PlotStyleTable(bool isNamed, PlotStyle? others = null)
    {
        (IsNamed, _others) = (isNamed, others);
    }

    internal bool IsNamed { get; }

    /// <summary>Sets the style of a colour, 1 to 255; others are left out.</summary>
    internal void Add(int color, PlotStyle style)
    {
        if (color is > 0 and <= LastColor)
        {
            _byColor[color] = style;
        }
    }

    internal void Add(PlotStyle style) => _byName[style.Name] = style;

    internal PlotStyle? Of(int color) => color is > 0 and <= LastColor ? _byColor[color] ?? _others : null;

    internal PlotStyle? Of(string name) =>
        _byName.TryGetValue(name, out PlotStyle? style) ? style
        : name.Equals(Unchanged, StringComparison.OrdinalIgnoreCase) ? null : _others;

    /// <summary>The tables that CAD programs are installed with. What they do follows from their names, so that
    /// drawings which come without them are plotted as they were meant.</summary>
    /// <returns>The table; null for other names.</returns>
    internal static PlotStyleTable? Standard(string name)
    {
        bool isNamed = Path.GetExtension(name).Equals(NamedExtension, StringComparison.OrdinalIgnoreCase);
        string title = Path.GetFileNameWithoutExtension(name).ToLowerInvariant();
        var plain = new PlotStyle(title);
        return title switch
        {
            "monochrome" => new PlotStyleTable(isNamed, plain with { Rgb = 0 }),
            "grayscale" => new PlotStyleTable(isNamed, plain with { IsGrayscale = true }),
            "acad" or "fill patterns" or "dwf virtual pens" => new PlotStyleTable(isNamed),
            _ when title.StartsWith(ScreeningPrefix, StringComparison.Ordinal)
                && int.TryParse(title[ScreeningPrefix.Length..].TrimEnd('%'), out int percent)
                && percent is >= 0 and <= PlotStyle.FullIntensity =>
                new PlotStyleTable(isNamed, plain with { Screening = percent }),
            _ => null,
        };
    }
}
