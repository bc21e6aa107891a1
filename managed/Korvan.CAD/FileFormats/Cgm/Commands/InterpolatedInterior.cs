using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Colours of areas that change gradually.</summary>
public sealed class InterpolatedInterior : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public InterpolatedInterior()
        : base(ClassCode.AttributeElement, (int)AttributeElement.InterpolatedInterior)
    {
    }

    /// <summary>Gets or sets 1 for changes along a direction, 2 along radii of an ellipse, 3 over a triangle.</summary>
    public int Style { get; set; } = 1;

    /// <summary>Gets or sets vectors from the fill reference point, as the mode of interiors says: one for style 1, two
    /// for the others, X and Y of each.</summary>
    public List<double> ReferenceGeometry { get; set; } = [1, 0];

    /// <summary>Gets or sets where the colours lie, each in parts of the reference vector; none for style 3.</summary>
    public List<double> StageDesignators { get; set; } = [];

    /// <summary>Gets or sets the colours, one more than places, or three for style 3.</summary>
    public List<CgmColor> Colors { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        SpecificationMode mode = x.State.Current.InteriorStyleMode;
        Style = x.Index(Style);
        int scalars = Style == 1 ? 2 : 4;
        if (!x.IsReading && ReferenceGeometry.Count != scalars)
        {
            throw new CgmDataException(
                $"style {Style} needs {scalars} numbers of reference, {ReferenceGeometry.Count} are there");
        }

        ReferenceGeometry = x.Counted(ReferenceGeometry, scalars, (y, value) => y.Size(value, mode));
        int stages = x.Integer(StageDesignators.Count);
        StageDesignators = x.Counted(StageDesignators, stages, static (y, stage) => y.Real(stage));
        Colors = x.Rest(Colors, static (y, color) => y.Color(color));
    }
}
