using System.Linq;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Shapers that are kept: no export is told of another one's texts and fonts, or disturbs them.</summary>
public sealed class TextShaperTests
{
    private const string Unknown = "A\U000F1234B";

    private static readonly FontSpec Missing = FontTable.FromFamily("Unheard Of", false, false);

    [Fact]
    public void Each_engine_counts_what_it_met_itself()
    {
        (double, int, string) first = Measured();
        Assert.Equal(first, Measured());
        Assert.Equal(1, first.Item2);
        Assert.StartsWith("Unheard Of", first.Item3, System.StringComparison.Ordinal);

        using var other = new TextEngine();
        Assert.Equal(2, other.Advance(other.Font(FontSpec.Default), "ii") / other.Advance(0, "i"), 6);
        Assert.Equal((0, 0), (other.UnknownGlyphs, other.Replaced.Count));
    }

    [Fact]
    public void Engines_that_live_at_the_same_time_keep_to_their_own_lines()
    {
        using var outer = new TextEngine();
        using var inner = new TextEngine(new GlyphRendering(GlyphEdges.Sharp, true));
        int font = outer.Font(FontSpec.Default);
        int bold = inner.Font(FontSpec.Default with { Bold = true });
        double plain = outer.Advance(font, "text");
        double wide = inner.Advance(bold, "text", letterSpacing: 0.5);
        Assert.Equal(plain + (3 * 0.5), outer.Advance(font, "text", letterSpacing: 0.5), 2);
        Assert.Equal(plain, outer.Advance(font, "text"));
        Assert.Equal(wide, inner.Advance(bold, "text", letterSpacing: 0.5));
        Assert.True(inner.Advance(bold, "text") > plain);
    }

    private static (double Advance, int Unknown, string Replaced) Measured()
    {
        using var engine = new TextEngine();
        double advance = engine.Advance(engine.Font(Missing), Unknown);
        return (advance, engine.UnknownGlyphs, engine.Replaced.Single().ToString().TrimStart('['));
    }
}
