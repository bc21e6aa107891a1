using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The font names, which text font indexes refer to from 1.</summary>
[CgmCommand(MetaFileDescriptorElement.FontList, "FONTLIST", Default = "an empty list")]
public sealed partial class FontList : Command
{
    /// <summary>Gets or sets the font names.</summary>
    [CgmString]
    public List<string> Fonts { get; set; } = [];
}

/// <summary>The character sets, which character set indexes refer to from 1.</summary>
[CgmCommand(MetaFileDescriptorElement.CharacterSetList, "CHARSETLIST", Default = "an empty list")]
public sealed partial class CharacterSetList : Command
{
    /// <summary>The types of character sets.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>94 characters, one byte each.</summary>
        [CgmKeyword("STD94")] Graphic94 = 0,

        /// <summary>96 characters, one byte each.</summary>
        [CgmKeyword("STD96")] Graphic96 = 1,

        /// <summary>Multi-byte characters of 94 codes a byte.</summary>
        [CgmKeyword("STD94MULTIBYTE")] Multibyte94 = 2,

        /// <summary>Multi-byte characters of 96 codes a byte.</summary>
        [CgmKeyword("STD96MULTIBYTE")] Multibyte96 = 3,

        /// <summary>A complete code such as UTF-8.</summary>
        [CgmKeyword("COMPLETECODE")] CompleteCode = 4,
    }

    /// <summary>Gets or sets the types of the sets.</summary>
    public List<Type> Types { get; set; } = [];

    /// <summary>Gets or sets the tail of the designation sequence of each set (ISO/IEC 2022), as many as
    /// types.</summary>
    public List<string> Designations { get; set; } = [];

    internal override void Exchange(ParameterExchange x) => (Types, Designations) = x.Pairs(
        (Types, Designations),
        (nameof(Types), nameof(Designations)),
        null,
        static (y, type) => y.Enumeration(type, EnumKeywords.CharacterSetListType),
        static (y, designation) => y.String(designation));

    internal override void Apply(CodingState state) =>
        state.CharacterSets = [.. Types.Zip(Designations, static (type, tail) => ((int)type, tail))];
}

/// <summary>The character coding technique of strings.</summary>
[CgmCommand(MetaFileDescriptorElement.CharacterCodingAnnouncer, "CHARCODING")]
public sealed partial class CharacterCodingAnnouncer : Command
{
    /// <summary>The character coding techniques (ISO/IEC 8632-1, 7.3.15).</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>One 7-bit character set.</summary>
        [CgmKeyword("BASIC7BIT")] Basic7Bit = 0,

        /// <summary>Two character sets, selected by the eighth bit.</summary>
        [CgmKeyword("BASIC8BIT")] Basic8Bit = 1,

        /// <summary>Character sets switched by ISO/IEC 2022 sequences, 7 bits.</summary>
        [CgmKeyword("EXTD7BIT")] Extended7Bit = 2,

        /// <summary>Character sets switched by ISO/IEC 2022 sequences, 8 bits.</summary>
        [CgmKeyword("EXTD8BIT")] Extended8Bit = 3,
    }

    /// <summary>Gets or sets the technique.</summary>
    [CgmEnum]
    public Type Value { get; set; }
}

/// <summary>The properties of fonts, for substitution: one list for each font of the font list, one after the other; a
/// property whose index is not larger than the last starts the next font.</summary>
[CgmCommand(MetaFileDescriptorElement.FontProperties, "FONTPROP", Default = "an empty list")]
public sealed partial class FontProperties : Command
{
    /// <summary>Gets or sets the properties.</summary>
    [CgmGroups]
    public List<FontInfo> Infos { get; set; } = [];

    /// <summary>One property of a font.</summary>
    [CgmGroup]
    public sealed partial class FontInfo
    {
        /// <summary>Creates a property.</summary>
        public FontInfo()
        {
        }

        /// <summary>Gets or sets the index of the property (ISO/IEC 8632-1, 7.3.21): 1 index, 2 standard version, 3
        /// design source, 4 family, 5 posture, 6 weight, 7 proportionate width, 8 included glyphs, 9 included sets, 10
        /// design size, 11 minimum size, 12 maximum size, 13 group, 14 structure.</summary>
        [CgmIndex]
        public int PropertyIndicator { get; set; } = 1;

        /// <summary>Gets or sets the priority of a match; larger numbers matter more.</summary>
        [CgmInteger]
        public int Priority { get; set; }

        /// <summary>Gets or sets the value, of the type that the property defines.</summary>
        [CgmRecord]
        public StructuredDataRecord Value { get; set; } = new();
    }
}

/// <summary>The glyphs of the codes of a character set.</summary>
[CgmCommand(MetaFileDescriptorElement.GlyphMapping, "GLYPHMAP")]
public sealed partial class GlyphMapping : Command
{
    /// <summary>Gets or sets the index of the character set.</summary>
    [CgmIndex]
    public int CharacterSetIndex { get; set; } = 1;

    /// <summary>Gets or sets the type of the character set.</summary>
    [CgmEnum]
    public CharacterSetList.Type CharacterSetType { get; set; }

    /// <summary>Gets or sets the tail of the designation sequence of the character set.</summary>
    [CgmString]
    public string Designation { get; set; } = "";

    /// <summary>Gets or sets the bytes per code, from 1.</summary>
    [CgmInteger]
    public int OctetsPerCode { get; set; } = 1;

    /// <summary>Gets or sets the source of glyph names; 1 is the register of ISO/IEC 10036.</summary>
    [CgmIndex]
    public int GlyphSource { get; set; } = 1;

    /// <summary>Gets or sets the codes with their glyphs.</summary>
    [CgmRecord]
    public StructuredDataRecord CodeAssociations { get; set; } = new();
}

/// <summary>The names of symbol libraries, which symbol library indexes refer to from 1.</summary>
[CgmCommand(MetaFileDescriptorElement.SymbolLibraryList, "SYMBOLLIBLIST", Default = "an empty list")]
public sealed partial class SymbolLibraryList : Command
{
    /// <summary>Gets or sets the names.</summary>
    [CgmString]
    public List<string> Libraries { get; set; } = [];
}
