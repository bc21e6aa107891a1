using System;
using System.Collections.Generic;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>A face that is embedded: which of its glyphs are used, and what they mean. Glyphs are shown by their
/// numbers (ISO 32000-1, 9.7.5, Identity-H).</summary>
internal sealed class PdfFont
{
    private readonly NativeHandle _units;
    private readonly double _unitsPerEm;
    private readonly Dictionary<uint, double> _advances = [];
    private readonly Dictionary<uint, string> _texts = [];

    internal unsafe PdfFont(int number, nint face, string name, bool isCompact)
    {
        (Number, Face, Name, IsCompact) = (number, face, name, isCompact);
        _units = new NativeHandle(HarfBuzz.FontCreate(face), &HarfBuzz.FontDestroy);
        _unitsPerEm = HarfBuzz.FaceGetUnitsPerEm(face);
    }

    internal int Number { get; }

    internal nint Face { get; }

    /// <summary>Gets its name in PostScript.</summary>
    internal string Name { get; }

    /// <summary>Gets whether its outlines are in the compact font format (CFF), not in that of TrueType.</summary>
    internal bool IsCompact { get; }

    /// <summary>Gets the glyphs that are used, with their advances in ems.</summary>
    internal IReadOnlyDictionary<uint, double> Glyphs => _advances;

    /// <summary>Gets what glyphs mean, as far as each means one thing.</summary>
    internal IReadOnlyDictionary<uint, string> Texts => _texts;

    /// <summary>The advance of a glyph in ems, as the document states it.</summary>
    internal double Advance(uint glyph) => _advances[glyph];

    internal void Use(uint glyph)
    {
        if (!_advances.ContainsKey(glyph))
        {
            double units = HarfBuzz.FontGetGlyphAdvance(_units.Pointer, glyph);
            _advances.Add(glyph, Math.Round(units / _unitsPerEm, 5));
        }
    }

    /// <summary>Uses a glyph for characters; false where the document has to state them at the place, as the glyph means
    /// others elsewhere or makes them up together with more glyphs.</summary>
    internal bool Use(uint glyph, ReadOnlySpan<char> text, bool isAlone)
    {
        Use(glyph);
        if (!isAlone)
        {
            return false;
        }

        if (_texts.TryGetValue(glyph, out string? known))
        {
            return text.SequenceEqual(known);
        }

        _texts.Add(glyph, text.ToString());
        return true;
    }

    internal void Release() => _units.Dispose();
}
