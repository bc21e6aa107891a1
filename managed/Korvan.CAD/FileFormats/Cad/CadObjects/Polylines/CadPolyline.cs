using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;

/// <summary>A flat polyline with widths and arcs.</summary>
[CadObject("POLYLINE", Subclass = "AcDb2dPolyline")]
[CadBits(
    "BS Flag", "BS SurfaceType", "BD StartWidth", "BD EndWidth", "BT Thickness", "BD Elevation.Z",
    "BE ExtrusionDirection", "ExchangeVertices()")]
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
