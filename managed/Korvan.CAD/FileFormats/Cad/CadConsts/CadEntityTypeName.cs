using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The types of entities.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadEntityTypeName
{
    /// <summary>A type that the library does not know.</summary>
    None = 0,

    /// <summary>LINE.</summary>
    Line = 1,

    /// <summary>POINT.</summary>
    Point = 2,

    /// <summary>CIRCLE.</summary>
    Circle = 3,

    /// <summary>ARC.</summary>
    Arc = 4,

    /// <summary>ELLIPSE.</summary>
    Ellipse = 5,

    /// <summary>LWPOLYLINE.</summary>
    LwPolyline = 6,

    /// <summary>POLYLINE.</summary>
    Polyline = 7,

    /// <summary>VERTEX.</summary>
    Vertex = 8,

    /// <summary>SEQEND.</summary>
    Seqend = 9,

    /// <summary>SPLINE.</summary>
    Spline = 10,

    /// <summary>HELIX.</summary>
    Helix = 11,

    /// <summary>TEXT.</summary>
    Text = 12,

    /// <summary>MTEXT.</summary>
    MText = 13,

    /// <summary>ATTRIB.</summary>
    Attrib = 14,

    /// <summary>ATTDEF.</summary>
    AttDef = 15,

    /// <summary>INSERT.</summary>
    Insert = 16,

    /// <summary>SOLID.</summary>
    Solid = 17,

    /// <summary>TRACE.</summary>
    Trace = 18,

    /// <summary>3DFACE.</summary>
    Face3D = 19,

    /// <summary>HATCH.</summary>
    Hatch = 20,

    /// <summary>DIMENSION.</summary>
    Dimension = 21,

    /// <summary>ARC_DIMENSION.</summary>
    ArcDimension = 22,

    /// <summary>LARGE_RADIAL_DIMENSION.</summary>
    LargeRadialDimension = 23,

    /// <summary>LEADER.</summary>
    Leader = 24,

    /// <summary>MULTILEADER.</summary>
    MultiLeader = 25,

    /// <summary>WIPEOUT.</summary>
    Wipeout = 26,

    /// <summary>IMAGE.</summary>
    Image = 27,

    /// <summary>VIEWPORT.</summary>
    Viewport = 28,

    /// <summary>RAY.</summary>
    Ray = 29,

    /// <summary>XLINE.</summary>
    XLine = 30,

    /// <summary>TOLERANCE.</summary>
    Tolerance = 31,

    /// <summary>SHAPE.</summary>
    Shape = 32,

    /// <summary>MLINE.</summary>
    MultiLine = 33,

    /// <summary>3DSOLID.</summary>
    Solid3D = 34,

    /// <summary>BODY.</summary>
    Body = 35,

    /// <summary>REGION.</summary>
    Region = 36,

    /// <summary>ACAD_TABLE.</summary>
    AcadTable = 37,

    /// <summary>LIGHT.</summary>
    Light = 38,

    /// <summary>MESH.</summary>
    Mesh = 39,

    /// <summary>SECTION.</summary>
    Section = 40,

    /// <summary>SUN.</summary>
    Sun = 41,

    /// <summary>SURFACE.</summary>
    Surface = 42,

    /// <summary>EXTRUDEDSURFACE.</summary>
    ExtrudedSurface = 43,

    /// <summary>LOFTEDSURFACE.</summary>
    LoftedSurface = 44,

    /// <summary>REVOLVEDSURFACE.</summary>
    RevolvedSurface = 45,

    /// <summary>SWEPTSURFACE.</summary>
    SweptSurface = 46,

    /// <summary>PLANESURFACE.</summary>
    PlaneSurface = 47,

    /// <summary>OLE2FRAME.</summary>
    Ole2Frame = 48,

    /// <summary>OLEFRAME.</summary>
    OleFrame = 49,

    /// <summary>PDFUNDERLAY.</summary>
    PdfUnderlay = 50,

    /// <summary>DWFUNDERLAY.</summary>
    DwfUnderlay = 51,

    /// <summary>DGNUNDERLAY.</summary>
    DgnUnderlay = 52,

    /// <summary>ACAD_PROXY_ENTITY.</summary>
    AcadProxyEntity = 53,

    /// <summary>COORDINATION_MODEL.</summary>
    CoordinationModel = 54,

    /// <summary>ACIDBLOCKREFERENCE.</summary>
    AcidBlockReference = 55,
}
