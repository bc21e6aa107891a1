using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Ends the attributes of an application structure and begins what it holds.</summary>
public sealed class BeginApplicationStructureBody : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public BeginApplicationStructureBody()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.BeginApplicationStructureBody)
    {
    }
}
