using System;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>A face that is embedded: which of its glyphs are used, and what they mean. Glyphs are shown by their
/// numbers (ISO 32000-1, 9.7.5, Identity-H).</summary>
internal sealed class PdfFont
{
    private readonly NativeHandle _units;
    private readonly double _unitsPerEm;
    private readonly double[] _advances;
    private readonly string?[] _texts;

    internal unsafe PdfFont(int number, nint face, string name, bool isCompact)
    {
        (Number, Face, Name, IsCompact) = (number, face, name, isCompact);
        _units = new NativeHandle(HarfBuzz.FontCreate(face), &HarfBuzz.FontDestroy);
        _unitsPerEm = HarfBuzz.FaceGetUnitsPerEm(face);
        uint count = HarfBuzz.FaceGetGlyphCount(face);
        _advances = new double[count];
        Array.Fill(_advances, double.NaN);
        _texts = new string?[count];
    }

    internal int Number { get; }

    internal nint Face { get; }

    /// <summary>Gets its name in PostScript.</summary>
    internal string Name { get; }

    /// <summary>Gets whether its outlines are in the compact font format (CFF), not in that of TrueType.</summary>
    internal bool IsCompact { get; }

    /// <summary>Gets whether any glyph is used.</summary>
    internal bool IsUsed { get; private set; }

    /// <summary>The numbers of the glyphs that are used, in order.</summary>
    internal uint[] Glyphs()
    {
        int count = 0;
        var glyphs = new uint[_advances.Length];
        for (uint glyph = 0; glyph < glyphs.Length; glyph++)
        {
            if (!double.IsNaN(_advances[glyph]))
            {
                glyphs[count++] = glyph;
            }
        }

        return glyphs[..count];
    }

    /// <summary>What a glyph means; null where it does not mean one thing.</summary>
    internal string? TextOf(uint glyph) => _texts[glyph];

    /// <summary>A glyph that the font has: the first one in place of others, which damaged fonts refer to.</summary>
    internal uint Known(uint glyph) => glyph < _advances.Length ? glyph : 0;

    /// <summary>The advance of a glyph in ems, as the document states it.</summary>
    internal double Advance(uint glyph) => _advances[glyph];

    internal void Use(uint glyph)
    {
        if (double.IsNaN(_advances[glyph]))
        {
            double units = HarfBuzz.FontGetGlyphAdvance(_units.Pointer, glyph);
            _advances[glyph] = Math.Round(units / _unitsPerEm, 5);
            IsUsed = true;
        }
    }

    /// <summary>Uses a glyph for characters; false where the document has to state them at the place, as the glyph
    /// means others elsewhere or makes them up together with more glyphs.</summary>
    internal bool Use(uint glyph, ReadOnlySpan<char> text, bool isAlone)
    {
        Use(glyph);
        if (!isAlone)
        {
            return false;
        }

        if (_texts[glyph] is { } known)
        {
            return text.SequenceEqual(known);
        }

        _texts[glyph] = text.ToString();
        return true;
    }

    internal void Release() => _units.Dispose();
}
