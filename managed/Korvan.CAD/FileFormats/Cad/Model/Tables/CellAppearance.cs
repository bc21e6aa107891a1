using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;

namespace Korvan.CAD.FileFormats.Cad.Model.Tables;

/// <summary>Which cells of a style a row has.</summary>
internal enum RowKind
{
    Title,
    Header,
    Data,
}

/// <summary>The sides of a cell that have a border.</summary>
internal enum CellSide
{
    Top,
    Right,
    Bottom,
    Left,
}

/// <summary>The line along a side of a cell.</summary>
/// <param name="IsVisible">Whether it is drawn.</param>
/// <param name="LineWeight">The line weight, as entities have it.</param>
/// <param name="Color">The colour.</param>
/// <param name="IsOwn">Whether the cell itself states a part of it, which then goes before its neighbour.</param>
internal readonly record struct CellBorder(bool IsVisible, short LineWeight, CellColor Color, bool IsOwn = false);

/// <summary>A colour by its index, or as 0xRRGGBB; -1 for none.</summary>
internal readonly record struct CellColor(short Index, int Rgb = -1)
{
    internal static CellColor Of(StatedValue value) => new((short)value.Number, value.Rgb);
}

/// <summary>How a cell is drawn: what its style states, then its table, then the cell itself.</summary>
internal sealed record CellAppearance
{
    private const int BordersOfKind = 6;

    // Flags of a table for titles; those of headers and data follow.
    private const int TextColors = 0x20;
    private const int HasFills = 0x100;
    private const int FillColors = 0x800;
    private const int Alignments = 0x4000;
    private const int TextStyles = 0x20000;
    private const int TextHeights = 0x100000;

    // Flags of a cell.
    private const int OwnAlignment = 0x1;
    private const int OwnHasFill = 0x2;
    private const int OwnFillColor = 0x4;
    private const int OwnTextColor = 0x8;
    private const int OwnTextStyle = 0x10;
    private const int OwnTextHeight = 0x20;
    private const int OwnBorderColor = 0x40;
    private const int OwnBorderWeight = 0x400;
    private const int OwnBorderVisibility = 0x4000;

    private CellBorder[] _borders = [];

    internal int Alignment { get; private init; }

    internal bool HasFill { get; private init; }

    internal CellColor Fill { get; private init; }

    internal CellColor TextColor { get; private init; }

    internal string TextStyle { get; private init; } = "";

    internal double TextHeight { get; private init; }

    /// <summary>Returns how the cells of a kind are drawn, by their style and their table.</summary>
    internal static CellAppearance Of(CadTableStyleCell style, TableProperties table, RowKind kind)
    {
        int shift = (int)kind;
        StatedValue? Stated(int first) =>
            table.Cells.TryGetValue(first << shift, out StatedValue value) ? value : null;
        var borders = new CellBorder[BordersOfKind];
        for (int i = 0; i < borders.Length; i++)
        {
            int flag = 1 << ((shift * BordersOfKind) + i);
            borders[i] = With(
                new CellBorder(
                    style.Borders[i].IsVisible, style.Borders[i].LineWeight, new CellColor(style.Borders[i].ColorId)),
                Find(table.BorderVisibilities, flag), Find(table.BorderLineWeights, flag),
                Find(table.BorderColors, flag));
        }

        return new CellAppearance
        {
            Alignment = (int)(Stated(Alignments)?.Number ?? style.Alignment),
            HasFill = Stated(HasFills) is { } fills ? fills.Number != 0 : style.HasFill,
            Fill = Stated(FillColors) is { } fill ? CellColor.Of(fill) : new CellColor(style.FillColorId),
            TextColor = Stated(TextColors) is { } color ? CellColor.Of(color) : new CellColor(style.TextColorId),
            TextStyle = Stated(TextStyles)?.Text ?? style.TextStyleName,
            TextHeight = Stated(TextHeights)?.Number ?? style.TextHeight,
            _borders = borders,
        };
    }

    /// <summary>Returns how a cell is drawn that states properties of its own.</summary>
    internal CellAppearance For(Dictionary<int, StatedValue> cell) => cell.Count == 0 ? this : this with
    {
        Alignment = (int)(Find(cell, OwnAlignment)?.Number ?? Alignment),
        HasFill = Find(cell, OwnHasFill) is { } hasFill ? hasFill.Number != 0
            : HasFill || cell.ContainsKey(OwnFillColor),
        Fill = Find(cell, OwnFillColor) is { } fill ? CellColor.Of(fill) : Fill,
        TextColor = Find(cell, OwnTextColor) is { } color ? CellColor.Of(color) : TextColor,
        TextStyle = Find(cell, OwnTextStyle)?.Text ?? TextStyle,
        TextHeight = Find(cell, OwnTextHeight)?.Number ?? TextHeight,
    };

    /// <summary>Returns the border along a side.</summary>
    /// <param name="side">The side.</param>
    /// <param name="isOuter">Whether no cell of the same kind follows there.</param>
    /// <param name="cell">What the cell states.</param>
    internal CellBorder BorderOf(CellSide side, bool isOuter, Dictionary<int, StatedValue> cell)
    {
        const int innerHorizontal = 1, innerVertical = 4;
        int index = side switch
        {
            CellSide.Top => isOuter ? 0 : innerHorizontal,
            CellSide.Bottom => isOuter ? 2 : innerHorizontal,
            CellSide.Left => isOuter ? 3 : innerVertical,
            _ => isOuter ? 5 : innerVertical,
        };
        int shift = (int)side;
        StatedValue? weight = Find(cell, OwnBorderWeight << shift);
        StatedValue? visibility = Find(cell, OwnBorderVisibility << shift);
        StatedValue? color = Find(cell, OwnBorderColor << shift);
        CellBorder border = With(_borders[index], visibility, weight, color);
        return border with { IsOwn = (weight ?? visibility ?? color) is not null };
    }

    private static CellBorder With(
        CellBorder border, StatedValue? visibility, StatedValue? weight, StatedValue? color) => new(
            visibility is { } shown ? shown.Number != 0 : border.IsVisible,
            (short)(weight?.Number ?? border.LineWeight),
            color is { } own ? CellColor.Of(own) : border.Color);

    private static StatedValue? Find(Dictionary<int, StatedValue> values, int flag) =>
        values.TryGetValue(flag, out StatedValue value) ? value : null;
}
