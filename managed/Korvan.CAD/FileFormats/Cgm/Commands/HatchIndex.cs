using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The hatch of areas.</summary>
public sealed class HatchIndex : Command
{
    /// <summary>Creates the element with its default.</summary>
    public HatchIndex()
        : base(ClassCode.AttributeElement, (int)AttributeElement.HatchIndex)
    {
    }

    /// <summary>The hatches.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum HatchType
    {
        /// <summary>Horizontal lines.</summary>
        Horizontal = 1,

        /// <summary>Vertical lines.</summary>
        Vertical = 2,

        /// <summary>Lines that rise.</summary>
        PositiveSlope = 3,

        /// <summary>Lines that fall.</summary>
        NegativeSlope = 4,

        /// <summary>Horizontal and vertical lines.</summary>
        HorizontalVerticalCross = 5,

        /// <summary>Rising and falling lines.</summary>
        PositiveNegativeCross = 6,
    }

    /// <summary>Gets or sets the number of the hatch; negative ones are private or defined by the picture.</summary>
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public HatchType Value
    {
        get => (HatchType)Index;
        set => Index = (int)value;
    }

    internal override void Exchange(ParameterExchange x) => Index = x.Index(Index);
}
