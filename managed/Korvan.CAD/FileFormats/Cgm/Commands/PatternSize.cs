using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The size of a whole pattern, by the vectors of two sides, as the mode of interiors says.</summary>
public sealed class PatternSize : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public PatternSize()
        : base(ClassCode.AttributeElement, (int)AttributeElement.PatternSize)
    {
    }

    /// <summary>Gets or sets the abscissa of the side that leads up.</summary>
    public double HeightX { get; set; }

    /// <summary>Gets or sets the ordinate of that side.</summary>
    public double HeightY { get; set; } = 1;

    /// <summary>Gets or sets the abscissa of the side that leads right.</summary>
    public double WidthX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that side.</summary>
    public double WidthY { get; set; }

    internal override void Exchange(ParameterExchange x)
    {
        HeightX = x.Size(HeightX, x.State.Current.InteriorStyleMode);
        HeightY = x.Size(HeightY, x.State.Current.InteriorStyleMode);
        WidthX = x.Size(WidthX, x.State.Current.InteriorStyleMode);
        WidthY = x.Size(WidthY, x.State.Current.InteriorStyleMode);
    }
}
