using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Ends a path for texts.</summary>
public sealed class EndCompoundTextPath : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public EndCompoundTextPath()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.EndCompoundTextPath)
    {
    }
}
