using System;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>How many cells there are and how the colour of one is coded.</summary>
/// <param name="Width">Cells in a row.</param>
/// <param name="Height">Rows.</param>
/// <param name="Bits">Bits of an index, or of one component of a colour.</param>
/// <param name="Components">1 for indexes, else how many components a colour has.</param>
/// <param name="IsLocal">Whether the precision is not that of the metafile.</param>
internal readonly record struct CellFormat(int Width, int Height, int Bits, int Components, bool IsLocal)
{
    internal const int RunLength = 0, Packed = 1;

    /// <summary>A limit to the memory of one array.</summary>
    private const long MaxCells = 1 << 28;

    internal static readonly KeywordTable Modes = new([RunLength, Packed], ["run length", "packed"]);

    private static readonly int[] Precisions = [1, 2, 4, 8, 16, 24, 32];

    internal bool IsIndexed => Components == 1;

    internal int BitsPerCell => Bits * Components;

    internal long BytesPerLine => (((long)Width * BitsPerCell) + 7) / 8;

    internal int Count => Width * Height;

    /// <summary>Returns the format that an element states.</summary>
    /// <exception cref="CgmDataException">No file can have such cells.</exception>
    internal static CellFormat Of(CodingState state, int width, int height, int precision)
    {
        if (width <= 0 || height <= 0 || (long)width * height > MaxCells)
        {
            throw new CgmDataException(
                $"there are {width} by {height} cells; both have to be positive, their product at most {MaxCells}");
        }

        if (precision != 0 && Array.IndexOf(Precisions, precision) < 0)
        {
            throw new CgmDataException(
                $"the precision of the cells is {precision} and has to be 0, {string.Join(", ", Precisions)}");
        }

        int metafile = state.HasIndexedColors ? state.ColorIndexBits : state.ColorBits;
        int components = state.HasIndexedColors ? 1 : state.ColorComponents;
        int bits = precision == 0 ? metafile : precision;
        return new CellFormat(width, height, bits, components, bits != metafile);
    }
}
