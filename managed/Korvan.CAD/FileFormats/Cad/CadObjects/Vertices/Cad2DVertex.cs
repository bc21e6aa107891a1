using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;

/// <summary>A vertex of a flat polyline.</summary>
[CadObject("VERTEX", Subclass = "AcDb2dVertex")]
[CadBits("RC VertexFlags", "3BD LocationPoint", "ExchangeWidths()", "BD Bulge", "2010+ BL", "BD CurveFitTangent")]
public partial class Cad2DVertex : CadVertexBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public Cad2DVertex()
    {
        VertexFlags = 0;
    }

    // A negative start width is that of the end as well.
    private void ExchangeWidths(BitExchange fields)
    {
        bool isUniform = StartWidth == EndWidth && StartWidth > 0;
        double width = fields.BitDouble(isUniform ? -StartWidth : StartWidth);
        StartWidth = System.Math.Abs(width);
        EndWidth = width < 0 ? StartWidth : fields.BitDouble(EndWidth);
    }
}
