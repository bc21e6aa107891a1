using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>How the runs of text of a document are written.</summary>
internal abstract class SvgText : IDisposable
{
    /// <summary>Gets whether text is written as text.</summary>
    internal virtual bool IsSearchable => false;

    /// <summary>Writes the attributes that the runs of a font share.</summary>
    internal abstract void WriteFont(int font);

    /// <summary>Writes a run; the matrix maps its ems, y up from the baseline, to the page.</summary>
    internal abstract void Write(in TextRun run, in Affine2 matrix);

    public abstract void Dispose();
}

/// <summary>Text as text, to be searched and edited. Each run states the length that it was laid out with, so that it
/// keeps its place where another font is used.</summary>
internal sealed class SvgStrings(MarkupWriter writer, TextEngine engine) : SvgText
{
    private const double FontSize = 100;

    internal override bool IsSearchable => true;

    internal override void WriteFont(int font)
    {
        FontSpec spec = engine.SpecOf(font);
        writer.Raw(" xml:space=\"preserve\" font-family=\""u8);
        writer.Escaped(string.Join(',', Array.ConvertAll(
            spec.Family.Split(','),
            static family => $"'{family.Trim().Replace("'", string.Empty, StringComparison.Ordinal)}'")));
        writer.Raw("\" font-size=\""u8);
        writer.Number(FontSize);
        writer.Raw((byte)'"');
        writer.Raw(spec.Bold ? " font-weight=\"bold\""u8 : default);
        writer.Raw(spec.Italic ? " font-style=\"italic\""u8 : default);
    }

    internal override void Write(in TextRun run, in Affine2 matrix)
    {
        writer.Raw("<text transform=\""u8);
        writer.Matrix(matrix * new Affine2(1 / FontSize, 0, 0, -1 / FontSize, 0, 0));
        writer.Raw("\" textLength=\""u8);
        writer.Number(engine.Advance(run.Font, run.Text, run.LetterSpacing) * FontSize);
        writer.Raw("\" lengthAdjust=\"spacingAndGlyphs\">"u8);
        writer.Escaped(run.Text);
        writer.Raw("</text>\n"u8);
    }

    public override void Dispose()
    {
    }
}

/// <summary>Text as glyph outlines: each is defined once, before its first use.</summary>
internal sealed class SvgShapes(MarkupWriter writer, TextEngine engine) : SvgText
{
    /// <summary>Units of the outlines in an em; their coordinates have three digits after the point.</summary>
    private const double Units = 100;

    private readonly GlyphOutlines _outlines = new(engine);
    private readonly SvgPath _path = new(writer);
    private readonly List<GlyphOutline> _added = [];

    internal override void WriteFont(int font)
    {
    }

    internal override void Write(in TextRun run, in Affine2 matrix)
    {
        PlacedGlyph[] glyphs = _outlines.Of(run, _added);
        if (_added.Count > 0)
        {
            Define();
        }

        if (glyphs.Length == 0)
        {
            return;
        }

        writer.Raw("<g transform=\""u8);
        writer.Matrix(matrix * new Affine2(1 / Units, 0, 0, -1 / Units, 0, 0));
        writer.Raw("\">"u8);
        foreach (PlacedGlyph glyph in glyphs)
        {
            writer.Raw("<use xlink:href=\"#glyph-"u8);
            WriteNumber(glyph.Number);
            WritePlace("\" x=\""u8, glyph.X);
            WritePlace("\" y=\""u8, glyph.Y);
            writer.Raw("\"/>"u8);
        }

        writer.Raw("</g>\n"u8);
    }

    public override void Dispose() => _outlines.Dispose();

    private void Define()
    {
        var toUnits = new Affine2(Units, 0, 0, Units, 0, 0);
        writer.Raw("<defs>\n"u8);
        foreach (GlyphOutline outline in _added)
        {
            writer.Raw("<path id=\"glyph-"u8);
            WriteNumber(outline.Number);
            writer.Raw("\" d=\""u8);
            _path.Begin();
            _path.Add(outline.Path.Verbs, outline.Path.Coords, toUnits);
            writer.Raw("\"/>\n"u8);
        }

        writer.Raw("</defs>\n"u8);
        _added.Clear();
    }

    private void WriteNumber(int number) => writer.Thousandths((long)number * MarkupWriter.Parts);

    private void WritePlace(ReadOnlySpan<byte> attribute, double ems)
    {
        if (MarkupWriter.ToThousandths(ems * Units) != 0)
        {
            writer.Raw(attribute);
            writer.Number(ems * Units);
        }
    }
}
