using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;

/// <summary>A polyline in space.</summary>
[CadObject("POLYLINE", Subclass = "AcDb3dPolyline")]
[CadBits("ExchangeFlags()", "ExchangeVertices()")]
public partial class CadPolyline3D : CadPolylineBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadPolyline3D()
    {
        Flag = CadPolylineFlag.Polyline3D;
    }

    /// <inheritdoc/>
    internal override CadVertexBase CreateVertex(int flags) => new Cad3DVertex();

    // The kind of curve is stored as two bits, and of the flags whether the polyline is closed.
    private void ExchangeFlags(BitExchange fields)
    {
        const int quadratic = 5;
        const int cubic = 6;
        int curve = fields.RawByte(SurfaceType == quadratic ? 1 : SurfaceType == cubic ? 2 : 0);
        SurfaceType = (short)((curve & 1) != 0 ? quadratic : (curve & 2) != 0 ? cubic : 0);
        bool isClosed = (fields.RawByte(IsClosed ? 1 : 0) & 1) != 0;
        if (fields.IsReading)
        {
            Flag = CadPolylineFlag.Polyline3D | (isClosed ? CadPolylineFlag.Closed : 0)
                | (curve != 0 ? CadPolylineFlag.SplineFit : 0);
        }
    }
}
