using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which bundle of attributes texts take.</summary>
[CgmCommand(AttributeElement.TextBundleIndex, "TEXTINDEX")]
public sealed partial class TextBundleIndex : GenericIndexCommand;

/// <summary>The font of texts, by its place in the font list.</summary>
[CgmCommand(AttributeElement.TextFontIndex, "TEXTFONTINDEX")]
public sealed partial class TextFontIndex : GenericIndexCommand;

/// <summary>How exactly texts are placed.</summary>
[CgmCommand(AttributeElement.TextPrecision, "TEXTPREC")]
public sealed partial class TextPrecision : Command
{
    /// <summary>Gets or sets how exactly.</summary>
    [CgmEnum]
    public TextPrecisionType Value { get; set; }
}

/// <summary>How much wider characters are than the font has them.</summary>
[CgmCommand(AttributeElement.CharacterExpansionFactor, "CHAREXPAN")]
public sealed partial class CharacterExpansionFactor : Command
{
    /// <summary>Gets or sets the factor, positive.</summary>
    [CgmReal]
    public double Factor { get; set; } = 1;
}

/// <summary>The gap between characters beyond that of the font.</summary>
[CgmCommand(AttributeElement.CharacterSpacing, "CHARSPACE")]
public sealed partial class CharacterSpacing : Command
{
    /// <summary>Gets or sets the gap, in parts of the height of characters.</summary>
    [CgmReal]
    public double Spacing { get; set; }
}

/// <summary>The colour of texts.</summary>
[CgmCommand(AttributeElement.TextColour, "TEXTCOLR",
    Default = "the number 1 of the colour table")]
[CgmConstructor(nameof(Color))]
public sealed partial class TextColour : ColourCommand;

/// <summary>The height of capital letters.</summary>
[CgmCommand(AttributeElement.CharacterHeight, "CHARHEIGHT",
    Default = "a hundredth of the default extent")]
[CgmConstructor(nameof(Height))]
public sealed partial class CharacterHeight : Command
{
    /// <summary>Gets or sets the height, in units of the coordinates, not negative.</summary>
    [CgmVdc]
    public double Height { get; set; } = 327;
}

/// <summary>Where characters have their top and their base line; the lengths of both vectors tell the ratio of height
/// and width.</summary>
[CgmCommand(AttributeElement.CharacterOrientation, "CHARORI",
    Default = "upright")]
public sealed partial class CharacterOrientation : Command
{
    /// <summary>Gets or sets the abscissa of the direction up.</summary>
    [CgmVdc]
    public double UpX { get; set; }

    /// <summary>Gets or sets the ordinate of the direction up.</summary>
    [CgmVdc]
    public double UpY { get; set; } = 1;

    /// <summary>Gets or sets the abscissa of the direction of the base line.</summary>
    [CgmVdc]
    public double BaseX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of the direction of the base line.</summary>
    [CgmVdc]
    public double BaseY { get; set; }
}

/// <summary>The direction from character to character.</summary>
[CgmCommand(AttributeElement.TextPath, "TEXTPATH")]
public sealed partial class TextPath : Command
{
    /// <summary>The directions.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>To the right.</summary>
        [CgmKeyword("RIGHT")]
        Right = 0,

        /// <summary>To the left.</summary>
        [CgmKeyword("LEFT")]
        Left = 1,

        /// <summary>Up.</summary>
        [CgmKeyword("UP")]
        Up = 2,

        /// <summary>Down.</summary>
        [CgmKeyword("DOWN")]
        Down = 3,
    }

    /// <summary>Gets or sets the direction, seen from upright characters.</summary>
    [CgmEnum]
    public Type Value { get; set; }
}

/// <summary>Which point of a text lies at its position.</summary>
[CgmCommand(AttributeElement.TextAlignment, "TEXTALIGN")]
public sealed partial class TextAlignment : Command
{
    /// <summary>The alignments along a text.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum HorizontalAlignmentType
    {
        /// <summary>As the path has it.</summary>
        [CgmKeyword("NORMHORIZ")]
        Normal = 0,

        /// <summary>The left end.</summary>
        [CgmKeyword("LEFT")]
        Left = 1,

        /// <summary>The middle.</summary>
        [CgmKeyword("CTR")]
        Centre = 2,

        /// <summary>The right end.</summary>
        [CgmKeyword("RIGHT")]
        Right = 3,

        /// <summary>A part of the width.</summary>
        [CgmKeyword("CONTHORIZ")]
        Continuous = 4,
    }

    /// <summary>The alignments across a text.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum VerticalAlignmentType
    {
        /// <summary>As the path has it.</summary>
        [CgmKeyword("NORMVERT")]
        Normal = 0,

        /// <summary>The top of the highest character.</summary>
        [CgmKeyword("TOP")]
        Top = 1,

        /// <summary>The top of capital letters.</summary>
        [CgmKeyword("CAP")]
        Cap = 2,

        /// <summary>The middle of capital letters.</summary>
        [CgmKeyword("HALF")]
        Half = 3,

        /// <summary>The base line.</summary>
        [CgmKeyword("BASE")]
        Base = 4,

        /// <summary>The bottom of the lowest character.</summary>
        [CgmKeyword("BOTTOM")]
        Bottom = 5,

        /// <summary>A part of the height.</summary>
        [CgmKeyword("CONTVERT")]
        Continuous = 6,
    }

    /// <summary>Gets or sets the alignment along the text.</summary>
    [CgmEnum]
    public HorizontalAlignmentType Horizontal { get; set; }

    /// <summary>Gets or sets the alignment across the text.</summary>
    [CgmEnum]
    public VerticalAlignmentType Vertical { get; set; }

    /// <summary>Gets or sets the part of the width that lies left of the position; for continuous alignment.</summary>
    [CgmReal]
    public double ContinuousHorizontal { get; set; }

    /// <summary>Gets or sets the part of the height that lies below the position; for continuous alignment.</summary>
    [CgmReal]
    public double ContinuousVertical { get; set; }
}

/// <summary>The set of the characters of texts, by its place in the list of sets.</summary>
[CgmCommand(AttributeElement.CharacterSetIndex, "CHARSETINDEX")]
public sealed partial class CharacterSetIndex : GenericIndexCommand
{
    internal override void Apply(CodingState state) => state.Current.CharacterSet = Index;
}

/// <summary>The set of characters with the eighth bit, by its place in the list of sets.</summary>
[CgmCommand(AttributeElement.AlternateCharacterSetIndex, "ALTCHARSETINDEX")]
public sealed partial class AlternateCharacterSetIndex : GenericIndexCommand
{
    internal override void Apply(CodingState state) => state.Current.AlternateCharacterSet = Index;
}

/// <summary>The lines at texts, such as an underline.</summary>
[CgmCommand(AttributeElement.TextScoreType, "TEXTSCORETYPE",
    Default = "the element without lines")]
public sealed partial class TextScoreType : Command
{
    /// <summary>Gets or sets the lines that are turned on or off.</summary>
    [CgmGroups]
    public List<TSInfo> Infos { get; set; } = [];

    /// <summary>One line at texts.</summary>
    [CgmGroup]
    public sealed partial class TSInfo
    {
        /// <summary>Creates an underline that is off.</summary>
        public TSInfo()
        {
        }

        /// <summary>Gets or sets where the line is: 1 to the right of the text, 2 to its left, 3 through it, 4 marks at
        /// each character; negative numbers are private.</summary>
        [CgmIndex]
        public int Type { get; set; } = 1;

        /// <summary>Gets or sets whether the line is drawn.</summary>
        [CgmFlag]
        public bool IsOn { get; set; }
    }
}

/// <summary>How restricted texts are fitted into their parallelogram.</summary>
[CgmCommand(AttributeElement.RestrictedTextType, "RESTRTEXTTYPE")]
public sealed partial class RestrictedTextType : Command
{
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
    [CgmIndex]
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public Type Value { get => (Type)Index; set => Index = (int)value; }
}
