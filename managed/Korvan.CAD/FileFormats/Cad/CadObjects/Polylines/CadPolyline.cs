using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;

/// <summary>A flat polyline with widths and arcs.</summary>
[CadObject("POLYLINE", Subclass = "AcDb2dPolyline")]
public partial class CadPolyline : CadPolylineBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadPolyline()
    {
        Flag = CadPolylineFlag.None;
    }

    /// <inheritdoc/>
    internal override CadVertexBase CreateVertex(int flags) => new Cad2DVertex();
}
