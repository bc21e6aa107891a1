using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Begins a closed figure: the lines and areas up to its end are one area.</summary>
public sealed class BeginFigure : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public BeginFigure()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.BeginFigure)
    {
    }
}
