using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The gap between characters beyond that of the font.</summary>
public sealed class CharacterSpacing : Command
{
    /// <summary>Creates the element with its default.</summary>
    public CharacterSpacing()
        : base(ClassCode.AttributeElement, (int)AttributeElement.CharacterSpacing)
    {
    }

    /// <summary>Gets or sets the gap, in parts of the height of characters.</summary>
    public double Spacing { get; set; }

    internal override void Exchange(ParameterExchange x) => Spacing = x.Real(Spacing);
}
