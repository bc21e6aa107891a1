using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Native;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>The fonts of a document, one for each face. Subsets are made at its end, when all glyphs are known.
/// </summary>
internal sealed class PdfFonts(PdfFile file)
{
    private const int LicenseAt = 8;
    private const int LicenseKinds = 0x000E;
    private const int Restricted = 0x0002;
    private const int NoSubset = 0x0100;
    private const int BitmapOnly = 0x0200;
    private const int MaxGlyphs = 0x10000;
    private const int MaxName = 100;

    private readonly Dictionary<long, PdfFont?> _fonts = [];
    private readonly List<PdfFont> _embedded = [];

    /// <summary>The font of a face; null where it cannot be embedded.</summary>
    internal PdfFont? Of(FontUse use)
    {
        if (!_fonts.TryGetValue(use.Face, out PdfFont? font))
        {
            NativeLibraries.Require(HarfBuzz.SubsetLibrary, HarfBuzz.SubsetPackage);
            bool isCompact = HarfBuzz.HasTable(use.Face, "CFF ");
            bool hasOutlines = isCompact || HarfBuzz.HasTable(use.Face, "glyf");
            uint count = HarfBuzz.FaceGetGlyphCount(use.Face);
            bool usable = hasOutlines && count is > 0 and <= MaxGlyphs && MayBeEmbedded(use.Face)
                && HarfBuzz.IsVariable(use.Face) == 0;
            font = usable ? new PdfFont(file.New(), use.Face, NameOf(use.Name), isCompact) : null;
            _fonts.Add(use.Face, font);
            if (font is not null)
            {
                _embedded.Add(font);
            }
        }

        return font;
    }

    /// <summary>Notes that texts of a font became outlines.</summary>
    internal static void NoteOutlines(FontUse use, RenderNotes notes) =>
        notes.Add(RenderErrorCode.Success, $"texts became outlines, as their font {use.Name} cannot be embedded");

    /// <summary>Writes the fonts with subsets of their glyphs.</summary>
    internal void Write(bool listGlyphs)
    {
        foreach (PdfFont font in _embedded)
        {
            if (font.IsUsed)
            {
                new PdfFontWriter(file, font).Write(listGlyphs);
            }
        }
    }

    internal void Release() => _embedded.ForEach(static font => font.Release());

    /// <summary>Whether the license of a face allows what is done with it (OpenType, OS/2, fsType).</summary>
    private static bool MayBeEmbedded(nint face)
    {
        byte[] table = HarfBuzz.Table(face, "OS/2");
        if (table.Length < LicenseAt + 2)
        {
            return true;
        }

        int license = BinaryPrimitives.ReadUInt16BigEndian(table.AsSpan(LicenseAt));
        return (license & LicenseKinds) != Restricted && (license & (NoSubset | BitmapOnly)) == 0;
    }

    private static string NameOf(string name)
    {
        var plain = new StringBuilder();
        foreach (char one in name)
        {
            _ = char.IsAsciiLetterOrDigit(one) || one is '-' or '_' ? plain.Append(one) : plain;
        }

        return plain.Length > 0 ? plain.ToString(0, Math.Min(plain.Length, MaxName)) : "Font";
    }
}
