using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A circle, filled.</summary>
public sealed class CircleElement : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public CircleElement()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.CircleElement)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="centre">The centre.</param>
    /// <param name="radius">The radius, in units of the coordinates, not negative.</param>
    public CircleElement(CgmPoint centre, double radius)
        : this()
    {
        Verify.NotNull(centre);
        Centre = centre;
        Radius = radius;
    }

    /// <summary>Gets or sets the centre.</summary>
    public CgmPoint Centre { get; set; } = new();

    /// <summary>Gets or sets the radius, in units of the coordinates, not negative.</summary>
    public double Radius { get; set; }

    /// <inheritdoc/>
    public override string ToString() => System.FormattableString.Invariant($"{Keyword} {Centre} {Radius}");

    internal override void Exchange(ParameterExchange x)
    {
        Centre = x.Point(Centre);
        Radius = x.Vdc(Radius);
    }
}
