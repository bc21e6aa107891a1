using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Ends an application structure.</summary>
public sealed class EndApplicationStructure : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public EndApplicationStructure()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.EndApplicationStructure)
    {
    }
}
