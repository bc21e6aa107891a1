namespace Korvan.CAD.FileFormats.PlotStyles;

/// <summary>What a plot style makes of the objects that have it. What it leaves alone is the object's own.</summary>
internal sealed record PlotStyle(string Name)
{
    internal const int FullIntensity = 100;

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

    /// <summary>Gets whether lines are continuous, whatever their line type is.</summary>
    internal bool IsContinuous { get; init; }
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
