using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model.Tables;

/// <summary>
/// The lines between the cells of a table. Where two cells meet, what a cell states itself goes before what its style
/// states, and a visible line before a hidden one.
/// </summary>
/// <param name="xs">The positions of the lines between columns.</param>
/// <param name="ys">The positions of the lines between rows.</param>
internal sealed class TableBorders(double[] xs, double[] ys)
{
    private readonly CellBorder?[,] _horizontal = new CellBorder?[ys.Length, xs.Length];
    private readonly CellBorder?[,] _vertical = new CellBorder?[xs.Length, ys.Length];

    /// <summary>Sets the border below a line of rows, from one line of columns to another.</summary>
    internal void SetRow(int row, int first, int end, CellBorder border) => Set(_horizontal, row, first, end, border);

    /// <summary>Sets the border along a line of columns, from one line of rows to another.</summary>
    internal void SetColumn(int column, int first, int end, CellBorder border) =>
        Set(_vertical, column, first, end, border);

    /// <summary>Adds the lines, each as long as its border stays the same.</summary>
    internal void AddTo(List<CadEntityBase> entities)
    {
        AddRuns(_horizontal, (line, from, to, border) =>
            entities.Add(LineOf(xs[from], ys[line], xs[to], ys[line], border)));
        AddRuns(_vertical, (line, from, to, border) =>
            entities.Add(LineOf(xs[line], ys[from], xs[line], ys[to], border)));
    }

    private static void Set(CellBorder?[,] borders, int line, int first, int end, CellBorder border)
    {
        for (int i = first; i < end; i++)
        {
            CellBorder? present = borders[line, i];
            bool isStronger = present is not { } other || (border.IsOwn && !other.IsOwn)
                || (border.IsOwn == other.IsOwn && border.IsVisible && !other.IsVisible);
            borders[line, i] = isStronger ? border : present;
        }
    }

    private delegate void Run(int line, int from, int to, CellBorder border);

    private static void AddRuns(CellBorder?[,] borders, Run add)
    {
        for (int line = 0; line < borders.GetLength(0); line++)
        {
            int last = borders.GetLength(1) - 1;
            for (int from = 0; from < last;)
            {
                int to = from + 1;
                CellBorder? border = borders[line, from];
                while (to < last && Same(borders[line, to], border))
                {
                    to++;
                }

                if (border is { IsVisible: true } shown)
                {
                    add(line, from, to, shown);
                }

                from = to;
            }
        }
    }

    private static bool Same(CellBorder? one, CellBorder? other) =>
        (one is { } a ? a with { IsOwn = false } : one) == (other is { } b ? b with { IsOwn = false } : other);

    private static CadLine LineOf(double x0, double y0, double x1, double y1, CellBorder border)
    {
        var line = new CadLine
        {
            FirstPoint = new Cad3DPoint(x0, y0, 0),
            SecondPoint = new Cad3DPoint(x1, y1, 0),
            LineWeight = border.LineWeight,
        };
        return TableGraphics.Colored(line, border.Color);
    }
}
