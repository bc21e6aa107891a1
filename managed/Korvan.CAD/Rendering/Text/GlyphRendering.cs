using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Text;

/// <summary>How glyphs are rasterized: the antialiasing of their edges, and whether stems are hinted to
/// pixels.</summary>
internal readonly record struct GlyphRendering(GlyphEdges Edges, bool IsHinted)
{
    private const int HintNone = 1;
    private const int HintFull = 4;

    internal CairoAntialias Antialias => Edges switch
    {
        GlyphEdges.Sharp => CairoAntialias.None,
        GlyphEdges.Subpixel => CairoAntialias.Subpixel,
        _ => CairoAntialias.Gray,
    };

    internal int Hinting => IsHinted ? HintFull : HintNone;

    internal static GlyphRendering Of(VectorRasterizationOptions? options) =>
        options?.GraphicsOptions?.TextRenderingHint switch
        {
            TextRenderingHint.SingleBitPerPixelGridFit => new GlyphRendering(GlyphEdges.Sharp, true),
            TextRenderingHint.SingleBitPerPixel => new GlyphRendering(GlyphEdges.Sharp, false),
            TextRenderingHint.AntiAliasGridFit => new GlyphRendering(GlyphEdges.Smooth, true),
            TextRenderingHint.AntiAlias => new GlyphRendering(GlyphEdges.Smooth, false),
            TextRenderingHint.ClearTypeGridFit => new GlyphRendering(GlyphEdges.Subpixel, true),
            _ => options is CadRasterizationOptions { Quality.Text: RasterizationQualityValue.Low }
                ? new GlyphRendering(GlyphEdges.Sharp, false)
                : default,
        };
}

/// <summary>How the edges of glyphs are antialiased.</summary>
internal enum GlyphEdges
{
    Smooth = 0,
    Sharp = 1,

    /// <summary>Each of the three colours of a pixel by its own place.</summary>
    Subpixel = 2,
}
