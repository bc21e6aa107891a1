using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The width of edges.</summary>
public sealed class EdgeWidth : Command
{
    /// <summary>Creates the width 1.</summary>
    public EdgeWidth()
        : base(ClassCode.AttributeElement, (int)AttributeElement.EdgeWidth)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="width">The width, not negative, in what the mode of the picture says.</param>
    public EdgeWidth(double width)
        : this()
    {
        Width = width;
    }

    /// <summary>Gets or sets the width, not negative, in what the mode of the picture says.</summary>
    public double Width { get; set; } = 1;

    internal override void Exchange(ParameterExchange x) => Width = x.Size(Width, x.State.Current.EdgeWidthMode);
}
