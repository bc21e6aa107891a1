using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;

/// <summary>A vertex of a mesh of faces.</summary>
[CadObject("VERTEX", Subclass = "AcDbPolyFaceMeshVertex")]
[CadBits("RC VertexFlags", "3BD LocationPoint")]
public partial class CadVertexPolyFaceMesh : CadVertexBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadVertexPolyFaceMesh()
    {
        VertexFlags = 192;
    }
}
