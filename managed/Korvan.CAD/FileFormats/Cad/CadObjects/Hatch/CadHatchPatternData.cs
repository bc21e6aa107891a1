using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>A family of parallel lines of a hatch pattern, scaled and rotated as it is drawn.</summary>
public class CadHatchPatternData
{
    /// <summary>Creates a family of solid lines along X.</summary>
    public CadHatchPatternData()
    {
    }

    /// <summary>Gets or sets the direction of the lines, in degrees. Group code 53.</summary>
    public double LineAngle { get; set; }

    /// <summary>Gets or sets a point of the first line. Group codes 43, 44.</summary>
    public Cad2DPoint LineBasePoint { get; set; } = new();

    /// <summary>Gets or sets the way from one line to the next. Group codes 45, 46.</summary>
    public Cad2DPoint LineOffset { get; set; } = new(0, 1);

    /// <summary>Gets the dashes: above 0 a dash, below 0 a gap, 0 a dot; empty for solid lines. The list is live.
    /// Group code 49.</summary>
    public List<double> DashLengths { get; } = [];
}
