using System;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Begins an array of tiles, each a part of one image of equal cells.</summary>
public sealed class BeginTileArray : Command
{
    private static readonly string[] PathWords = ["0", "90", "180", "270"];

    private static readonly string[] LineWords = ["90", "270"];

    /// <summary>Creates the element with its defaults.</summary>
    public BeginTileArray()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.BeginTileArray)
    {
    }

    /// <summary>Gets or sets the corner of the image that the first cell lies at.</summary>
    public CgmPoint Position { get; set; } = new();

    /// <summary>Gets or sets the direction of the cells of a line, in degrees from the X axis: 0, 90, 180 or
    /// 270.</summary>
    public int CellPathDirection { get; set; }

    /// <summary>Gets or sets the direction from line to line, in degrees from the cells' direction: 90 or
    /// 270.</summary>
    public int LineProgressionDirection { get; set; } = 270;

    /// <summary>Gets or sets the count of tiles along a line.</summary>
    public int TilesInPathDirection { get; set; } = 1;

    /// <summary>Gets or sets the count of tiles across the lines.</summary>
    public int TilesInLineDirection { get; set; } = 1;

    /// <summary>Gets or sets the count of cells of a tile along a line.</summary>
    public int CellsPerTileInPathDirection { get; set; } = 1;

    /// <summary>Gets or sets the count of lines of a tile.</summary>
    public int CellsPerTileInLineDirection { get; set; } = 1;

    /// <summary>Gets or sets the length of a cell along a line.</summary>
    public double CellSizeInPathDirection { get; set; } = 1;

    /// <summary>Gets or sets the length of a cell across the lines.</summary>
    public double CellSizeInLineDirection { get; set; } = 1;

    /// <summary>Gets or sets how many cells of the first tiles lie before the image.</summary>
    public int ImageOffsetInPathDirection { get; set; }

    /// <summary>Gets or sets how many lines of the first tiles lie before the image.</summary>
    public int ImageOffsetInLineDirection { get; set; }

    /// <summary>Gets or sets the count of cells of the image along a line.</summary>
    public int ImageCellsInPathDirection { get; set; } = 1;

    /// <summary>Gets or sets the count of lines of the image.</summary>
    public int ImageCellsInLineDirection { get; set; } = 1;

    internal override void Exchange(ParameterExchange x)
    {
        Position = x.Point(Position);
        CellPathDirection = Direction(x, CellPathDirection, PathWords);
        LineProgressionDirection = Direction(x, LineProgressionDirection, LineWords);
        TilesInPathDirection = x.Integer(TilesInPathDirection);
        TilesInLineDirection = x.Integer(TilesInLineDirection);
        CellsPerTileInPathDirection = x.Integer(CellsPerTileInPathDirection);
        CellsPerTileInLineDirection = x.Integer(CellsPerTileInLineDirection);
        CellSizeInPathDirection = x.Real(CellSizeInPathDirection);
        CellSizeInLineDirection = x.Real(CellSizeInLineDirection);
        ImageOffsetInPathDirection = x.Integer(ImageOffsetInPathDirection);
        ImageOffsetInLineDirection = x.Integer(ImageOffsetInLineDirection);
        ImageCellsInPathDirection = x.Integer(ImageCellsInPathDirection);
        ImageCellsInLineDirection = x.Integer(ImageCellsInLineDirection);
    }

    private static int Direction(ParameterExchange x, int degrees, string[] words)
    {
        int place = Array.IndexOf(words, FormattableString.Invariant($"{degrees}"));
        if (place < 0 && !x.IsReading)
        {
            throw new CgmDataException($"a direction of {degrees} degrees is none of {string.Join(", ", words)}");
        }

        int chosen = x.Enumeration(Math.Max(place, 0), words);
        return (uint)chosen < (uint)words.Length
            ? int.Parse(words[chosen], System.Globalization.CultureInfo.InvariantCulture)
            : throw new CgmDataException($"there is no direction {chosen}");
    }
}
