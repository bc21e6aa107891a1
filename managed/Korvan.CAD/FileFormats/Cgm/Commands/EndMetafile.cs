using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Ends the metafile.</summary>
public sealed class EndMetafile : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public EndMetafile()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.EndMetafile)
    {
    }
}
