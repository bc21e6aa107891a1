using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Begins a path for texts, put together from the lines up to its end.</summary>
public sealed class BeginCompoundTextPath : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public BeginCompoundTextPath()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.BeginCompoundTextPath)
    {
    }
}
