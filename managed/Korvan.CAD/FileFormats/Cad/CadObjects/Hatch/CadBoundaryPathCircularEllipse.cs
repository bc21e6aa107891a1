using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dxf;

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

    /// <summary>Gets or sets the start angle, in degrees; measured clockwise where the arc runs clockwise. Group code
    /// 50.</summary>
    public double StartAngle { get; set; }

    /// <summary>Gets or sets the end angle, in degrees; measured clockwise where the arc runs clockwise. Group code
    /// 51.</summary>
    public double EndAngle { get; set; } = 360;

    /// <summary>Gets or sets whether the arc runs counterclockwise. Group code 73.</summary>
    public bool CounterClockwise { get; set; } = true;

    bool ICadBoundaryPathEntity.ReadCode(int code, DxfTagReader tags)
    {
        switch (code)
        {
            case 10:
                CenterPoint.X = tags.GetDouble();
                return true;
            case 20:
                CenterPoint.Y = tags.GetDouble();
                return true;
            case 11:
                MajorEndPoint.X = tags.GetDouble();
                return true;
            case 21:
                MajorEndPoint.Y = tags.GetDouble();
                return true;
            case 40:
                AxisRatio = tags.GetDouble();
                return true;
            case 50:
                StartAngle = tags.GetDouble();
                return true;
            case 51:
                EndAngle = tags.GetDouble();
                return true;
            case 73:
                CounterClockwise = tags.GetInt() != 0;
                return true;
            default:
                return false;
        }
    }

    void ICadBoundaryPathEntity.WriteCodes(DxfTagWriter writer)
    {
        writer.Write(10, CenterPoint);
        writer.Write(11, MajorEndPoint);
        writer.Write(40, AxisRatio);
        writer.Write(50, StartAngle);
        writer.Write(51, EndAngle);
        writer.Write(73, CounterClockwise ? 1 : 0);
    }
}
