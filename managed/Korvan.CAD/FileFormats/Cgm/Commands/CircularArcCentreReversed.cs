using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An arc of a circle around a centre, clockwise where the axes are not turned.</summary>
public sealed class CircularArcCentreReversed : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public CircularArcCentreReversed()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.CircularArcCentreReversed)
    {
    }

    /// <summary>Gets or sets the centre.</summary>
    public CgmPoint Centre { get; set; } = new();

    /// <summary>Gets or sets the abscissa of the direction from the centre to the beginning.</summary>
    public double StartX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that direction.</summary>
    public double StartY { get; set; }

    /// <summary>Gets or sets the abscissa of the direction from the centre to the end.</summary>
    public double EndX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that direction.</summary>
    public double EndY { get; set; }

    /// <summary>Gets or sets the radius, in units of the coordinates.</summary>
    public double Radius { get; set; }

    internal override void Exchange(ParameterExchange x)
    {
        Centre = x.Point(Centre);
        StartX = x.Vdc(StartX);
        StartY = x.Vdc(StartY);
        EndX = x.Vdc(EndX);
        EndY = x.Vdc(EndY);
        Radius = x.Vdc(Radius);
    }
}
