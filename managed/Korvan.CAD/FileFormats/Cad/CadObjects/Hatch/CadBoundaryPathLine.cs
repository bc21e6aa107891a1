using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dxf;

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

    bool ICadBoundaryPathEntity.ReadCode(int code, DxfTagReader tags)
    {
        switch (code)
        {
            case 10:
                FirstPoint.X = tags.GetDouble();
                return true;
            case 20:
                FirstPoint.Y = tags.GetDouble();
                return true;
            case 11:
                SecondPoint.X = tags.GetDouble();
                return true;
            case 21:
                SecondPoint.Y = tags.GetDouble();
                return true;
            default:
                return false;
        }
    }

    void ICadBoundaryPathEntity.WriteCodes(DxfTagWriter writer)
    {
        writer.Write(10, FirstPoint);
        writer.Write(11, SecondPoint);
    }
}
