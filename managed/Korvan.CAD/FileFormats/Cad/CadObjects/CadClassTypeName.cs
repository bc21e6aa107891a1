using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The classes that drawings list, by the names that their objects have in files.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadClassTypeName
{
    /// <summary>A class that the library does not know.</summary>
    None = 0,

    /// <summary>ACDBDICTIONARYWDFLT.</summary>
    DictionaryWithDefault = 1,

    /// <summary>DICTIONARYVAR.</summary>
    DictionaryVar = 2,

    /// <summary>MLEADERSTYLE.</summary>
    MLeaderStyle = 3,

    /// <summary>IMAGEDEF.</summary>
    ImageDef = 4,

    /// <summary>IMAGEDEF_REACTOR.</summary>
    ImageDefReactor = 5,

    /// <summary>WIPEOUTVARIABLES.</summary>
    WipeoutVariables = 6,

    /// <summary>RASTERVARIABLES.</summary>
    RasterVariables = 7,

    /// <summary>SPATIAL_FILTER.</summary>
    SpatialFilter = 8,

    /// <summary>SPATIAL_INDEX.</summary>
    SpatialIndex = 9,

    /// <summary>LAYER_FILTER.</summary>
    LayerFilter = 10,

    /// <summary>LAYER_INDEX.</summary>
    LayerIndex = 11,

    /// <summary>IDBUFFER.</summary>
    IdBuffer = 12,

    /// <summary>SORTENTSTABLE.</summary>
    SortEntsTable = 13,

    /// <summary>MATERIAL.</summary>
    Material = 14,

    /// <summary>VISUALSTYLE.</summary>
    VisualStyle = 15,

    /// <summary>SCALE.</summary>
    Scale = 16,

    /// <summary>TABLESTYLE.</summary>
    TableStyle = 17,

    /// <summary>CELLSTYLEMAP.</summary>
    CellStyleMap = 18,

    /// <summary>FIELD.</summary>
    Field = 19,

    /// <summary>FIELDLIST.</summary>
    FieldList = 20,

    /// <summary>DIMASSOC.</summary>
    DimAssoc = 21,

    /// <summary>GEODATA.</summary>
    GeoData = 22,

    /// <summary>SUN.</summary>
    Sun = 23,

    /// <summary>SUNSTUDY.</summary>
    SunStudy = 24,

    /// <summary>ACDBPLACEHOLDER.</summary>
    Placeholder = 25,

    /// <summary>DGNDEFINITION.</summary>
    DgnDefinition = 26,

    /// <summary>DWFDEFINITION.</summary>
    DwfDefinition = 27,

    /// <summary>PDFDEFINITION.</summary>
    PdfDefinition = 28,

    /// <summary>TABLECONTENT.</summary>
    TableContent = 29,

    /// <summary>TABLEGEOMETRY.</summary>
    TableGeometry = 30,

    /// <summary>VBA_PROJECT.</summary>
    VbaProject = 31,

    /// <summary>DATATABLE.</summary>
    DataTable = 32,

    /// <summary>LIGHTLIST.</summary>
    LightList = 33,

    /// <summary>LAYOUT.</summary>
    Layout = 34,

    /// <summary>ARC_DIMENSION.</summary>
    ArcDimension = 35,

    /// <summary>LARGE_RADIAL_DIMENSION.</summary>
    LargeRadialDimension = 36,

    /// <summary>MULTILEADER.</summary>
    MultiLeader = 37,

    /// <summary>WIPEOUT.</summary>
    Wipeout = 38,

    /// <summary>IMAGE.</summary>
    Image = 39,

    /// <summary>ACAD_TABLE.</summary>
    AcadTable = 40,

    /// <summary>LIGHT.</summary>
    Light = 41,

    /// <summary>MESH.</summary>
    Mesh = 42,

    /// <summary>SECTIONOBJECT.</summary>
    Section = 43,

    /// <summary>SURFACE.</summary>
    Surface = 44,

    /// <summary>EXTRUDEDSURFACE.</summary>
    ExtrudedSurface = 45,

    /// <summary>LOFTEDSURFACE.</summary>
    LoftedSurface = 46,

    /// <summary>REVOLVEDSURFACE.</summary>
    RevolvedSurface = 47,

    /// <summary>SWEPTSURFACE.</summary>
    SweptSurface = 48,

    /// <summary>PLANESURFACE.</summary>
    PlaneSurface = 49,

    /// <summary>PDFUNDERLAY.</summary>
    PdfUnderlay = 50,

    /// <summary>DWFUNDERLAY.</summary>
    DwfUnderlay = 51,

    /// <summary>DGNUNDERLAY.</summary>
    DgnUnderlay = 52,

    /// <summary>HELIX.</summary>
    Helix = 53,

    /// <summary>CAMERA.</summary>
    Camera = 54,

    /// <summary>COORDINATION_MODEL.</summary>
    CoordinationModel = 55,

    /// <summary>ACIDBLOCKREFERENCE.</summary>
    AcidBlockReference = 56,

    /// <summary>ACAD_EVALUATION_GRAPH.</summary>
    EvaluationGraph = 57,

    /// <summary>BLOCKALIGNMENTGRIP.</summary>
    BlockAlignmentGrip = 58,

    /// <summary>BLOCKALIGNMENTPARAMETER.</summary>
    BlockAlignmentParameter = 59,

    /// <summary>BLOCKBASEPOINTPARAMETER.</summary>
    BlockBasePointParameter = 60,

    /// <summary>BLOCKFLIPACTION.</summary>
    BlockFlipAction = 61,

    /// <summary>BLOCKFLIPGRIP.</summary>
    BlockFlipGrip = 62,

    /// <summary>BLOCKFLIPPARAMETER.</summary>
    BlockFlipParameter = 63,

    /// <summary>BLOCKGRIPLOCATIONCOMPONENT.</summary>
    BlockGripLocationComponent = 64,

    /// <summary>BLOCKLINEARGRIP.</summary>
    BlockLinearGrip = 65,

    /// <summary>BLOCKLINEARPARAMETER.</summary>
    BlockLinearParameter = 66,

    /// <summary>BLOCKMOVEACTION.</summary>
    BlockMoveAction = 67,

    /// <summary>BLOCKPOINTPARAMETER.</summary>
    BlockPointParameter = 68,

    /// <summary>BLOCKROTATEACTION.</summary>
    BlockRotateAction = 69,

    /// <summary>BLOCKROTATIONGRIP.</summary>
    BlockRotationGrip = 70,

    /// <summary>BLOCKROTATIONPARAMETER.</summary>
    BlockRotationParameter = 71,

    /// <summary>BLOCKSCALEACTION.</summary>
    BlockScaleAction = 72,

    /// <summary>BLOCKSTRETCHACTION.</summary>
    BlockStretchAction = 73,

    /// <summary>BLOCKVISIBILITYGRIP.</summary>
    BlockVisibilityGrip = 74,

    /// <summary>BLOCKVISIBILITYPARAMETER.</summary>
    BlockVisibilityParameter = 75,

    /// <summary>BLOCKXYGRIP.</summary>
    BlockXYGrip = 76,

    /// <summary>ACSH_BOX_CLASS.</summary>
    HistoryBox = 77,

    /// <summary>ACSH_WEDGE_CLASS.</summary>
    HistoryWedge = 78,

    /// <summary>ACSH_SPHERE_CLASS.</summary>
    HistorySphere = 79,

    /// <summary>ACSH_CYLINDER_CLASS.</summary>
    HistoryCylinder = 80,

    /// <summary>ACSH_CONE_CLASS.</summary>
    HistoryCone = 81,

    /// <summary>ACSH_PYRAMID_CLASS.</summary>
    HistoryPyramid = 82,

    /// <summary>ACSH_TORUS_CLASS.</summary>
    HistoryTorus = 83,

    /// <summary>ACSH_HISTORY_CLASS.</summary>
    SolidHistory = 84,

    /// <summary>ACDBASSOCACTION.</summary>
    AssocAction = 85,

    /// <summary>ACDBASSOCNETWORK.</summary>
    AssocNetwork = 86,

    /// <summary>ACDBASSOC2DCONSTRAINTGROUP.</summary>
    AssocConstraintGroup = 87,

    /// <summary>ACDBASSOCVARIABLE.</summary>
    AssocVariable = 88,

    /// <summary>ACDBASSOCDEPENDENCY.</summary>
    AssocDependency = 89,

    /// <summary>ACDBASSOCGEOMDEPENDENCY.</summary>
    AssocGeomDependency = 90,

    /// <summary>ACDBASSOCVALUEDEPENDENCY.</summary>
    AssocValueDependency = 91,

    /// <summary>ACDBPERSSUBENTMANAGER.</summary>
    PersSubentManager = 92,

    /// <summary>ACDBASSOCPERSSUBENTMANAGER.</summary>
    AssocPersSubentManager = 93,

    /// <summary>ACDB_ALDIMOBJECTCONTEXTDATA_CLASS.</summary>
    AlignedDimensionContext = 94,

    /// <summary>ACDB_MTEXTOBJECTCONTEXTDATA_CLASS.</summary>
    MTextContext = 95,

    /// <summary>ACDB_MLEADEROBJECTCONTEXTDATA_CLASS.</summary>
    MLeaderContext = 96,

    /// <summary>SECTIONMANAGER.</summary>
    SectionManager = 97,

    /// <summary>SECTIONSETTINGS.</summary>
    SectionSettings = 98,

    /// <summary>SOLID_BACKGROUND.</summary>
    SolidBackground = 99,

    /// <summary>GRADIENT_BACKGROUND.</summary>
    GradientBackground = 100,

    /// <summary>SKYLIGHT_BACKGROUND.</summary>
    SkyBackground = 101,

    /// <summary>ACDB_BLOCKREPRESENTATION_DATA.</summary>
    BlockRepresentation = 102,

    /// <summary>ACDB_DYNAMICBLOCKPURGEPREVENTER_VERSION.</summary>
    DynamicBlockPurgePreventer = 103,

    /// <summary>DBCOLOR.</summary>
    Color = 104,

    /// <summary>ACDBSECTIONVIEWSTYLE.</summary>
    SectionViewStyle = 105,

    /// <summary>VLO-VL.</summary>
    Vlo = 106,

    /// <summary>OBJECT_PTR.</summary>
    ObjectPointer = 107,

    /// <summary>UNUSED.</summary>
    Unused = 108,
}
