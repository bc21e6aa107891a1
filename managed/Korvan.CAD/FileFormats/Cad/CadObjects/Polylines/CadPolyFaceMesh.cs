using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;

/// <summary>A mesh of vertices and of faces between them.</summary>
[CadObject("POLYLINE", Subclass = "AcDbPolyFaceMesh")]
[CadBits("BS MeshMVertexCount", "BS MeshNVertexCount", "ExchangeVertices()")]
public partial class CadPolyFaceMesh : CadPolylineBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadPolyFaceMesh()
    {
        Flag = CadPolylineFlag.PolyfaceMesh;
    }

    /// <inheritdoc/>
    internal override CadVertexBase CreateVertex(int flags)
    {
        return (flags & 64) != 0 ? new CadVertexPolyFaceMesh() : new CadFaceRecord();
    }
}
