using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.Dwg.AcDbObjects;

/// <summary>The types of objects in drawing databases that have fixed numbers; those of classes begin with 500. Source:
/// Open Design Specification for .dwg files, 5.4.1, chapter 20.3.</summary>
[PythonEnum(EnumKind.Flag)]
public enum AcDbObjectType
{
    /// <summary>No object.</summary>
    Unused = 0,

    /// <summary>TEXT.</summary>
    Text = 1,

    /// <summary>ATTRIB.</summary>
    Attrib = 2,

    /// <summary>ATTDEF.</summary>
    Attdef = 3,

    /// <summary>BLOCK.</summary>
    Block = 4,

    /// <summary>ENDBLK.</summary>
    Endblk = 5,

    /// <summary>SEQEND.</summary>
    Seqend = 6,

    /// <summary>INSERT.</summary>
    Insert = 7,

    /// <summary>INSERT in rows and columns.</summary>
    Minsert = 8,

    /// <summary>VERTEX of a polyline in a plane.</summary>
    Vertex2D = 10,

    /// <summary>VERTEX of a polyline in space.</summary>
    Vertex3D = 11,

    /// <summary>VERTEX of a polygon mesh.</summary>
    VertexMesh = 12,

    /// <summary>VERTEX of a polyface mesh.</summary>
    VertexPface = 13,

    /// <summary>VERTEX with the indices of a face.</summary>
    VertexPfaceFace = 14,

    /// <summary>POLYLINE in a plane.</summary>
    Polyline2D = 15,

    /// <summary>POLYLINE in space.</summary>
    Polyline3D = 16,

    /// <summary>ARC.</summary>
    Arc = 17,

    /// <summary>CIRCLE.</summary>
    Circle = 18,

    /// <summary>LINE.</summary>
    Line = 19,

    /// <summary>DIMENSION, ordinate.</summary>
    DimensionOrdinate = 20,

    /// <summary>DIMENSION, linear.</summary>
    DimensionLinear = 21,

    /// <summary>DIMENSION, aligned.</summary>
    DimensionAligned = 22,

    /// <summary>DIMENSION, angular of three points.</summary>
    DimensionAngular3Pt = 23,

    /// <summary>DIMENSION, angular of two lines.</summary>
    DimensionAngular2Ln = 24,

    /// <summary>DIMENSION, radius.</summary>
    DimensionRadius = 25,

    /// <summary>DIMENSION, diameter.</summary>
    DimensionDiameter = 26,

    /// <summary>POINT.</summary>
    Point = 27,

    /// <summary>3DFACE.</summary>
    Face3D = 28,

    /// <summary>POLYLINE, polyface mesh.</summary>
    PolylinePface = 29,

    /// <summary>POLYLINE, polygon mesh.</summary>
    PolylineMesh = 30,

    /// <summary>SOLID.</summary>
    Solid = 31,

    /// <summary>TRACE.</summary>
    Trace = 32,

    /// <summary>SHAPE.</summary>
    Shape = 33,

    /// <summary>VIEWPORT.</summary>
    Viewport = 34,

    /// <summary>ELLIPSE.</summary>
    Ellipse = 35,

    /// <summary>SPLINE.</summary>
    Spline = 36,

    /// <summary>REGION.</summary>
    Region = 37,

    /// <summary>3DSOLID.</summary>
    Solid3D = 38,

    /// <summary>BODY.</summary>
    Body = 39,

    /// <summary>RAY.</summary>
    Ray = 40,

    /// <summary>XLINE.</summary>
    Xline = 41,

    /// <summary>DICTIONARY.</summary>
    Dictionary = 42,

    /// <summary>OLEFRAME.</summary>
    Oleframe = 43,

    /// <summary>MTEXT.</summary>
    Mtext = 44,

    /// <summary>LEADER.</summary>
    Leader = 45,

    /// <summary>TOLERANCE.</summary>
    Tolerance = 46,

    /// <summary>MLINE.</summary>
    Mline = 47,

    /// <summary>The table of block records.</summary>
    BlockControlObj = 48,

    /// <summary>BLOCK_RECORD.</summary>
    BlockHeader = 49,

    /// <summary>The table of layers.</summary>
    LayerControlObj = 50,

    /// <summary>LAYER.</summary>
    Layer = 51,

    /// <summary>The table of text styles.</summary>
    StyleControlObj = 52,

    /// <summary>STYLE.</summary>
    Style = 53,

    /// <summary>The table of line types.</summary>
    LtypeControlObj = 56,

    /// <summary>LTYPE.</summary>
    Ltype = 57,

    /// <summary>The table of views.</summary>
    ViewControlObj = 60,

    /// <summary>VIEW.</summary>
    View = 61,

    /// <summary>The table of coordinate systems.</summary>
    UcsControlObj = 62,

    /// <summary>UCS.</summary>
    Ucs = 63,

    /// <summary>The table of viewports.</summary>
    VportControlObj = 64,

    /// <summary>VPORT.</summary>
    Vport = 65,

    /// <summary>The table of applications.</summary>
    AppidControlObj = 66,

    /// <summary>APPID.</summary>
    Appid = 67,

    /// <summary>The table of dimension styles.</summary>
    DimstyleControlObj = 68,

    /// <summary>DIMSTYLE.</summary>
    Dimstyle = 69,

    /// <summary>The table of viewport entity headers.</summary>
    VpEntHdrCtrlObj = 70,

    /// <summary>A viewport entity header.</summary>
    VpEntHdr = 71,

    /// <summary>GROUP.</summary>
    Group = 72,

    /// <summary>MLINESTYLE.</summary>
    Mlinestyle = 73,

    /// <summary>OLE2FRAME.</summary>
    Ole2Frame = 74,

    /// <summary>A placeholder without content.</summary>
    Dummy = 75,

    /// <summary>LONG_TRANSACTION.</summary>
    LongTransaction = 76,

    /// <summary>LWPOLYLINE.</summary>
    Lwpolyline = 77,

    /// <summary>HATCH.</summary>
    Hatch = 78,

    /// <summary>XRECORD.</summary>
    Xrecord = 79,

    /// <summary>ACDBPLACEHOLDER.</summary>
    AcdbPlaceholder = 80,

    /// <summary>VBA_PROJECT.</summary>
    VbaProject = 81,

    /// <summary>LAYOUT.</summary>
    Layout = 82,

    /// <summary>ACAD_PROXY_ENTITY.</summary>
    AcadProxyEntity = 498,

    /// <summary>ACAD_PROXY_OBJECT.</summary>
    AcadProxyObject = 499,
}
