using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Ends the description of a picture and begins what is drawn.</summary>
public sealed class BeginPictureBody : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public BeginPictureBody()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.BeginPictureBody)
    {
    }
}
