using System;
using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Lines from the first point to the second, from the third to the fourth and so on.</summary>
public sealed class DisjointPolyline : Command
{
    /// <summary>Creates no lines.</summary>
    public DisjointPolyline()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.DisjointPolyline)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="points">The points, an even count.</param>
    public DisjointPolyline(List<CgmPoint> points)
        : this()
    {
        Verify.NotNull(points);
        Points = points;
    }

    /// <summary>Gets or sets the points, an even count.</summary>
    public List<CgmPoint> Points { get; set; } = [];

    internal override void Exchange(ParameterExchange x) => Points = x.Points(Points);
}
