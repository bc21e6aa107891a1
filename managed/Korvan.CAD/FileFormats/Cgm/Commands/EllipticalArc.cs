using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An arc of an ellipse, in the direction from the first conjugate radius to the second.</summary>
public class EllipticalArc : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public EllipticalArc()
        : this((int)GraphicalPrimitiveElement.EllipticalArc)
    {
    }

    private protected EllipticalArc(int elementId)
        : base(ClassCode.GraphicalPrimitiveElement, elementId)
    {
    }

    /// <summary>Gets or sets the centre.</summary>
    public CgmPoint Centre { get; set; } = new();

    /// <summary>Gets or sets the end of one conjugate radius.</summary>
    public CgmPoint FirstRadiusEnd { get; set; } = new();

    /// <summary>Gets or sets the end of the other conjugate radius.</summary>
    public CgmPoint SecondRadiusEnd { get; set; } = new();

    /// <summary>Gets or sets the abscissa of the direction from the centre to the beginning.</summary>
    public double StartX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that direction.</summary>
    public double StartY { get; set; }

    /// <summary>Gets or sets the abscissa of the direction from the centre to the end.</summary>
    public double EndX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that direction.</summary>
    public double EndY { get; set; }

    internal override void Exchange(ParameterExchange x)
    {
        Centre = x.Point(Centre);
        FirstRadiusEnd = x.Point(FirstRadiusEnd);
        SecondRadiusEnd = x.Point(SecondRadiusEnd);
        StartX = x.Vdc(StartX);
        StartY = x.Vdc(StartY);
        EndX = x.Vdc(EndX);
        EndY = x.Vdc(EndY);
    }
}
