using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Gdi;

/// <summary>How the pieces of a broken line are long, by the numbers of pens.</summary>
internal enum GdiLine
{
    Solid = 0,
    Dash = 1,
    Dot = 2,
    DashDot = 3,
    DashDotDot = 4,
    None = 5,
    InsideFrame = 6,
    Custom = 7,
}

internal sealed record GdiPen(Rgba Color, double Width = 0, GdiLine Line = GdiLine.Solid)
{
    internal StrokeStyle Ends { get; init; } = new(LineCaps.Round, LineJoins.Round);

    /// <summary>Gets the lengths of dashes and gaps of a pen with its own, in logical units.</summary>
    internal double[] Lengths { get; init; } = [];
}

/// <summary>A brush; no colour for one that paints nothing. Hatches are numbered from 0, solid brushes have
/// -1.</summary>
internal sealed record GdiBrush(Rgba? Color, int Hatch = -1);

internal sealed record GdiFont(FontSpec Face, double Height)
{
    /// <summary>Gets the angle of the line of text in radians, counterclockwise.</summary>
    internal double Angle { get; init; }

    internal bool IsUnderlined { get; init; }

    internal bool IsStruck { get; init; }

    /// <summary>Gets the number of the character set, which texts in bytes have.</summary>
    internal int Charset { get; init; }
}

/// <summary>A region that is drawn in; what lies outside is clipped.</summary>
internal sealed record GdiClip(PathBuffer Path, bool EvenOdd);

/// <summary>What a device context has at a moment. A copy is what a metafile saves and restores.</summary>
internal sealed record GdiState
{
    internal const int Transparent = 1;
    internal const int Opaque = 2;

    internal GdiPen Pen { get; set; } = new(Rgba.Black);

    internal GdiBrush Brush { get; set; } = new(Rgba.White);

    internal GdiFont Font { get; set; } = new(FontSpec.Default, 12);

    internal Rgba TextColor { get; set; } = Rgba.Black;

    internal Rgba Background { get; set; } = Rgba.White;

    internal int BackgroundMode { get; set; } = Opaque;

    internal int TextAlign { get; set; }

    /// <summary>Gets or sets how areas are filled that overlap: 1 alternating, 2 wherever a line runs around.</summary>
    internal int FillMode { get; set; } = 1;

    internal int RasterOperation { get; set; } = GdiCanvas.CopyPen;

    internal int MapMode { get; set; } = 1;

    internal Vec2 WindowOrigin { get; set; }

    internal Vec2 WindowExtent { get; set; } = new(1, 1);

    internal Vec2 ViewportOrigin { get; set; }

    internal Vec2 ViewportExtent { get; set; } = new(1, 1);

    internal Affine2 World { get; set; } = Affine2.Identity;

    internal Vec2 Position { get; set; }

    internal bool ArcsAreClockwise { get; set; }

    internal double MiterLimit { get; set; } = StrokeStyle.DefaultMiterLimit;

    internal IReadOnlyList<GdiClip> Clips { get; set; } = [];
}
