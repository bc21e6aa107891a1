using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Where characters have their top and their base line; the lengths of both vectors tell the ratio of height
/// and width.</summary>
public sealed class CharacterOrientation : Command
{
    /// <summary>Creates upright.</summary>
    public CharacterOrientation()
        : base(ClassCode.AttributeElement, (int)AttributeElement.CharacterOrientation)
    {
    }

    /// <summary>Gets or sets the abscissa of the direction up.</summary>
    public double UpX { get; set; }

    /// <summary>Gets or sets the ordinate of the direction up.</summary>
    public double UpY { get; set; } = 1;

    /// <summary>Gets or sets the abscissa of the direction of the base line.</summary>
    public double BaseX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of the direction of the base line.</summary>
    public double BaseY { get; set; }

    internal override void Exchange(ParameterExchange x)
    {
        UpX = x.Vdc(UpX);
        UpY = x.Vdc(UpY);
        BaseX = x.Vdc(BaseX);
        BaseY = x.Vdc(BaseY);
    }
}
