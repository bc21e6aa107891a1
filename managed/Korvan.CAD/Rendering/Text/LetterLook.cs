using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Native;

namespace Korvan.CAD.Rendering.Text;

/// <summary>How letters become pixels: the kind of their edges, and whether stems are fitted to rows and columns.</summary>
internal readonly record struct LetterLook(LetterEdges Edges, bool IsFitted)
{
    private const int HintNone = 1;
    private const int HintFull = 4;

    internal CairoAntialias Antialias => Edges switch
    {
        LetterEdges.Sharp => CairoAntialias.None,
        LetterEdges.Subpixel => CairoAntialias.Subpixel,
        _ => CairoAntialias.Gray,
    };

    internal int Hinting => IsFitted ? HintFull : HintNone;

    internal static LetterLook Of(VectorRasterizationOptions? options) => options?.GraphicsOptions?.TextRenderingHint switch
    {
        TextRenderingHint.SingleBitPerPixelGridFit => new LetterLook(LetterEdges.Sharp, true),
        TextRenderingHint.SingleBitPerPixel => new LetterLook(LetterEdges.Sharp, false),
        TextRenderingHint.AntiAliasGridFit => new LetterLook(LetterEdges.Smooth, true),
        TextRenderingHint.AntiAlias => new LetterLook(LetterEdges.Smooth, false),
        TextRenderingHint.ClearTypeGridFit => new LetterLook(LetterEdges.Subpixel, true),
        _ => options is CadRasterizationOptions { Quality.Text: RasterizationQualityValue.Low } ? new LetterLook(LetterEdges.Sharp, false) : default,
    };
}

/// <summary>How the edges of letters are smoothed.</summary>
internal enum LetterEdges
{
    Smooth = 0,
    Sharp = 1,

    /// <summary>Each of the three colours of a pixel by its own place.</summary>
    Subpixel = 2,
}
