using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>An edge that is an elliptic arc.</summary>
public class CadBoundaryPathCircularEllipse : ICadBoundaryPathEntity
{
    /// <summary>Creates the edge with its defaults.</summary>
    public CadBoundaryPathCircularEllipse()
    {
    }

    /// <inheritdoc/>
    public CadHatchBoundaryType EdgeType => CadHatchBoundaryType.EllipticArc;

    /// <summary>Gets or sets the centre, in object coordinates. Group codes 10, 20.</summary>
    public Cad2DPoint CenterPoint { get; set; } = new();

    /// <summary>Gets or sets the end of the major axis, relative to the centre. Group codes 11, 21.</summary>
    public Cad2DPoint MajorEndPoint { get; set; } = new(1, 0);

    /// <summary>Gets or sets the length of the minor axis as part of the major axis. Group code 40.</summary>
    public double AxisRatio { get; set; } = 1;

    /// <summary>Gets or sets the start angle, in degrees: the direction from the centre, measured from the major axis,
    /// clockwise where the arc runs clockwise. Group code 50.</summary>
    public double StartAngle { get; set; }

    /// <summary>Gets or sets the end angle, in degrees: the direction from the centre, measured from the major axis,
    /// clockwise where the arc runs clockwise. Group code 51.</summary>
    public double EndAngle { get; set; } = 360;

    /// <summary>Gets or sets whether the arc runs counterclockwise. Group code 73.</summary>
    public bool CounterClockwise { get; set; } = true;

    bool ICadBoundaryPathEntity.ReadField(int code, FieldReader reader)
    {
        switch (code)
        {
            case 10:
                CenterPoint.X = reader.GetDouble();
                return true;
            case 20:
                CenterPoint.Y = reader.GetDouble();
                return true;
            case 11:
                MajorEndPoint.X = reader.GetDouble();
                return true;
            case 21:
                MajorEndPoint.Y = reader.GetDouble();
                return true;
            case 40:
                AxisRatio = reader.GetDouble();
                return true;
            case 50:
                StartAngle = reader.GetAngle();
                return true;
            case 51:
                EndAngle = reader.GetAngle();
                return true;
            case 73:
                CounterClockwise = reader.GetInt() != 0;
                return true;
            default:
                return false;
        }
    }

    void ICadBoundaryPathEntity.Exchange(ObjectExchange fields)
    {
        fields.Point(10, CenterPoint);
        fields.Point(11, MajorEndPoint);
        AxisRatio = fields.Double(40, AxisRatio);
        StartAngle = fields.Angle(50, StartAngle);
        EndAngle = fields.Angle(51, EndAngle);
        CounterClockwise = fields.Bool(73, CounterClockwise);
    }

    /// <inheritdoc/>
    void ICadBoundaryPathEntity.ExchangeBits(BitExchange fields)
    {
        fields.RawPoint2(CenterPoint);
        fields.RawPoint2(MajorEndPoint);
        AxisRatio = fields.BitDouble(AxisRatio);
        StartAngle = fields.Angle(StartAngle);
        EndAngle = fields.Angle(EndAngle);
        CounterClockwise = fields.Bit(CounterClockwise);
    }
}
