using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Ends a closed figure, which is filled and edged.</summary>
public sealed class EndFigure : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public EndFigure()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.EndFigure)
    {
    }
}
