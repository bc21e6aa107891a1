using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The colour of gaps between dashes and behind hatches, where drawing is not transparent.</summary>
public sealed class AuxiliaryColour : ColourCommand
{
    /// <summary>Creates the element with its defaults.</summary>
    public AuxiliaryColour()
        : base(ClassCode.ControlElement, (int)ControlElement.AuxiliaryColour)
    {
    }
}
