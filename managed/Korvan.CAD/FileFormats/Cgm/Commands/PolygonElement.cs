using System;
using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An area bounded by lines through points; the last point leads back to the first.</summary>
public sealed class PolygonElement : Command
{
    /// <summary>Creates an area without points.</summary>
    public PolygonElement()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.PolygonElement)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="points">The points, at least three.</param>
    public PolygonElement(List<CgmPoint> points)
        : this()
    {
        Verify.NotNull(points);
        Points = points;
    }

    /// <summary>Gets or sets the points, at least three.</summary>
    public List<CgmPoint> Points { get; set; } = [];

    /// <inheritdoc/>
    public override string ToString() => $"{Keyword} {string.Join(' ', Points)}";

    internal override void Exchange(ParameterExchange x) => Points = x.Points(Points);
}
