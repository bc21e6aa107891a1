namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A gap in a line of a multileader.</summary>
internal sealed partial class MLeaderBreak
{
    /// <summary>Gets or sets the index of the segment.</summary>
    [CadInt(90)]
    internal int Segment { get; set; }

    [Cad3DPoint(11)]
    internal Cad3DPoint Start { get; set; } = new();

    [Cad3DPoint(12)]
    internal Cad3DPoint End { get; set; } = new();
}
