using System;
using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Markers at points.</summary>
public sealed class PolyMarker : Command
{
    /// <summary>Creates no markers.</summary>
    public PolyMarker()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.PolyMarker)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="points">The points, at least one.</param>
    public PolyMarker(List<CgmPoint> points)
        : this()
    {
        Verify.NotNull(points);
        Points = points;
    }

    /// <summary>Gets or sets the points, at least one.</summary>
    public List<CgmPoint> Points { get; set; } = [];

    internal override void Exchange(ParameterExchange x) => Points = x.Points(Points);
}
