using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A hatch of an own kind: lines in one or two directions, with gaps between them.</summary>
public sealed class HatchStyleDefinition : Command
{
    private static readonly string[] Words = ["PARALLEL", "CROSSHATCH"];

    /// <summary>Creates the element with its defaults.</summary>
    public HatchStyleDefinition()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.HatchStyleDefinition)
    {
    }

    /// <summary>The kinds of hatches.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum HatchStyle
    {
        /// <summary>Lines in one direction.</summary>
        Parallel = 0,

        /// <summary>Lines in two directions.</summary>
        CrossHatch = 1,
    }

    /// <summary>Gets or sets the number that areas call the hatch by; negative.</summary>
    public int HatchNumber { get; set; } = -1;

    /// <summary>Gets or sets whether there are two directions.</summary>
    public HatchStyle Style { get; set; }

    /// <summary>Gets or sets the abscissa of the first direction.</summary>
    public double FirstDirectionX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of the first direction.</summary>
    public double FirstDirectionY { get; set; }

    /// <summary>Gets or sets the abscissa of the second direction.</summary>
    public double SecondDirectionX { get; set; }

    /// <summary>Gets or sets the ordinate of the second direction.</summary>
    public double SecondDirectionY { get; set; } = 1;

    /// <summary>Gets or sets the distance after which the lines repeat, as the mode of interiors says.</summary>
    public double CycleLength { get; set; } = 1;

    /// <summary>Gets or sets the distances from line to line, relative to each other.</summary>
    public List<int> GapWidths { get; set; } = [1];

    /// <summary>Gets or sets the numbers of the dashes of the lines, as many as gaps.</summary>
    public List<int> LineTypes { get; set; } = [1];

    internal override void Exchange(ParameterExchange x)
    {
        SpecificationMode mode = x.State.Current.InteriorStyleMode;
        HatchNumber = x.Index(HatchNumber);
        Style = x.Enumeration(Style, Words);
        FirstDirectionX = x.Size(FirstDirectionX, mode);
        FirstDirectionY = x.Size(FirstDirectionY, mode);
        SecondDirectionX = x.Size(SecondDirectionX, mode);
        SecondDirectionY = x.Size(SecondDirectionY, mode);
        CycleLength = x.Size(CycleLength, mode);
        if (!x.IsReading && GapWidths.Count != LineTypes.Count)
        {
            throw new CgmDataException($"{GapWidths.Count} gaps of a hatch have {LineTypes.Count} kinds of lines");
        }

        int count = x.Integer(GapWidths.Count);
        GapWidths = x.Counted(GapWidths, count, static (y, width) => y.Integer(width));
        LineTypes = x.Counted(LineTypes, count, static (y, type) => y.Index(type));
    }
}
