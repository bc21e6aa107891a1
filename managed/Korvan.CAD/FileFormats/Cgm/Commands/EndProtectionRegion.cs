using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Ends the outline of a protection region.</summary>
public sealed class EndProtectionRegion : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public EndProtectionRegion()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.EndProtectionRegion)
    {
    }
}
