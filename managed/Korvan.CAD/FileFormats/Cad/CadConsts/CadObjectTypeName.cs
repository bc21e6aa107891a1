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

    /// <summary>ACAD_EVALUATION_GRAPH.</summary>
    EvaluationGraph = 38,

    /// <summary>BLOCKALIGNMENTGRIP.</summary>
    BlockAlignmentGrip = 39,

    /// <summary>BLOCKALIGNMENTPARAMETER.</summary>
    BlockAlignmentParameter = 40,

    /// <summary>BLOCKBASEPOINTPARAMETER.</summary>
    BlockBasePointParameter = 41,

    /// <summary>BLOCKFLIPACTION.</summary>
    BlockFlipAction = 42,

    /// <summary>BLOCKFLIPGRIP.</summary>
    BlockFlipGrip = 43,

    /// <summary>BLOCKFLIPPARAMETER.</summary>
    BlockFlipParameter = 44,

    /// <summary>BLOCKGRIPLOCATIONCOMPONENT.</summary>
    BlockGripLocationComponent = 45,

    /// <summary>BLOCKLINEARGRIP.</summary>
    BlockLinearGrip = 46,

    /// <summary>BLOCKLINEARPARAMETER.</summary>
    BlockLinearParameter = 47,

    /// <summary>BLOCKMOVEACTION.</summary>
    BlockMoveAction = 48,

    /// <summary>BLOCKPOINTPARAMETER.</summary>
    BlockPointParameter = 49,

    /// <summary>BLOCKROTATEACTION.</summary>
    BlockRotateAction = 50,

    /// <summary>BLOCKROTATIONGRIP.</summary>
    BlockRotationGrip = 51,

    /// <summary>BLOCKROTATIONPARAMETER.</summary>
    BlockRotationParameter = 52,

    /// <summary>BLOCKSCALEACTION.</summary>
    BlockScaleAction = 53,

    /// <summary>BLOCKSTRETCHACTION.</summary>
    BlockStretchAction = 54,

    /// <summary>BLOCKVISIBILITYGRIP.</summary>
    BlockVisibilityGrip = 55,

    /// <summary>BLOCKVISIBILITYPARAMETER.</summary>
    BlockVisibilityParameter = 56,

    /// <summary>BLOCKXYGRIP.</summary>
    BlockXYGrip = 57,

    /// <summary>ACSH_BOX_CLASS.</summary>
    HistoryBox = 58,

    /// <summary>ACSH_WEDGE_CLASS.</summary>
    HistoryWedge = 59,

    /// <summary>ACSH_SPHERE_CLASS.</summary>
    HistorySphere = 60,

    /// <summary>ACSH_CYLINDER_CLASS.</summary>
    HistoryCylinder = 61,

    /// <summary>ACSH_CONE_CLASS.</summary>
    HistoryCone = 62,

    /// <summary>ACSH_PYRAMID_CLASS.</summary>
    HistoryPyramid = 63,

    /// <summary>ACSH_TORUS_CLASS.</summary>
    HistoryTorus = 64,

    /// <summary>ACSH_HISTORY_CLASS.</summary>
    SolidHistory = 65,

    /// <summary>ACDBASSOCACTION.</summary>
    AssocAction = 66,

    /// <summary>ACDBASSOCNETWORK.</summary>
    AssocNetwork = 67,

    /// <summary>ACDBASSOC2DCONSTRAINTGROUP.</summary>
    AssocConstraintGroup = 68,

    /// <summary>ACDBASSOCVARIABLE.</summary>
    AssocVariable = 69,

    /// <summary>ACDBASSOCDEPENDENCY.</summary>
    AssocDependency = 70,

    /// <summary>ACDBASSOCGEOMDEPENDENCY.</summary>
    AssocGeomDependency = 71,

    /// <summary>ACDBASSOCVALUEDEPENDENCY.</summary>
    AssocValueDependency = 72,

    /// <summary>ACDBPERSSUBENTMANAGER.</summary>
    PersSubentManager = 73,

    /// <summary>ACDBASSOCPERSSUBENTMANAGER.</summary>
    AssocPersSubentManager = 74,

    /// <summary>ACDB_ALDIMOBJECTCONTEXTDATA_CLASS.</summary>
    AlignedDimensionContext = 75,

    /// <summary>ACDB_MTEXTOBJECTCONTEXTDATA_CLASS.</summary>
    MTextContext = 76,

    /// <summary>ACDB_MLEADEROBJECTCONTEXTDATA_CLASS.</summary>
    MLeaderContext = 77,

    /// <summary>SECTIONMANAGER.</summary>
    SectionManager = 78,

    /// <summary>SECTIONSETTINGS.</summary>
    SectionSettings = 79,

    /// <summary>SOLID_BACKGROUND.</summary>
    SolidBackground = 80,

    /// <summary>GRADIENT_BACKGROUND.</summary>
    GradientBackground = 81,

    /// <summary>SKYLIGHT_BACKGROUND.</summary>
    SkyBackground = 82,

    /// <summary>ACDB_BLOCKREPRESENTATION_DATA.</summary>
    BlockRepresentation = 83,

    /// <summary>ACDB_DYNAMICBLOCKPURGEPREVENTER_VERSION.</summary>
    DynamicBlockPurgePreventer = 84,

    /// <summary>DBCOLOR.</summary>
    Color = 85,

    /// <summary>ACDBSECTIONVIEWSTYLE.</summary>
    SectionViewStyle = 86,

    /// <summary>VLO-VL.</summary>
    Vlo = 87,

    /// <summary>OBJECT_PTR.</summary>
    ObjectPointer = 88,

    /// <summary>UNUSED.</summary>
    Unused = 89,
}
