using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The shape of markers.</summary>
public sealed class MarkerType : Command
{
    /// <summary>Creates the element with its default.</summary>
    public MarkerType()
        : base(ClassCode.AttributeElement, (int)AttributeElement.MarkerType)
    {
    }

    /// <summary>The shapes of markers.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>A dot.</summary>
        Dot = 1,

        /// <summary>A plus.</summary>
        Plus = 2,

        /// <summary>An asterisk.</summary>
        Asterisk = 3,

        /// <summary>A circle.</summary>
        Circle = 4,

        /// <summary>A diagonal cross.</summary>
        Cross = 5,
    }

    /// <summary>Gets or sets the number of the shape; negative ones are private.</summary>
    public int Index { get; set; } = 3;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public Type Value
    {
        get => (Type)Index;
        set => Index = (int)value;
    }

    internal override void Exchange(ParameterExchange x) => Index = x.Index(Index);
}
