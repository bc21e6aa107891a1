using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The size of markers.</summary>
public sealed class MarkerSize : Command
{
    /// <summary>Creates the size 1.</summary>
    public MarkerSize()
        : base(ClassCode.AttributeElement, (int)AttributeElement.MarkerSize)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="size">The size, not negative, in what the mode of the picture says.</param>
    public MarkerSize(double size)
        : this()
    {
        Size = size;
    }

    /// <summary>Gets or sets the size, not negative, in what the mode of the picture says.</summary>
    public double Size { get; set; } = 1;

    internal override void Exchange(ParameterExchange x) => Size = x.Size(Size, x.State.Current.MarkerSizeMode);
}
