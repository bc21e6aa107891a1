using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The text bundle index.</summary>
[CgmCommand(AttributeElement.TextBundleIndex, "TEXTINDEX")]
public sealed partial class TextBundleIndex : GenericIndexCommand;

/// <summary>The index of the text font in the font list.</summary>
[CgmCommand(AttributeElement.TextFontIndex, "TEXTFONTINDEX")]
public sealed partial class TextFontIndex : GenericIndexCommand;

/// <summary>The text precision, how exactly text is placed.</summary>
[CgmCommand(AttributeElement.TextPrecision, "TEXTPREC")]
public sealed partial class TextPrecision : Command
{
    /// <summary>Gets or sets the precision.</summary>
    [CgmEnum]
    public TextPrecisionType Value { get; set; }
}

/// <summary>The ratio of the character width to that of the font.</summary>
[CgmCommand(AttributeElement.CharacterExpansionFactor, "CHAREXPAN")]
public sealed partial class CharacterExpansionFactor : Command
{
    /// <summary>Gets or sets the factor, positive.</summary>
    [CgmReal]
    public double Factor { get; set; } = 1;
}

/// <summary>The spacing between characters in addition to that of the font.</summary>
[CgmCommand(AttributeElement.CharacterSpacing, "CHARSPACE")]
public sealed partial class CharacterSpacing : Command
{
    /// <summary>Gets or sets the spacing as a fraction of the character height.</summary>
    [CgmReal]
    public double Spacing { get; set; }
}

/// <summary>The text colour.</summary>
[CgmCommand(AttributeElement.TextColour, "TEXTCOLR", Default = "the colour index 1")]
[CgmConstructor(nameof(Color))]
public sealed partial class TextColour : ColourCommand;

/// <summary>The character height, from the base line to the cap line.</summary>
[CgmCommand(AttributeElement.CharacterHeight, "CHARHEIGHT",
    Default = "a height of 327, a hundredth of the default VDC extent")]
[CgmConstructor(nameof(Height))]
public sealed partial class CharacterHeight : Command
{
    /// <summary>Gets or sets the height, in VDC, not negative.</summary>
    [CgmVdc]
    public double Height { get; set; } = 327;
}

/// <summary>The orientation of characters by an up vector and a base vector, whose lengths give the aspect
/// ratio.</summary>
[CgmCommand(AttributeElement.CharacterOrientation, "CHARORI", Default = "an upright orientation")]
public sealed partial class CharacterOrientation : Command
{
    /// <summary>Gets or sets the X component of the up vector.</summary>
    [CgmVdc]
    public double UpX { get; set; }

    /// <summary>Gets or sets the Y component of the up vector.</summary>
    [CgmVdc]
    public double UpY { get; set; } = 1;

    /// <summary>Gets or sets the X component of the base vector.</summary>
    [CgmVdc]
    public double BaseX { get; set; } = 1;

    /// <summary>Gets or sets the Y component of the base vector.</summary>
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
        [CgmKeyword("RIGHT")] Right = 0,

        /// <summary>To the left.</summary>
        [CgmKeyword("LEFT")] Left = 1,

        /// <summary>Up.</summary>
        [CgmKeyword("UP")] Up = 2,

        /// <summary>Down.</summary>
        [CgmKeyword("DOWN")] Down = 3,
    }

    /// <summary>Gets or sets the direction, relative to the character orientation.</summary>
    [CgmEnum]
    public Type Value { get; set; }
}

/// <summary>The point of the text extent that lies at the text position.</summary>
[CgmCommand(AttributeElement.TextAlignment, "TEXTALIGN")]
public sealed partial class TextAlignment : Command
{
    /// <summary>The horizontal alignments.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum HorizontalAlignmentType
    {
        /// <summary>The default of the text path.</summary>
        [CgmKeyword("NORMHORIZ")] Normal = 0,

        /// <summary>The left end.</summary>
        [CgmKeyword("LEFT")] Left = 1,

        /// <summary>The centre.</summary>
        [CgmKeyword("CTR")] Centre = 2,

        /// <summary>The right end.</summary>
        [CgmKeyword("RIGHT")] Right = 3,

        /// <summary>A fraction of the width.</summary>
        [CgmKeyword("CONTHORIZ")] Continuous = 4,
    }

    /// <summary>The vertical alignments.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum VerticalAlignmentType
    {
        /// <summary>The default of the text path.</summary>
        [CgmKeyword("NORMVERT")] Normal = 0,

        /// <summary>The top line, of the highest glyph.</summary>
        [CgmKeyword("TOP")] Top = 1,

        /// <summary>The cap line.</summary>
        [CgmKeyword("CAP")] Cap = 2,

        /// <summary>The half line, between cap line and base line.</summary>
        [CgmKeyword("HALF")] Half = 3,

        /// <summary>The base line.</summary>
        [CgmKeyword("BASE")] Base = 4,

        /// <summary>The bottom line, of the lowest glyph.</summary>
        [CgmKeyword("BOTTOM")] Bottom = 5,

        /// <summary>A fraction of the height.</summary>
        [CgmKeyword("CONTVERT")] Continuous = 6,
    }

    /// <summary>Gets or sets the horizontal alignment.</summary>
    [CgmEnum]
    public HorizontalAlignmentType Horizontal { get; set; }

    /// <summary>Gets or sets the vertical alignment.</summary>
    [CgmEnum]
    public VerticalAlignmentType Vertical { get; set; }

    /// <summary>Gets or sets the fraction of the width that lies left of the position; for continuous
    /// alignment.</summary>
    [CgmReal]
    public double ContinuousHorizontal { get; set; }

    /// <summary>Gets or sets the fraction of the height that lies below the position; for continuous
    /// alignment.</summary>
    [CgmReal]
    public double ContinuousVertical { get; set; }
}

/// <summary>The index of the character set in the character set list.</summary>
[CgmCommand(AttributeElement.CharacterSetIndex, "CHARSETINDEX")]
public sealed partial class CharacterSetIndex : GenericIndexCommand
{
    internal override void Apply(CodingState state) => state.Current.CharacterSet = Index;
}

/// <summary>The index of the character set for codes with the eighth bit set.</summary>
[CgmCommand(AttributeElement.AlternateCharacterSetIndex, "ALTCHARSETINDEX")]
public sealed partial class AlternateCharacterSetIndex : GenericIndexCommand
{
    internal override void Apply(CodingState state) => state.Current.AlternateCharacterSet = Index;
}

/// <summary>The score lines of text, such as an underline.</summary>
[CgmCommand(AttributeElement.TextScoreType, "TEXTSCORETYPE", Default = "the element without lines")]
public sealed partial class TextScoreType : Command
{
    /// <summary>Gets or sets the score lines that are turned on or off.</summary>
    [CgmGroups]
    public List<TSInfo> Infos { get; set; } = [];

    /// <summary>One score line.</summary>
    [CgmGroup]
    public sealed partial class TSInfo
    {
        /// <summary>Creates a score line of type 1 that is off.</summary>
        public TSInfo()
        {
        }

        /// <summary>Gets or sets the type of the score line: 1 right of the text, 2 left of it, 3 through it, 4 marks
        /// at each character; negative ones are private.</summary>
        [CgmIndex]
        public int Type { get; set; } = 1;

        /// <summary>Gets or sets whether the line is drawn.</summary>
        [CgmFlag]
        public bool IsOn { get; set; }
    }
}

/// <summary>How restricted text is fitted into its parallelogram.</summary>
[CgmCommand(AttributeElement.RestrictedTextType, "RESTRTEXTTYPE")]
public sealed partial class RestrictedTextType : Command
{
    /// <summary>The standard types of restricted text.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>Left to the interpreter.</summary>
        Basic = 1,

        /// <summary>The text width and the cap height fill the parallelogram.</summary>
        BoxedCap = 2,

        /// <summary>The text width and the full height of the text fill the parallelogram.</summary>
        BoxedAll = 3,

        /// <summary>As boxed cap, with the aspect ratio kept.</summary>
        IsotropicCap = 4,

        /// <summary>As boxed all, with the aspect ratio kept.</summary>
        IsotropicAll = 5,

        /// <summary>Spaces are widened.</summary>
        Justified = 6,
    }

    /// <summary>Gets or sets the index of the type; negative ones are private.</summary>
    [CgmIndex]
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the same index as an enum member; Python can read it only where the index has a
    /// name.</summary>
    public Type Value { get => (Type)Index; set => Index = (int)value; }
}
