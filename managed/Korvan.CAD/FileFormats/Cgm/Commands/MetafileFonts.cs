using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The names of the fonts, which texts count from 1.</summary>
[CgmCommand(MetaFileDescriptorElement.FontList, "FONTLIST",
    Default = "an empty list")]
public sealed partial class FontList : Command
{
    /// <summary>Gets or sets the names.</summary>
    [CgmString]
    public List<string> Fonts { get; set; } = [];
}

/// <summary>The sets of characters, which texts count from 1.</summary>
[CgmCommand(MetaFileDescriptorElement.CharacterSetList, "CHARSETLIST",
    Default = "an empty list")]
public sealed partial class CharacterSetList : Command
{
    /// <summary>The kinds of sets.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>94 characters.</summary>
        [CgmKeyword("STD94")]
        Graphic94 = 0,

        /// <summary>96 characters.</summary>
        [CgmKeyword("STD96")]
        Graphic96 = 1,

        /// <summary>94 characters to the power of some bytes.</summary>
        [CgmKeyword("STD94MULTIBYTE")]
        Multibyte94 = 2,

        /// <summary>96 characters to the power of some bytes.</summary>
        [CgmKeyword("STD96MULTIBYTE")]
        Multibyte96 = 3,

        /// <summary>A code of its own, UTF-8 for one.</summary>
        [CgmKeyword("COMPLETECODE")]
        CompleteCode = 4,
    }

    /// <summary>Gets or sets the kinds of the sets.</summary>
    public List<Type> Types { get; set; } = [];

    /// <summary>Gets or sets the end of the sequence that designates each set (ISO/IEC 2022), as many as
    /// kinds.</summary>
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

/// <summary>How characters are coded in texts.</summary>
[CgmCommand(MetaFileDescriptorElement.CharacterCodingAnnouncer, "CHARCODING")]
public sealed partial class CharacterCodingAnnouncer : Command
{
    /// <summary>The techniques of coding (ISO/IEC 8632-1, 7.3.15).</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>One set of characters of 7 bits.</summary>
        [CgmKeyword("BASIC7BIT")]
        Basic7Bit = 0,

        /// <summary>Two sets of characters, told apart by the eighth bit.</summary>
        [CgmKeyword("BASIC8BIT")]
        Basic8Bit = 1,

        /// <summary>Sets are switched by the sequences of ISO/IEC 2022; 7 bits.</summary>
        [CgmKeyword("EXTD7BIT")]
        Extended7Bit = 2,

        /// <summary>Sets are switched by the sequences of ISO/IEC 2022; 8 bits.</summary>
        [CgmKeyword("EXTD8BIT")]
        Extended8Bit = 3,
    }

    /// <summary>Gets or sets the technique.</summary>
    [CgmEnum]
    public Type Value { get; set; }
}

/// <summary>What fonts shall look like that are not at hand: one list for each font of the font list, one after the
/// other; a property whose number is not larger than the last begins the next font.</summary>
[CgmCommand(MetaFileDescriptorElement.FontProperties, "FONTPROP",
    Default = "an empty list")]
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

        /// <summary>Gets or sets which property it is (ISO/IEC 8632-1, 7.3.21): 1 index, 2 standard version, 3 design
        /// source, 4 family, 5 posture, 6 weight, 7 proportionate width, 8 included glyphs, 9 included sets, 10 design
        /// size, 11 least size, 12 largest size, 13 group, 14 structure.</summary>
        [CgmIndex]
        public int PropertyIndicator { get; set; } = 1;

        /// <summary>Gets or sets how much it matters that the property is met; larger numbers matter more.</summary>
        [CgmInteger]
        public int Priority { get; set; }

        /// <summary>Gets or sets the value, of the type that belongs to the property.</summary>
        [CgmRecord]
        public StructuredDataRecord Value { get; set; } = new();
    }
}

/// <summary>Which glyphs the codes of a set of characters stand for.</summary>
[CgmCommand(MetaFileDescriptorElement.GlyphMapping, "GLYPHMAP")]
public sealed partial class GlyphMapping : Command
{
    /// <summary>Gets or sets the index of the set.</summary>
    [CgmIndex]
    public int CharacterSetIndex { get; set; } = 1;

    /// <summary>Gets or sets the kind of the set.</summary>
    [CgmEnum]
    public CharacterSetList.Type CharacterSetType { get; set; }

    /// <summary>Gets or sets the end of the sequence that designates the set.</summary>
    [CgmString]
    public string Designation { get; set; } = "";

    /// <summary>Gets or sets how many bytes a code has, from 1.</summary>
    [CgmInteger]
    public int OctetsPerCode { get; set; } = 1;

    /// <summary>Gets or sets where the names of glyphs come from; 1 is the register of ISO/IEC 10036.</summary>
    [CgmIndex]
    public int GlyphSource { get; set; } = 1;

    /// <summary>Gets or sets the codes with their glyphs.</summary>
    [CgmRecord]
    public StructuredDataRecord CodeAssociations { get; set; } = new();
}

/// <summary>The names of the libraries of symbols, which are counted from 1.</summary>
[CgmCommand(MetaFileDescriptorElement.SymbolLibraryList, "SYMBOLLIBLIST",
    Default = "an empty list")]
public sealed partial class SymbolLibraryList : Command
{
    /// <summary>Gets or sets the names.</summary>
    [CgmString]
    public List<string> Libraries { get; set; } = [];
}
