using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Ends a part of the outline of a closed figure; the next line begins another.</summary>
public sealed class NewRegion : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public NewRegion()
        : base(ClassCode.ControlElement, (int)ControlElement.NewRegion)
    {
    }
}
