using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A vertex of a multiline.</summary>
public class CadMultiLineVectorBlock
{
    /// <summary>Creates a vertex at the origin.</summary>
    public CadMultiLineVectorBlock()
    {
    }

    /// <summary>Gets or sets the place, in world coordinates. Group codes 11, 21, 31.</summary>
    public Cad3DPoint Location { get; set; } = new();

    /// <summary>Gets or sets the direction of the piece that begins here. Group codes 12, 22, 32.</summary>
    public Cad3DPoint Direction { get; set; } = new();

    /// <summary>Gets or sets the direction of the mitre. Group codes 13, 23, 33.</summary>
    public Cad3DPoint Miter { get; set; } = new();

    /// <summary>Gets the lengths along the mitre and the line where each line of the style begins and breaks, one
    /// array of tags for each line. Group codes 74, 41.</summary>
    internal List<List<double>> ElementParameters { get; } = [];

    /// <summary>Gets the lengths where the fill begins and breaks. Group codes 75, 42.</summary>
    internal List<List<double>> FillParameters { get; } = [];
}
