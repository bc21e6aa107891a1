namespace Korvan.CAD.FileFormats.Cad.Dwg.RevHistory;

/// <summary>The revision history of a drawing database, whose meaning is not known. Source: Open Design Specification
/// for .dwg files, 5.4.1, chapter 18.</summary>
public class RevHistoryData
{
    internal RevHistoryData(int[] values, byte[] rest)
    {
        Values = values;
        Rest = rest;
    }

    /// <summary>Gets the integers that the section begins with: three in release 2004, four later.</summary>
    public int[] Values { get; }

    /// <summary>Gets the bytes that follow the integers.</summary>
    public byte[] Rest { get; }
}
