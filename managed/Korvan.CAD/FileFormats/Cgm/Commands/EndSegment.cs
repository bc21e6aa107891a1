using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Ends a segment.</summary>
public sealed class EndSegment : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public EndSegment()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.EndSegment)
    {
    }
}
