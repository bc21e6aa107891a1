namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States that a property is a list of numbers, points, texts or handles, whose items repeat one group
/// code.</summary>
/// <param name="code">The group code of an item; of a point that of its X.</param>
internal sealed class CadListAttribute(int code) : CadPropertyAttribute(code)
{
    /// <summary>Gets or sets the group code of the number of items, which precedes them; 0 where text files state
    /// none.</summary>
    public int Count { get; set; }

    /// <summary>Gets or sets the largest number of items of a list whose length text files do not state; 0 for
    /// any.</summary>
    public int Max { get; set; }
}
