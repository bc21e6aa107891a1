using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>A straight edge.</summary>
public class CadBoundaryPathLine : ICadBoundaryPathEntity
{
    /// <summary>Creates the edge with its defaults.</summary>
    public CadBoundaryPathLine()
    {
    }

    /// <inheritdoc/>
    public CadHatchBoundaryType EdgeType => CadHatchBoundaryType.Line;

    /// <summary>Gets or sets the start, in object coordinates. Group codes 10, 20.</summary>
    public Cad2DPoint FirstPoint { get; set; } = new();

    /// <summary>Gets or sets the end, in object coordinates. Group codes 11, 21.</summary>
    public Cad2DPoint SecondPoint { get; set; } = new();

    bool ICadBoundaryPathEntity.ReadField(int code, FieldReader reader)
    {
        switch (code)
        {
            case 10:
                FirstPoint.X = reader.GetDouble();
                return true;
            case 20:
                FirstPoint.Y = reader.GetDouble();
                return true;
            case 11:
                SecondPoint.X = reader.GetDouble();
                return true;
            case 21:
                SecondPoint.Y = reader.GetDouble();
                return true;
            default:
                return false;
        }
    }

    void ICadBoundaryPathEntity.Exchange(ObjectExchange fields)
    {
        fields.Point(10, FirstPoint);
        fields.Point(11, SecondPoint);
    }

    /// <inheritdoc/>
    void ICadBoundaryPathEntity.ExchangeBits(BitExchange fields)
    {
        fields.RawPoint2(FirstPoint);
        fields.RawPoint2(SecondPoint);
    }
}
