using Korvan.CAD.Geometry;

namespace Korvan.CAD.DisplayList;

internal enum DisplayKind : byte
{
    Stroke,
    Fill,

    /// <summary>A hatched area, which becomes strokes and fills once the scale of the page is known.</summary>
    Pattern,
    Text,
    Image,

    /// <summary>A symbol, placed by a map.</summary>
    Symbol,
    PushClip,
    PopClip,
}

/// <summary>
/// One thing to draw. Its path is a range of the list's flat arrays; what is rare (dashes, gradients, text runs,
/// images) stands in side tables and is reached by index.
/// </summary>
internal struct DisplayItem
{
    internal DisplayKind Kind;
    internal bool EvenOdd;
    internal Rgba Color;
    internal int FirstVerb;
    internal int VerbCount;
    internal int FirstCoord;

    /// <summary>In millimetres on the page, or in drawing units; 0 is the thinnest line that the device has.</summary>
    internal float LineWeight;

    /// <summary>Whether the line weight is in drawing units and grows with them.</summary>
    internal bool WeightInUnits;

    /// <summary>Index into the table of stroke styles, or 0 for that of the page.</summary>
    internal int Style;

    /// <summary>Index into the table of dash patterns, or -1 for a continuous line.</summary>
    internal int Dash;

    /// <summary>Where in the pattern the line begins, in drawing units.</summary>
    internal float DashOffset;

    internal int Layer;

    /// <summary>Of the strokes of a text, its height in drawing units, which limits the width of the strokes; else
    /// 0.</summary>
    internal float TextHeight;

    /// <summary>Index of the gradient of a fill (or -1), of the pattern, of the text run, of the image, or of the
    /// placement.</summary>
    internal int Extra;
}

/// <summary>How open lines end.</summary>
internal enum LineCaps
{
    Butt = 0,
    Round = 1,
    Square = 2,
}

/// <summary>How the pieces of a line meet.</summary>
internal enum LineJoins
{
    Miter = 0,
    Round = 1,
    Bevel = 2,
}

/// <summary>Caps and joins of a line. Miters longer than the limit, in line widths, are beveled.</summary>
internal readonly record struct StrokeStyle(
    LineCaps Cap, LineJoins Join, double MiterLimit = StrokeStyle.DefaultMiterLimit)
{
    internal const double DefaultMiterLimit = 10;

    /// <summary>The keyword of SVG and of the canvas of HTML for the caps.</summary>
    internal string CapKeyword => Cap switch { LineCaps.Butt => "butt", LineCaps.Square => "square", _ => "round" };

    /// <summary>The keyword of SVG and of the canvas of HTML for the joins.</summary>
    internal string JoinKeyword => Join switch { LineJoins.Miter => "miter", LineJoins.Bevel => "bevel", _ => "round" };
}

/// <summary>Colour, width, style, dashes and layer of a stroke.</summary>
internal struct StrokeAttributes
{
    internal Rgba Color;
    internal float LineWeight;
    internal bool WeightInUnits;
    internal int Style;
    internal int Dash;
    internal float DashOffset;
    internal int Layer;
    internal float TextHeight;
}

/// <summary>One run of text in one font. The matrix maps the em square, baseline at y = 0, to drawing units.</summary>
internal readonly record struct TextRun(string Text, int Font, Affine2 Matrix, double LetterSpacing)
{
    /// <summary>Gets how far the pen moves over the text, in ems; 0 where it was not measured.</summary>
    internal double Advance { get; init; }

    /// <summary>Gets the height of the capitals, in ems; 0 where it was not measured.</summary>
    internal double CapHeight { get; init; }

    /// <summary>Gets the box of the outlines in ems where it may be needed: letters reach below the baseline, and
    /// accents above the capitals.</summary>
    internal Bounds2 Ink { get; init; }

    /// <summary>Gets whether the run is there to be searched and copied alone: strokes after it show it.</summary>
    internal bool IsHidden { get; init; }
}

/// <summary>A part of the page that leads elsewhere: to an address, or to a file beside the drawing.</summary>
internal sealed record PlacedLink(string Target, Bounds2 Area);

internal readonly record struct GradientStop(double Offset, Rgba Color);

/// <summary>
/// A gradient in its own unit space: linear from x = -1 to 1, radial from the centre <see cref="FocusX"/>,
/// <see cref="FocusY"/> to the unit circle. The matrix maps that space to drawing units.
/// </summary>
internal sealed record Gradient(bool Radial, double FocusX, double FocusY, Affine2 Matrix, GradientStop[] Stops);

/// <summary>Pixels (premultiplied, blue first) with a map from the unit square, y up, to drawing units.</summary>
internal sealed record PlacedImage(int Width, int Height, byte[] Pixels, Affine2 Matrix, double Opacity)
{
    /// <summary>Whether pixels are cells with sharp borders, however large they are drawn.</summary>
    internal bool Sharp { get; init; }

    /// <summary>Gets whether the image has one place, so that nobody has to keep it for others.</summary>
    internal bool IsPlacedOnce { get; init; }
}
