using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The height of capital letters.</summary>
public sealed class CharacterHeight : Command
{
    /// <summary>Creates a hundredth of the default extent.</summary>
    public CharacterHeight()
        : base(ClassCode.AttributeElement, (int)AttributeElement.CharacterHeight)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="height">The height, in units of the coordinates, not negative.</param>
    public CharacterHeight(double height)
        : this()
    {
        Height = height;
    }

    /// <summary>Gets or sets the height, in units of the coordinates, not negative.</summary>
    public double Height { get; set; } = 327;

    internal override void Exchange(ParameterExchange x) => Height = x.Vdc(Height);
}
