using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How areas are filled.</summary>
public sealed class InteriorStyle : Command
{
    internal static readonly string[] Words = ["HOLLOW", "SOLID", "PAT", "HATCH", "EMPTY", "GEOPAT", "INTERP"];

    /// <summary>Creates the element with its default.</summary>
    public InteriorStyle()
        : base(ClassCode.AttributeElement, (int)AttributeElement.InteriorStyle)
    {
    }

    /// <summary>The ways to fill.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Style
    {
        /// <summary>Only the outline is drawn, in the colour of areas.</summary>
        Hollow = 0,

        /// <summary>By the colour of areas.</summary>
        Solid = 1,

        /// <summary>By a pattern of cells.</summary>
        Pattern = 2,

        /// <summary>By hatch lines.</summary>
        Hatch = 3,

        /// <summary>Not at all.</summary>
        Empty = 4,

        /// <summary>By a pattern that is drawn.</summary>
        GeometricPattern = 5,

        /// <summary>By colours that change gradually.</summary>
        Interpolated = 6,
    }

    /// <summary>Gets or sets how.</summary>
    public Style Value { get; set; }

    internal override void Exchange(ParameterExchange x) => Value = x.Enumeration(Value, Words);
}
