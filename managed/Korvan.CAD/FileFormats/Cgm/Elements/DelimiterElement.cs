using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>The delimiter elements of the metafile, pictures and their parts, by their numbers in binary files (ISO/IEC
/// 8632-3, clause 8).</summary>
[PythonEnum(EnumKind.Integer)]
public enum DelimiterElement
{
    /// <summary>The element "begin metafile", in clear text BEGMF.</summary>
    BeginMetafile = 1,

    /// <summary>The element "end metafile", in clear text ENDMF.</summary>
    EndMetafile = 2,

    /// <summary>The element "begin picture", in clear text BEGPIC.</summary>
    BeginPicture = 3,

    /// <summary>The element "begin picture body", in clear text BEGPICBODY.</summary>
    BeginPictureBody = 4,

    /// <summary>The element "end picture", in clear text ENDPIC.</summary>
    EndPicture = 5,

    /// <summary>The element "begin segment", in clear text BEGSEG.</summary>
    BeginSegment = 6,

    /// <summary>The element "end segment", in clear text ENDSEG.</summary>
    EndSegment = 7,

    /// <summary>The element "begin figure", in clear text BEGFIGURE.</summary>
    BeginFigure = 8,

    /// <summary>The element "end figure", in clear text ENDFIGURE.</summary>
    EndFigure = 9,

    /// <summary>The element "begin protection region", in clear text BEGPROTREGION.</summary>
    BeginProtectionRegion = 13,

    /// <summary>The element "end protection region", in clear text ENDPROTREGION.</summary>
    EndProtectionRegion = 14,

    /// <summary>The element "begin compound line", in clear text BEGCOMPOLINE.</summary>
    BeginCompoundLine = 15,

    /// <summary>The element "end compound line", in clear text ENDCOMPOLINE.</summary>
    EndCompoundLine = 16,

    /// <summary>The element "begin compound text path", in clear text BEGCOMPOTEXTPATH.</summary>
    BeginCompoundTextPath = 17,

    /// <summary>The element "end compound text path", in clear text ENDCOMPOTEXTPATH.</summary>
    EndCompoundTextPath = 18,

    /// <summary>The element "begin tile array", in clear text BEGTILEARRAY.</summary>
    BeginTileArray = 19,

    /// <summary>The element "end tile array", in clear text ENDTILEARRAY.</summary>
    EndTileArray = 20,

    /// <summary>The element "begin application structure", in clear text BEGAPS.</summary>
    BeginApplicationStructure = 21,

    /// <summary>The element "begin application structure body", in clear text BEGAPSBODY.</summary>
    BeginApplicationStructureBody = 22,

    /// <summary>The element "end application structure", in clear text ENDAPS.</summary>
    EndApplicationStructure = 23,
}

/// <summary>The commands and keywords of delimiter elements.</summary>
public static partial class DelimiterElements;
