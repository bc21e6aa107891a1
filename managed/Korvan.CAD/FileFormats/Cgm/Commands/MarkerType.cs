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

    /// <summary>Gets or sets the shape; negative numbers are private.</summary>
    public Type Value { get; set; } = Type.Asterisk;

    internal override void Exchange(ParameterExchange x) => Value = x.Index(Value);
}
