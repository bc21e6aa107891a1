namespace Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;

/// <summary>A vertex of a flat polyline.</summary>
[CadObject("VERTEX", Subclass = "AcDb2dVertex")]
public partial class Cad2DVertex : CadVertexBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public Cad2DVertex()
    {
        VertexFlags = 0;
    }
}
