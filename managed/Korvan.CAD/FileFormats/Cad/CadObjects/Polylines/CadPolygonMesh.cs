using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;

/// <summary>A mesh of M by N vertices.</summary>
[CadObject("POLYLINE", Subclass = "AcDbPolygonMesh")]
[CadBits(
    "ExchangeFlags()", "BS SurfaceType", "BS MeshMVertexCount", "BS MeshNVertexCount", "BS SurfaceMDensity",
    "BS SurfaceNDensity", "ExchangeVertices()")]
public partial class CadPolygonMesh : CadPolylineBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadPolygonMesh()
    {
        Flag = CadPolylineFlag.PolygonMesh;
    }

    /// <inheritdoc/>
    internal override CadVertexBase CreateVertex(int flags) => new CadPolygonMeshVertex();

    private void ExchangeFlags(BitExchange fields) =>
        Flag = (CadPolylineFlag)fields.BitShort((int)Flag) | CadPolylineFlag.PolygonMesh;
}
