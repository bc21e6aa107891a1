using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which point of a text lies at its position.</summary>
public sealed class TextAlignment : Command
{
    private static readonly string[] HorizontalWords = ["NORMHORIZ", "LEFT", "CTR", "RIGHT", "CONTHORIZ"];

    private static readonly string[] VerticalWords = ["NORMVERT", "TOP", "CAP", "HALF", "BASE", "BOTTOM", "CONTVERT"];

    /// <summary>Creates the element with its defaults.</summary>
    public TextAlignment()
        : base(ClassCode.AttributeElement, (int)AttributeElement.TextAlignment)
    {
    }

    /// <summary>The alignments along a text.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum HorizontalAlignmentType
    {
        /// <summary>As the path has it.</summary>
        Normal = 0,

        /// <summary>The left end.</summary>
        Left = 1,

        /// <summary>The middle.</summary>
        Centre = 2,

        /// <summary>The right end.</summary>
        Right = 3,

        /// <summary>A part of the width.</summary>
        Continuous = 4,
    }

    /// <summary>The alignments across a text.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum VerticalAlignmentType
    {
        /// <summary>As the path has it.</summary>
        Normal = 0,

        /// <summary>The top of the highest character.</summary>
        Top = 1,

        /// <summary>The top of capital letters.</summary>
        Cap = 2,

        /// <summary>The middle of capital letters.</summary>
        Half = 3,

        /// <summary>The base line.</summary>
        Base = 4,

        /// <summary>The bottom of the lowest character.</summary>
        Bottom = 5,

        /// <summary>A part of the height.</summary>
        Continuous = 6,
    }

    /// <summary>Gets or sets the alignment along the text.</summary>
    public HorizontalAlignmentType Horizontal { get; set; }

    /// <summary>Gets or sets the alignment across the text.</summary>
    public VerticalAlignmentType Vertical { get; set; }

    /// <summary>Gets or sets the part of the width that lies left of the position; for continuous alignment.</summary>
    public double ContinuousHorizontal { get; set; }

    /// <summary>Gets or sets the part of the height that lies below the position; for continuous alignment.</summary>
    public double ContinuousVertical { get; set; }

    internal override void Exchange(ParameterExchange x)
    {
        Horizontal = x.Enumeration(Horizontal, HorizontalWords);
        Vertical = x.Enumeration(Vertical, VerticalWords);
        ContinuousHorizontal = x.Real(ContinuousHorizontal);
        ContinuousVertical = x.Real(ContinuousVertical);
    }
}
