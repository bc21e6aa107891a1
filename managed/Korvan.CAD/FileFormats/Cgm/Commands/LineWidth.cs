using System;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The width of lines.</summary>
public sealed class LineWidth : Command
{
    /// <summary>Creates the width 1.</summary>
    public LineWidth()
        : base(ClassCode.AttributeElement, (int)AttributeElement.LineWidth)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="width">The width, not negative, in what the mode of the picture says.</param>
    public LineWidth(double width)
        : this()
    {
        Width = width;
    }

    /// <summary>Gets or sets the width, not negative, in what the mode of the picture says.</summary>
    public double Width { get; set; } = 1;

    /// <inheritdoc/>
    public override string ToString() => System.FormattableString.Invariant($"{Keyword} {Width}");

    internal override void Exchange(ParameterExchange x) => Width = x.Size(Width, x.State.Current.LineWidthMode);
}
