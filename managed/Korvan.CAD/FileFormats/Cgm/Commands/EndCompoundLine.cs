using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Ends a compound line, which is drawn as one.</summary>
public sealed class EndCompoundLine : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public EndCompoundLine()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.EndCompoundLine)
    {
    }
}
