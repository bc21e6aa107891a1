using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Begins a line that is put together from the lines up to its end.</summary>
public sealed class BeginCompoundLine : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public BeginCompoundLine()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.BeginCompoundLine)
    {
    }
}
