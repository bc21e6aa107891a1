using System;
using System.Buffers.Binary;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>Writes a composite font: its subset, widths, and a map from glyphs to characters (ISO 32000-1, 9.7 to
/// 9.10).</summary>
internal sealed class PdfFontWriter
{
    private const int Symbolic = 4;
    private const int MaxRanges = 100;

    /// <summary>Tables that layout and rasterization outside of a document would need.</summary>
    private static readonly string[] Dropped =
    [
        "GSUB", "GPOS", "GDEF", "BASE", "JSTF", "kern", "morx", "kerx", "feat", "cmap", "name", "post", "OS/2", "DSIG",
        "VORG", "vhea", "vmtx", "gasp", "LTSH", "VDMX", "hdmx", "PCLT", "MATH", "COLR", "CPAL", "SVG ", "CBDT", "CBLC",
        "sbix", "meta", "FFTM",
    ];

    private readonly PdfFile _file;
    private readonly PdfFont _font;
    private readonly uint[] _glyphs;
    private readonly string _name;

    internal PdfFontWriter(PdfFile file, PdfFont font)
    {
        (_file, _font) = (file, font);
        _glyphs = font.Glyphs();
        _name = $"{Tag()}+{font.Name}";
    }

    /// <summary>Writes the font; a list of its glyphs is what the first archives need.</summary>
    internal void Write(bool listGlyphs)
    {
        int descendant = _file.New();
        int descriptor = _file.New();
        int texts = _file.New();
        byte[] subset = Subset(listGlyphs, out byte[] locations);
        WriteDescriptor(descriptor, subset, listGlyphs ? GlyphList(locations) : null);
        WriteTexts(texts);
        var body = new PdfBuffer();
        body.Raw("<</Type/Font/Subtype/Type0/BaseFont"u8).Name(_font.IsCompact ? _name + "-Identity-H" : _name)
            .Raw("/Encoding/Identity-H/DescendantFonts["u8).Ref(descendant).Raw("]/ToUnicode "u8).Ref(texts)
            .Raw(">>"u8);
        _file.Add(_font.Number, body);
        body.Cleared().Raw("<</Type/Font/Subtype"u8).Raw(_font.IsCompact ? "/CIDFontType0"u8 : "/CIDFontType2"u8)
            .Raw("/BaseFont"u8).Name(_name)
            .Raw("/CIDSystemInfo<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>/FontDescriptor "u8)
            .Ref(descriptor).Raw(_font.IsCompact ? default : "/CIDToGIDMap/Identity"u8);
        AppendWidths(body);
        _file.Add(descendant, body.Raw(">>"u8));
    }

    private unsafe byte[] Subset(bool withLocations, out byte[] locations)
    {
        using var input = new NativeHandle(HarfBuzz.SubsetInputCreate(), &HarfBuzz.SubsetInputDestroy);
        nint wanted = HarfBuzz.SubsetInputGlyphs(input.Pointer);
        Array.ForEach(_glyphs, glyph => HarfBuzz.SetAdd(wanted, glyph));
        nint dropped = HarfBuzz.SubsetInputSet(input.Pointer, HarfBuzz.DroppedTables);
        Array.ForEach(Dropped, tag => HarfBuzz.SetAdd(dropped, HarfBuzz.Tag(tag)));
        HarfBuzz.SubsetInputSetFlags(input.Pointer, HarfBuzz.RetainGlyphs);
        using var subset = new NativeHandle(HarfBuzz.Subset(_font.Face, input.Pointer), &HarfBuzz.FaceDestroy);
        if (subset.IsInvalid)
        {
            throw new RenderException($"The font {_font.Name} is damaged: no subset can be made of it.");
        }

        locations = withLocations ? HarfBuzz.Table(subset.Pointer, "loca") : [];
        return _font.IsCompact ? HarfBuzz.Table(subset.Pointer, "CFF ") : HarfBuzz.File(subset.Pointer);
    }

    private void WriteDescriptor(int number, byte[] program, byte[]? glyphs)
    {
        int file = _file.New();
        var entries = new PdfBuffer();
        _ = _font.IsCompact ? entries.Raw("/Subtype/CIDFontType0C"u8) : entries.Raw("/Length1 "u8).Int(program.Length);
        _file.AddStream(file, entries, program);
        var metrics = new FontMetrics(_font.Face);
        var body = new PdfBuffer();
        body.Raw("<</Type/FontDescriptor/FontName"u8).Name(_name).Raw("/Flags "u8).Int(Symbolic)
            .Raw("/FontBBox["u8).Int(metrics.MinX).Raw((byte)' ').Int(metrics.MinY).Raw((byte)' ').Int(metrics.MaxX)
            .Raw((byte)' ').Int(metrics.MaxY).Raw("]/ItalicAngle "u8).Real(metrics.ItalicAngle).Raw("/Ascent "u8)
            .Int(metrics.Ascent).Raw("/Descent "u8).Int(metrics.Descent).Raw("/CapHeight "u8).Int(metrics.CapHeight)
            .Raw("/StemV 80"u8).Raw(_font.IsCompact ? "/FontFile3 "u8 : "/FontFile2 "u8).Ref(file);
        if (glyphs is not null)
        {
            int list = _file.New();
            _file.AddStream(list, entries.Cleared(), glyphs);
            body.Raw("/CIDSet "u8).Ref(list);
        }

        _file.Add(number, body.Raw(">>"u8));
    }

    /// <summary>A bit for each glyph that the subset has, the first in the highest bit: those that are used, the first
    /// one, and the parts that others are made of.</summary>
    private byte[] GlyphList(byte[] locations)
    {
        byte[] header = HarfBuzz.Table(_font.Face, "head");
        bool isLong = header.Length > 51 && header[51] != 0;
        int count = locations.Length / (isLong ? 4 : 2);
        uint At(int glyph) => isLong
            ? BinaryPrimitives.ReadUInt32BigEndian(locations.AsSpan(glyph * 4))
            : BinaryPrimitives.ReadUInt16BigEndian(locations.AsSpan(glyph * 2));
        var bits = new byte[Math.Max(_glyphs[^1] / 8, (uint)Math.Max(count - 2, 0) / 8) + 1];
        bits[0] = 0x80;
        Array.ForEach(_glyphs, glyph => bits[glyph / 8] |= (byte)(0x80 >> (int)(glyph % 8)));
        for (int glyph = 0; glyph + 1 < count; glyph++)
        {
            bits[glyph / 8] |= At(glyph) != At(glyph + 1) ? (byte)(0x80 >> (glyph % 8)) : (byte)0;
        }

        return bits;
    }

    /// <summary>Adds the widths in thousandths of an em, in runs of glyphs that follow each other.</summary>
    private void AppendWidths(PdfBuffer body)
    {
        body.Raw("/W["u8);
        for (int i = 0; i < _glyphs.Length;)
        {
            body.Int(_glyphs[i]).Raw((byte)'[');
            int start = i;
            do
            {
                _ = i > start ? body.Raw((byte)' ') : body;
                body.Real(_font.Advance(_glyphs[i]) * 1000);
                i++;
            }
            while (i < _glyphs.Length && _glyphs[i] == _glyphs[i - 1] + 1);

            body.Raw((byte)']');
        }

        body.Raw((byte)']');
    }

    private void WriteTexts(int number)
    {
        var text = new PdfBuffer();
        text.Raw("/CIDInit/ProcSet findresource begin\n12 dict begin\nbegincmap\n/CIDSystemInfo<</Registry(Adobe)"u8)
            .Raw("/Ordering(UCS)/Supplement 0>>def\n/CMapName/Adobe-Identity-UCS def\n/CMapType 2 def\n"u8)
            .Raw("1 begincodespacerange\n<0000><FFFF>\nendcodespacerange\n"u8);
        uint[] known = Array.FindAll(_glyphs, glyph => _font.TextOf(glyph) is not null);
        for (int first = 0; first < known.Length; first += MaxRanges)
        {
            ReadOnlySpan<uint> part = known.AsSpan(first, Math.Min(MaxRanges, known.Length - first));
            text.Int(part.Length).Raw(" beginbfchar\n"u8);
            foreach (uint glyph in part)
            {
                text.Raw((byte)'<').Hex((byte)(glyph >> 8)).Hex((byte)glyph).Raw("><"u8)
                    .HexCharacters(_font.TextOf(glyph)!).Raw(">\n"u8);
            }

            text.Raw("endbfchar\n"u8);
        }

        text.Raw("endcmap\nCMapName currentdict/CMap defineresource pop\nend\nend\n"u8);
        _file.AddStream(number, new PdfBuffer(), text.Bytes);
    }

    /// <summary>Six letters that depend on the glyphs (ISO 32000-1, 9.6.4).</summary>
    private string Tag()
    {
        ulong hash = 14_695_981_039_346_656_037;
        foreach (uint glyph in _glyphs)
        {
            hash = (hash ^ glyph) * 1_099_511_628_211;
        }

        var tag = new char[6];
        for (int i = 0; i < tag.Length; i++, hash /= 26)
        {
            tag[i] = (char)('A' + (hash % 26));
        }

        return new string(tag);
    }
}
