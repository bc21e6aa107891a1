using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How much wider characters are than the font has them.</summary>
public sealed class CharacterExpansionFactor : Command
{
    /// <summary>Creates the element with its default.</summary>
    public CharacterExpansionFactor()
        : base(ClassCode.AttributeElement, (int)AttributeElement.CharacterExpansionFactor)
    {
    }

    /// <summary>Gets or sets the factor, positive.</summary>
    public double Factor { get; set; } = 1;

    internal override void Exchange(ParameterExchange x) => Factor = x.Real(Factor);
}
