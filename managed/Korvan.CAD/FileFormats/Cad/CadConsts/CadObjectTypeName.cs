using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The types of objects that are not drawn.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadObjectTypeName
{
    /// <summary>A type that the library does not know.</summary>
    None = 0,

    /// <summary>DICTIONARY.</summary>
    Dictionary = 1,

    /// <summary>ACDBDICTIONARYWDFLT.</summary>
    DictionaryWithDefault = 2,

    /// <summary>DICTIONARYVAR.</summary>
    DictionaryVar = 3,

    /// <summary>LAYOUT.</summary>
    Layout = 4,

    /// <summary>PLOTSETTINGS.</summary>
    PlotSettings = 5,

    /// <summary>GROUP.</summary>
    Group = 6,

    /// <summary>XRECORD.</summary>
    XRecord = 7,

    /// <summary>MLINESTYLE.</summary>
    MLineStyle = 8,

    /// <summary>MLEADERSTYLE.</summary>
    MLeaderStyle = 9,

    /// <summary>IMAGEDEF.</summary>
    ImageDef = 10,

    /// <summary>IMAGEDEF_REACTOR.</summary>
    ImageDefReactor = 11,

    /// <summary>WIPEOUTVARIABLES.</summary>
    WipeoutVariables = 12,

    /// <summary>RASTERVARIABLES.</summary>
    RasterVariables = 13,

    /// <summary>SPATIAL_FILTER.</summary>
    SpatialFilter = 14,

    /// <summary>SPATIAL_INDEX.</summary>
    SpatialIndex = 15,

    /// <summary>LAYER_FILTER.</summary>
    LayerFilter = 16,

    /// <summary>SORTENTSTABLE.</summary>
    SortEntsTable = 17,

    /// <summary>MATERIAL.</summary>
    Material = 18,

    /// <summary>VISUALSTYLE.</summary>
    VisualStyle = 19,

    /// <summary>SCALE.</summary>
    Scale = 20,

    /// <summary>TABLESTYLE.</summary>
    TableStyle = 21,

    /// <summary>CELLSTYLEMAP.</summary>
    CellStyleMap = 22,

    /// <summary>FIELD.</summary>
    Field = 23,

    /// <summary>FIELDLIST.</summary>
    FieldList = 24,

    /// <summary>DIMASSOC.</summary>
    DimAssoc = 25,

    /// <summary>GEODATA.</summary>
    GeoData = 26,

    /// <summary>SUN.</summary>
    Sun = 27,

    /// <summary>SUNSTUDY.</summary>
    SunStudy = 28,

    /// <summary>ACDBPLACEHOLDER.</summary>
    Placeholder = 29,

    /// <summary>DGNDEFINITION.</summary>
    DgnDefinition = 30,

    /// <summary>DWFDEFINITION.</summary>
    DwfDefinition = 31,

    /// <summary>PDFDEFINITION.</summary>
    PdfDefinition = 32,

    /// <summary>TABLECONTENT.</summary>
    TableContent = 33,

    /// <summary>TABLEGEOMETRY.</summary>
    TableGeometry = 34,

    /// <summary>VBA_PROJECT.</summary>
    VbaProject = 35,

    /// <summary>DATATABLE.</summary>
    DataTable = 36,

    /// <summary>LIGHTLIST.</summary>
    LightList = 37,
}
