using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;

/// <summary>A vertex of a mesh.</summary>
[CadObject("VERTEX", Subclass = "AcDbPolygonMeshVertex")]
[CadBits("RC VertexFlags", "3BD LocationPoint")]
public partial class CadPolygonMeshVertex : CadVertexBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadPolygonMeshVertex()
    {
        VertexFlags = 64;
    }
}
