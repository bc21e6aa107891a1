using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Ends an array of tiles.</summary>
public sealed class EndTileArray : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public EndTileArray()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.EndTileArray)
    {
    }
}
