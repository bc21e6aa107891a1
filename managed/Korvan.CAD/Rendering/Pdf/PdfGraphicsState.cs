using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>The part of the graphics state that a painter sets (ISO 32000-1, 8.4), with the values that a page begins
/// with.</summary>
internal struct PdfGraphicsState
{
    public PdfGraphicsState()
    {
    }

    internal Rgba Fill = Rgba.Black;
    internal Rgba Stroke = Rgba.Black;
    internal byte Alpha = 255;
    internal double Width = -1;
    internal LineCaps Cap = LineCaps.Butt;
    internal LineJoins Join = LineJoins.Miter;
    internal double MiterLimit = StrokeStyle.DefaultMiterLimit;
    internal int Dash = -1;
    internal float DashOffset;
    internal int Font;
    internal double FontSize;
    internal int TextMode;

    /// <summary>What can show at all, on the page.</summary>
    internal Bounds2 Clip;
}
