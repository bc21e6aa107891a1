using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>The metafile descriptor elements, by their numbers in binary files (ISO/IEC 8632-3, clause 8).</summary>
[PythonEnum(EnumKind.Integer)]
public enum MetaFileDescriptorElement
{
    /// <summary>The element "metafile version", in clear text MFVERSION.</summary>
    MetafileVersion = 1,

    /// <summary>The element "metafile description", in clear text MFDESC.</summary>
    MetafileDescription = 2,

    /// <summary>The element "vdc type", in clear text VDCTYPE.</summary>
    VdcType = 3,

    /// <summary>The element "integer precision", in clear text INTEGERPREC.</summary>
    IntegerPrecision = 4,

    /// <summary>The element "real precision", in clear text REALPREC.</summary>
    RealPrecision = 5,

    /// <summary>The element "index precision", in clear text INDEXPREC.</summary>
    IndexPrecision = 6,

    /// <summary>The element "colour precision", in clear text COLRPREC.</summary>
    ColourPrecision = 7,

    /// <summary>The element "colour index precision", in clear text COLRINDEXPREC.</summary>
    ColourIndexPrecision = 8,

    /// <summary>The element "maximum colour index", in clear text MAXCOLRINDEX.</summary>
    MaximumColourIndex = 9,

    /// <summary>The element "colour value extent", in clear text COLRVALUEEXT.</summary>
    ColourValueExtent = 10,

    /// <summary>The element "metafile element list", in clear text MFELEMLIST.</summary>
    MetafileElementList = 11,

    /// <summary>The element "metafile defaults replacement", in clear text BEGMFDEFAULTS.</summary>
    MetafileDefaultsReplacement = 12,

    /// <summary>The element "font list", in clear text FONTLIST.</summary>
    FontList = 13,

    /// <summary>The element "character set list", in clear text CHARSETLIST.</summary>
    CharacterSetList = 14,

    /// <summary>The element "character coding announcer", in clear text CHARCODING.</summary>
    CharacterCodingAnnouncer = 15,

    /// <summary>The element "name precision", in clear text NAMEPREC.</summary>
    NamePrecision = 16,

    /// <summary>The element "maximum vdc extent", in clear text MAXVDCEXT.</summary>
    MaximumVdcExtent = 17,

    /// <summary>The element "segment priority extend", in clear text SEGPRIEXT.</summary>
    SegmentPriorityExtend = 18,

    /// <summary>The element "colour model", in clear text COLRMODEL.</summary>
    ColourModel = 19,

    /// <summary>The element "colour calibration", in clear text COLRCALIB.</summary>
    ColourCalibration = 20,

    /// <summary>The element "font properties", in clear text FONTPROP.</summary>
    FontProperties = 21,

    /// <summary>The element "glyph mapping", in clear text GLYPHMAP.</summary>
    GlyphMapping = 22,

    /// <summary>The element "symbol library list", in clear text SYMBOLLIBLIST.</summary>
    SymbolLibraryList = 23,

    /// <summary>The element "picture directory", in clear text PICDIR.</summary>
    PictureDirectory = 24,
}

/// <summary>The commands and keywords of metafile descriptor elements.</summary>
public static partial class MetaFileDescriptorElements;
