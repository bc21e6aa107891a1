namespace Korvan.CAD.FileFormats.PlotStyles;

/// <summary>What a plot style makes of the objects that have it. What it leaves alone is the object's own.</summary>
internal sealed record PlotStyle(string Name)
{
    internal const int FullIntensity = 100;
    internal const int LineTypeOfObject = 31;

    /// <summary>Gets the colour as 0xRRGGBB; -1 for that of the object.</summary>
    internal int Rgb { get; init; } = -1;

    /// <summary>Gets whether colours become shades of gray.</summary>
    internal bool IsGrayscale { get; init; }

    /// <summary>Gets how much of the colour is put on the paper, in percent.</summary>
    internal int Screening { get; init; } = FullIntensity;

    /// <summary>Gets the line weight in millimetres; nothing for that of the object.</summary>
    internal float? LineWeight { get; init; }

    internal PlotLineEnd End { get; init; } = PlotLineEnd.OfObject;

    internal PlotLineJoin Join { get; init; } = PlotLineJoin.OfObject;

    /// <summary>Gets the number of the line type: 0 for continuous lines.</summary>
    internal int LineType { get; init; } = LineTypeOfObject;

    /// <summary>Gets how areas are filled.</summary>
    internal PlotFill Fill { get; init; } = PlotFill.OfObject;

    /// <summary>Gets the scale of fill patterns, and of line types that are in no standard.</summary>
    internal double PatternScale { get; init; } = 1;

    /// <summary>Gets whether filled areas become lines or dots.</summary>
    internal bool HasFillPattern => Fill is > PlotFill.Solid and < PlotFill.OfObject;
}

/// <summary>How filled areas are drawn, by its number in the file.</summary>
internal enum PlotFill
{
    Solid = 64,
    Checkerboard = 65,
    Crosshatch = 66,
    Diamonds = 67,
    HorizontalBars = 68,
    SlantLeft = 69,
    SlantRight = 70,
    SquareDots = 71,
    VerticalBars = 72,
    OfObject = 73,
}

/// <summary>How open lines end, by its number in the file.</summary>
internal enum PlotLineEnd
{
    Butt = 0,
    Square = 1,
    Round = 2,
    Diamond = 3,
    OfObject = 4,
}

/// <summary>How the pieces of a line meet, by its number in the file.</summary>
internal enum PlotLineJoin
{
    Miter = 0,
    Bevel = 1,
    Round = 2,
    Diamond = 3,
    OfObject = 5,
}
