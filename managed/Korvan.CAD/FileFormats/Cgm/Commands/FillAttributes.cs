using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which bundle of attributes areas take.</summary>
[CgmCommand(AttributeElement.FillBundleIndex, "FILLINDEX")]
public sealed partial class FillBundleIndex : GenericIndexCommand;

/// <summary>How areas are filled.</summary>
[CgmCommand(AttributeElement.InteriorStyle, "INTSTYLE")]
public sealed partial class InteriorStyle : Command
{
    /// <summary>The ways to fill.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Style
    {
        /// <summary>Only the outline is drawn, in the colour of areas.</summary>
        [CgmKeyword("HOLLOW")]
        Hollow = 0,

        /// <summary>By the colour of areas.</summary>
        [CgmKeyword("SOLID")]
        Solid = 1,

        /// <summary>By a pattern of cells.</summary>
        [CgmKeyword("PAT")]
        Pattern = 2,

        /// <summary>By hatch lines.</summary>
        [CgmKeyword("HATCH")]
        Hatch = 3,

        /// <summary>Not at all.</summary>
        [CgmKeyword("EMPTY")]
        Empty = 4,

        /// <summary>By a pattern that is drawn.</summary>
        [CgmKeyword("GEOPAT")]
        GeometricPattern = 5,

        /// <summary>By colours that change gradually.</summary>
        [CgmKeyword("INTERP")]
        Interpolated = 6,
    }

    /// <summary>Gets or sets how.</summary>
    [CgmEnum]
    public Style Value { get; set; }
}

/// <summary>The colour of areas.</summary>
[CgmCommand(AttributeElement.FillColour, "FILLCOLR",
    Default = "the number 1 of the colour table")]
[CgmConstructor(nameof(Color))]
public sealed partial class FillColour : ColourCommand;

/// <summary>The hatch of areas.</summary>
[CgmCommand(AttributeElement.HatchIndex, "HATCHINDEX")]
public sealed partial class HatchIndex : Command
{
    /// <summary>The hatches.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum HatchType
    {
        /// <summary>Horizontal lines.</summary>
        Horizontal = 1,

        /// <summary>Vertical lines.</summary>
        Vertical = 2,

        /// <summary>Lines that rise.</summary>
        PositiveSlope = 3,

        /// <summary>Lines that fall.</summary>
        NegativeSlope = 4,

        /// <summary>Horizontal and vertical lines.</summary>
        HorizontalVerticalCross = 5,

        /// <summary>Rising and falling lines.</summary>
        PositiveNegativeCross = 6,
    }

    /// <summary>Gets or sets the number of the hatch; negative ones are private or defined by the picture.</summary>
    [CgmIndex]
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public HatchType Value { get => (HatchType)Index; set => Index = (int)value; }
}

/// <summary>The pattern of areas, by its index.</summary>
[CgmCommand(AttributeElement.PatternIndex, "PATINDEX")]
public sealed partial class PatternIndex : GenericIndexCommand;

/// <summary>The point that patterns and hatches begin at.</summary>
[CgmCommand(AttributeElement.FillReferencePoint, "FILLREFPT")]
public sealed partial class FillReferencePoint : Command
{
    /// <summary>Gets or sets the point.</summary>
    [CgmPoint]
    public CgmPoint Point { get; set; } = new();
}

/// <summary>Defines a pattern of coloured cells.</summary>
[CgmCommand(AttributeElement.PatternTable, "PATTABLE")]
public sealed partial class PatternTable : Command
{
    /// <summary>Gets or sets the index that areas call the pattern by, from 1.</summary>
    [CgmIndex]
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the count of cells in a line.</summary>
    [CgmInteger]
    public int CellsPerLine { get; set; } = 1;

    /// <summary>Gets or sets the count of lines.</summary>
    [CgmInteger]
    public int LineCount { get; set; } = 1;

    /// <summary>Gets or sets how many bits a colour, or one of its components, has in a binary file: 0 for as many as
    /// in the metafile, 1, 2, 4, 8, 16, 24 or 32.</summary>
    [CgmLocalBits]
    public int LocalPrecision { get; set; }

    /// <summary>Gets or sets the cells, line by line: numbers of colours, or 0xAARRGGBB where the picture selects
    /// colours by their components.</summary>
    [CgmCustom]
    public int[] Cells { get; set; } = [1];

    private int[] ExchangeCells(ParameterExchange x) =>
        x.Cells(Cells, CellsPerLine, LineCount, LocalPrecision, withMode: false);
}

/// <summary>The size of a whole pattern, by the vectors of two sides, as the mode of interiors says.</summary>
[CgmCommand(AttributeElement.PatternSize, "PATSIZE")]
public sealed partial class PatternSize : Command
{
    /// <summary>Gets or sets the abscissa of the side that leads up.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double HeightX { get; set; }

    /// <summary>Gets or sets the ordinate of that side.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double HeightY { get; set; } = 1;

    /// <summary>Gets or sets the abscissa of the side that leads right.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double WidthX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of that side.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double WidthY { get; set; }
}

/// <summary>Defines colours of the colour table, one after the other.</summary>
[CgmCommand(AttributeElement.ColourTable, "COLRTABLE")]
[CgmConstructor(nameof(StartIndex), nameof(Colors))]
public sealed partial class ColourTable : Command
{
    /// <summary>Gets or sets the number of the first one.</summary>
    [CgmColorIndex]
    public int StartIndex { get; set; }

    /// <summary>Gets or sets the colours, each told by its components.</summary>
    [CgmDirectColor]
    public List<CgmColor> Colors { get; set; } = [];
}

/// <summary>Colours of areas that change gradually.</summary>
[CgmCommand(AttributeElement.InterpolatedInterior, "INTERPINT")]
public sealed partial class InterpolatedInterior : Command
{
    /// <summary>Gets or sets 1 for changes along a direction, 2 along radii of an ellipse, 3 over a triangle.</summary>
    [CgmIndex]
    public int Style { get; set; } = 1;

    /// <summary>Gets or sets vectors from the fill reference point, as the mode of interiors says: one for style 1, two
    /// for the others, X and Y of each.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode), Count = "Style == 1 ? 2 : 4")]
    public List<double> ReferenceGeometry { get; set; } = [1, 0];

    /// <summary>Gets or sets where the colours lie, each in parts of the reference vector; none for style 3.</summary>
    [CgmReal(Counted = true)]
    public List<double> StageDesignators { get; set; } = [];

    /// <summary>Gets or sets the colours, one more than places, or three for style 3.</summary>
    [CgmColor]
    public List<CgmColor> Colors { get; set; } = [];
}
