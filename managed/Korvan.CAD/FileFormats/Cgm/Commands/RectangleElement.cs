using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A rectangle with sides along the axes.</summary>
public sealed class RectangleElement : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public RectangleElement()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.RectangleElement)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="firstCorner">A corner.</param>
    /// <param name="secondCorner">The corner opposite to it.</param>
    public RectangleElement(CgmPoint firstCorner, CgmPoint secondCorner)
        : this()
    {
        Verify.NotNull(firstCorner);
        Verify.NotNull(secondCorner);
        FirstCorner = firstCorner;
        SecondCorner = secondCorner;
    }

    /// <summary>Gets or sets a corner.</summary>
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the corner opposite to it.</summary>
    public CgmPoint SecondCorner { get; set; } = new();

    /// <inheritdoc/>
    public override string ToString() => $"{Keyword} {FirstCorner} {SecondCorner}";

    internal override void Exchange(ParameterExchange x)
    {
        FirstCorner = x.Point(FirstCorner);
        SecondCorner = x.Point(SecondCorner);
    }
}
