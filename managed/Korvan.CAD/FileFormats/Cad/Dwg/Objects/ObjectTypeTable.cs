using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The types of objects that have fixed numbers. Source: Open Design Specification for .dwg files, 5.4.1,
/// section 20.3.</summary>
internal static partial class ObjectTypeTable
{
    internal const int BlockControl = 48;
    internal const int LineTypeControl = 56;
    internal const int DimensionStyleControl = 68;
    internal const int FirstClass = 500;

    /// <summary>Creates an object of a type; null for a type that no class interprets.</summary>
    internal static CadBaseObject? Create(int type) => type switch
    {
        1 => new CadText(),
        2 => new CadAttrib(),
        3 => new CadAttDef(),
        4 => new CadBlockEntity(),
        5 => new CadEndBlock(),
        6 => new CadSeqend(),
        7 => new CadInsertObject(),
        8 => new CadInsertObject { HasGrid = true },
        10 => new Cad2DVertex(),
        11 => new Cad3DVertex(),
        12 => new CadPolygonMeshVertex(),
        13 => new CadVertexPolyFaceMesh(),
        14 => new CadFaceRecord(),
        15 => new CadPolyline(),
        16 => new CadPolyline3D(),
        17 => new CadArc(),
        18 => new CadCircle(),
        19 => new CadLine(),
        >= 20 and <= 26 => CreateDimension(type),
        27 => new CadPoint(),
        28 => new Cad3DFace(),
        29 => new CadPolyFaceMesh(),
        30 => new CadPolygonMesh(),
        31 => new CadSolid(),
        32 => new CadTrace(),
        33 => new CadShape(),
        34 => new CadViewport(),
        35 => new CadEllipse(),
        36 => new CadSpline(),
        37 => new CadRegion(),
        38 => new Cad3DSolid(),
        39 => new CadBody(),
        40 => new CadRay(),
        41 => new CadXLine(),
        _ => CreateOther(type),
    };

    /// <summary>Returns the name of a type that no class interprets.</summary>
    internal static string NameOf(int type) => type switch
    {
        70 => "VX_CONTROL",
        71 => "VX_TABLE_RECORD",
        75 => "DUMMY",
        76 => "LONG_TRANSACTION",
        _ => $"DWG_TYPE_{type}",
    };

    /// <summary>Returns the name of the symbol table of a header; null for other types.</summary>
    internal static string? ControlledTable(int type) => type switch
    {
        BlockControl => "BLOCK_RECORD",
        50 => "LAYER",
        52 => "STYLE",
        LineTypeControl => "LTYPE",
        60 => "VIEW",
        62 => "UCS",
        64 => "VPORT",
        66 => "APPID",
        68 => "DIMSTYLE",
        _ => null,
    };

    /// <summary>Returns the type of the header of a symbol table.</summary>
    internal static int ControlOf(string table)
    {
        int type = BlockControl;
        while (ControlledTable(type) != table)
        {
            type++;
        }

        return type;
    }

    /// <summary>Determines whether a type is a record of a symbol table.</summary>
    internal static bool IsRecord(int type) => type is 49 or 51 or 53 or 57 or 61 or 63 or 65 or 67 or 69;

    /// <summary>Determines whether text files leave out the objects of a name.</summary>
    internal static bool IsOfFilesOnly(string name) => name is "VX_CONTROL" or "VX_TABLE_RECORD";

    private static CadBaseObject CreateDimension(int type) => type switch
    {
        20 => new CadDimensionOrdinate(),
        21 => new CadRotatedDimension(),
        22 => new CadAlignedDimension(),
        23 => new CadAngularDimension(),
        24 => new Cad2LineAngularDimension(),
        25 => new CadRadialDimension(),
        _ => new CadDiametricDimension(),
    };

    private static CadBaseObject? CreateOther(int type) => type switch
    {
        42 => new CadDictionary(),
        43 => new CadOleFrame(),
        44 => new CadMText(),
        45 => new CadLeader(),
        46 => new CadTolerance(),
        47 => new CadMultiLine(),
        49 => new CadBlockTableObject(),
        51 => new CadLayerTable(),
        53 => new CadStyleTableObject(),
        57 => new CadLineTypeTableObject(),
        61 => new CadViewTableObject(),
        63 => new CadUcsTableObject(),
        65 => new CadVportTableObject(),
        67 => new CadAppIdTableObject(),
        69 => new CadDimensionStyleTable(),
        72 => new CadGroup(),
        73 => new CadMLineStyleObject(),
        74 => new CadOle2Frame(),
        77 => new CadLwPolyline(),
        78 => new CadHatch(),
        79 => new CadXRecord(),
        80 => new RawObject("ACDBPLACEHOLDER"),
        81 => new CadVbaProject(),
        82 => new CadLayout(),
        0x1F2 => new CadAcadProxyEntity(),
        0x1F3 => new CadAcadProxyObject(),
        _ => null,
    };
}
