using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which glyphs the codes of a set of characters stand for.</summary>
public sealed class GlyphMapping : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public GlyphMapping()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.GlyphMapping)
    {
    }

    /// <summary>Gets or sets the index of the set.</summary>
    public int CharacterSetIndex { get; set; } = 1;

    /// <summary>Gets or sets the kind of the set.</summary>
    public CharacterSetList.Type CharacterSetType { get; set; }

    /// <summary>Gets or sets the end of the sequence that designates the set.</summary>
    public string Designation { get; set; } = "";

    /// <summary>Gets or sets how many bytes a code has, from 1.</summary>
    public int OctetsPerCode { get; set; } = 1;

    /// <summary>Gets or sets where the names of glyphs come from; 1 is the register of ISO/IEC 10036.</summary>
    public int GlyphSource { get; set; } = 1;

    /// <summary>Gets or sets the codes with their glyphs.</summary>
    public StructuredDataRecord CodeAssociations { get; set; } = new();

    internal override void Exchange(ParameterExchange x)
    {
        CharacterSetIndex = x.Index(CharacterSetIndex);
        CharacterSetType = x.Enumeration(CharacterSetType, SharedWords.CharacterSets);
        Designation = x.String(Designation);
        OctetsPerCode = x.Integer(OctetsPerCode);
        GlyphSource = x.Index(GlyphSource);
        CodeAssociations = x.Record(CodeAssociations);
    }
}
