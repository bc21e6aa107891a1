namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A part of a table that was broken into several: its rows and its position.</summary>
public sealed class CadBreakData
{
    internal CadBreakData(Cad3DPoint offset, int startRow, int endRow)
    {
        Offset = offset;
        StartRow = startRow;
        EndRow = endRow;
    }

    /// <summary>Gets the position against that of the table, in drawing units. Group codes 10, 20, 30.</summary>
    public Cad3DPoint Offset { get; }

    /// <summary>Gets the index of the first row, from 0. Group code 90.</summary>
    public int StartRow { get; }

    /// <summary>Gets the index of the last row. Group code 90.</summary>
    public int EndRow { get; }
}
