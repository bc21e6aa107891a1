using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>A face as pango is asked for it; the family may be a list, first choice first.</summary>
internal readonly record struct FontSpec(string Family, bool Bold = false, bool Italic = false)
{
    internal static readonly FontSpec Default = new("Liberation Sans,DejaVu Sans");

    /// <summary>Gets the name of the stroke font that the face stands for, without its extension; null for
    /// none.</summary>
    internal string? Stroke { get; init; }

    /// <summary>Gets the name of the big font beside the stroke font, without its extension; null for none.</summary>
    internal string? BigFont { get; init; }

    /// <summary>Gets whether the face is used as it is, with its own widths.</summary>
    internal bool IsPlain { get; init; }

    /// <summary>Gets a comparer for dictionaries: the one that the runtime makes of a type of values takes longer than
    /// a small drawing.</summary>
    internal static IEqualityComparer<FontSpec> ByValue { get; } = new Comparer();

    private sealed class Comparer : IEqualityComparer<FontSpec>
    {
        public bool Equals(FontSpec x, FontSpec y) => x == y;

        public int GetHashCode(FontSpec obj) => obj.GetHashCode();
    }
}
