using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How the elements of a picture tell colours.</summary>
public sealed class ColourSelectionMode : Command
{
    private static readonly string[] Words = ["INDEXED", "DIRECT"];

    /// <summary>Creates the element with its default.</summary>
    public ColourSelectionMode()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.ColourSelectionMode)
    {
    }

    /// <summary>The ways to tell a colour.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>By its number in the colour table.</summary>
        Indexed = 0,

        /// <summary>By its components.</summary>
        Direct = 1,
    }

    /// <summary>Gets or sets the way.</summary>
    public Type Value { get; set; } = Type.Indexed;

    internal override void Exchange(ParameterExchange x) => Value = x.Enumeration(Value, Words);

    internal override void Apply(CodingState state) => state.Current.ColorSelection = Value;
}
