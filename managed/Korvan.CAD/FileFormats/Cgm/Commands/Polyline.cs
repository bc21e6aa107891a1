using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A line through points.</summary>
public sealed class Polyline : Command
{
    /// <summary>Creates a line without points.</summary>
    public Polyline()
        : base(Enums.ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.Polyline)
    {
    }

    /// <summary>Gets or sets the points, at least two.</summary>
    public List<CgmPoint> Points { get; set; } = [];

    internal override void Exchange(ParameterExchange x) => Points = x.Points(Points);
}
