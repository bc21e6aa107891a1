using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>A property that a table or cell states: its value, and its true colour where it is a colour that has
/// one.</summary>
internal readonly record struct StatedValue(string Text, string? TrueColor)
{
    internal double Number => TableOverride.Parse(Text);

    /// <summary>Gets the colour as 0xRRGGBB; -1 for one of the palette.</summary>
    internal int Rgb => TrueColor is null ? -1 : (int)TableOverride.Parse(TrueColor) & 0xffffff;

    /// <summary>Returns the properties that flags announce, by their flags.</summary>
    /// <param name="list">The properties that may be announced, in the order of the tags.</param>
    /// <param name="flags">The flags.</param>
    /// <param name="tags">The tags; those that are returned are taken out.</param>
    internal static Dictionary<int, StatedValue> Take(TableOverride[] list, int flags, List<CadCodeValue> tags)
    {
        var found = new Dictionary<int, StatedValue>();
        foreach (TableOverride item in list)
        {
            if ((flags & item.Bit) != 0 && TableOverride.Take(tags, item.Code) is { } value)
            {
                string? trueColor = item.Kind == TableOverride.Color
                    ? TableOverride.Take(tags, item.TrueColorCode) : null;
                found.Add(item.Bit, new StatedValue(value, trueColor));
            }
        }

        return found;
    }
}
