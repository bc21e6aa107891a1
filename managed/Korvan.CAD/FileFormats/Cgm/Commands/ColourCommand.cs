using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A colour that later elements are drawn in.</summary>
public abstract class ColourCommand : Command
{
    private protected ColourCommand(ClassCode elementClass, int elementId)
        : base(elementClass, elementId)
    {
    }

    /// <summary>Gets or sets the colour: a number of the colour table or a colour by itself, as the picture
    /// selects.</summary>
    public CgmColor Color { get; set; } = new(1);

    internal override void Exchange(ParameterExchange x) => Color = x.Color(Color);
}
