using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How restricted texts are fitted into their parallelogram.</summary>
public sealed class RestrictedTextType : Command
{
    /// <summary>Creates the element with its default.</summary>
    public RestrictedTextType()
        : base(ClassCode.AttributeElement, (int)AttributeElement.RestrictedTextType)
    {
    }

    /// <summary>The ways to fit.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>As the program that draws likes it.</summary>
        Basic = 1,

        /// <summary>Width and the height of capital letters fill it.</summary>
        BoxedCap = 2,

        /// <summary>Width and the height of all letters fill it.</summary>
        BoxedAll = 3,

        /// <summary>As boxed by capital letters, but the shape is kept.</summary>
        IsotropicCap = 4,

        /// <summary>As boxed by all letters, but the shape is kept.</summary>
        IsotropicAll = 5,

        /// <summary>Spaces are widened.</summary>
        Justified = 6,
    }

    /// <summary>Gets or sets the number of the way to fit; negative ones are private.</summary>
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public Type Value
    {
        get => (Type)Index;
        set => Index = (int)value;
    }

    internal override void Exchange(ParameterExchange x) => Index = x.Index(Index);
}
