using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;

/// <summary>A vertex of a polyline in space.</summary>
[CadObject("VERTEX", Subclass = "AcDb3dPolylineVertex")]
[CadBits("RC VertexFlags", "3BD LocationPoint")]
public partial class Cad3DVertex : CadVertexBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public Cad3DVertex()
    {
        VertexFlags = 32;
    }
}
