using System;
using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A line through points.</summary>
public sealed class Polyline : Command
{
    /// <summary>Creates a line without points.</summary>
    public Polyline()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.Polyline)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="points">The points, at least two.</param>
    public Polyline(List<CgmPoint> points)
        : this()
    {
        Verify.NotNull(points);
        Points = points;
    }

    /// <summary>Gets or sets the points, at least two.</summary>
    public List<CgmPoint> Points { get; set; } = [];

    /// <inheritdoc/>
    public override string ToString() => $"{Keyword} {string.Join(' ', Points)}";

    internal override void Exchange(ParameterExchange x) => Points = x.Points(Points);
}
