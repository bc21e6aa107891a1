using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The direction from character to character.</summary>
public sealed class TextPath : Command
{
    private static readonly string[] Words = ["RIGHT", "LEFT", "UP", "DOWN"];

    /// <summary>Creates the element with its default.</summary>
    public TextPath()
        : base(ClassCode.AttributeElement, (int)AttributeElement.TextPath)
    {
    }

    /// <summary>The directions.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>To the right.</summary>
        Right = 0,

        /// <summary>To the left.</summary>
        Left = 1,

        /// <summary>Up.</summary>
        Up = 2,

        /// <summary>Down.</summary>
        Down = 3,
    }

    /// <summary>Gets or sets the direction, seen from upright characters.</summary>
    public Type Value { get; set; }

    internal override void Exchange(ParameterExchange x) => Value = x.Enumeration(Value, Words);
}
