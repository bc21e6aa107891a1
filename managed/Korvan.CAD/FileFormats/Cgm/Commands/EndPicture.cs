using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Ends a picture.</summary>
public sealed class EndPicture : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public EndPicture()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.EndPicture)
    {
    }
}
