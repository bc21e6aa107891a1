namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States that a property is a list of parts: groups of fields that repeat.</summary>
/// <param name="code">The group code that begins a part.</param>
internal sealed class CadRepeatedAttribute(int code) : CadPropertyAttribute(code)
{
    /// <summary>Gets or sets the group code of the number of parts, which precedes them; 0 where text files state
    /// none.</summary>
    public int Count { get; set; }
}
