using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadTables;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <content>The numbers of the types of objects.</content>
internal static partial class ObjectTypeTable
{
    /// <summary>Returns the fixed number of the type of an object; 0 for one whose number its class states.</summary>
    internal static int NumberOf(CadBaseObject item) => item switch
    {
        CadAttrib => 2,
        CadAttDef => 3,
        CadText => 1,
        CadBlockEntity => 4,
        CadEndBlock => 5,
        CadSeqend => 6,
        CadTableEntity => 0,
        CadInsertObject insert => insert.IsGrid ? 8 : 7,
        Cad2DVertex => 10,
        Cad3DVertex => 11,
        CadPolygonMeshVertex => 12,
        CadVertexPolyFaceMesh => 13,
        CadFaceRecord => 14,
        CadPolyline => 15,
        CadPolyline3D => 16,
        CadPolyFaceMesh => 29,
        CadPolygonMesh => 30,
        CadArc => 17,
        CadCircle => 18,
        CadLine => 19,
        CadDimensionBase dimension => NumberOf(dimension),
        CadPoint => 27,
        Cad3DFace => 28,
        CadSolid => 31,
        CadTrace => 32,
        CadShape => 33,
        CadViewport => 34,
        CadEllipse => 35,
        CadHelix => 0,
        CadSpline => 36,
        CadRegion => 37,
        Cad3DSolid => 38,
        CadBody => 39,
        CadRay => 40,
        CadXLine => 41,
        _ => NumberOfOther(item),
    };

    private static int NumberOf(CadDimensionBase dimension) => dimension switch
    {
        CadDimensionOrdinate => 20,
        CadRotatedDimension => 21,
        CadAlignedDimension => 22,
        CadAngularDimension => 23,
        Cad2LineAngularDimension => 24,
        CadRadialDimension => 25,
        CadDiametricDimension => 26,
        _ => 0,
    };

    private static int NumberOfOther(CadBaseObject item) => item switch
    {
        CadDictionaryWithDefault => 0,
        CadDictionary => 42,
        CadOleFrame => 43,
        CadMText => 44,
        CadLeader => 45,
        CadTolerance => 46,
        CadMultiLine => 47,
        CadBlockTableObject => 49,
        CadLayerTable => 51,
        CadStyleTableObject => 53,
        CadLineTypeTableObject => 57,
        CadViewTableObject => 61,
        CadUcsTableObject => 63,
        CadVportTableObject => 65,
        CadAppIdTableObject => 67,
        CadDimensionStyleTable => 69,
        CadGroup => 72,
        CadMLineStyleObject => 73,
        CadOle2Frame => 74,
        CadLwPolyline => 77,
        CadHatch => 78,
        CadXRecord => 79,
        CadVbaProject => 81,
        CadLayout => 82,
        CadAcadProxyEntity => 0x1F2,
        CadAcadProxyObject => 0x1F3,
        _ => item.DxfName == "ACDBPLACEHOLDER" ? 80 : 0,
    };
}
