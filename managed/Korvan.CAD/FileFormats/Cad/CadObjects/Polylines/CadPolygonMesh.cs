using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;

/// <summary>A mesh of M by N vertices.</summary>
[CadObject("POLYLINE", Subclass = "AcDbPolygonMesh")]
public partial class CadPolygonMesh : CadPolylineBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadPolygonMesh()
    {
        Flag = CadPolylineFlag.PolygonMesh;
    }

    /// <inheritdoc/>
    internal override CadVertexBase CreateVertex(int flags) => new CadPolygonMeshVertex();
}
