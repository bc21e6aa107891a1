using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;

/// <summary>A polyline in space.</summary>
[CadObject("POLYLINE", Subclass = "AcDb3dPolyline")]
public partial class CadPolyline3D : CadPolylineBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadPolyline3D()
    {
        Flag = CadPolylineFlag.Polyline3D;
    }

    /// <inheritdoc/>
    internal override CadVertexBase CreateVertex(int flags) => new Cad3DVertex();
}
