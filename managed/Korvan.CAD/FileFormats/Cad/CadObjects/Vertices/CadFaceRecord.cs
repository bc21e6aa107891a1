using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;

/// <summary>A face of a mesh: the numbers of its corners among the vertices, from 1; negative where the edge that
/// begins there is not drawn.</summary>
[CadObject("VERTEX", Subclass = "AcDbFaceRecord")]
[CadBits("BS VertexIndex1", "BS VertexIndex2", "BS VertexIndex3", "BS VertexIndex4")]
public partial class CadFaceRecord : CadVertexBase
{
    /// <summary>Gets or sets the first corner. Group code 71.</summary>
    [CadShort(71, Optional = true)]
    public short VertexIndex1 { get; set; }

    /// <summary>Gets or sets the second corner. Group code 72.</summary>
    [CadShort(72, Optional = true)]
    public short VertexIndex2 { get; set; }

    /// <summary>Gets or sets the third corner. Group code 73.</summary>
    [CadShort(73, Optional = true)]
    public short VertexIndex3 { get; set; }

    /// <summary>Gets or sets the fourth corner; 0 in a triangle. Group code 74.</summary>
    [CadShort(74, Optional = true)]
    public short VertexIndex4 { get; set; }

    /// <summary>Creates the object with its defaults.</summary>
    public CadFaceRecord()
    {
        VertexFlags = 128;
    }
}
