using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The fill bundle index.</summary>
[CgmCommand(AttributeElement.FillBundleIndex, "FILLINDEX")]
public sealed partial class FillBundleIndex : GenericIndexCommand;

/// <summary>The interior style, how areas are filled.</summary>
[CgmCommand(AttributeElement.InteriorStyle, "INTSTYLE")]
public sealed partial class InteriorStyle : Command
{
    /// <summary>The interior styles.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Style
    {
        /// <summary>Only the boundary is drawn, in the fill colour.</summary>
        [CgmKeyword("HOLLOW")] Hollow = 0,

        /// <summary>The fill colour.</summary>
        [CgmKeyword("SOLID")] Solid = 1,

        /// <summary>A pattern of cells.</summary>
        [CgmKeyword("PAT")] Pattern = 2,

        /// <summary>Hatch lines.</summary>
        [CgmKeyword("HATCH")] Hatch = 3,

        /// <summary>No interior.</summary>
        [CgmKeyword("EMPTY")] Empty = 4,

        /// <summary>A geometric pattern, drawn by a segment.</summary>
        [CgmKeyword("GEOPAT")] GeometricPattern = 5,

        /// <summary>Interpolated colours, a gradient.</summary>
        [CgmKeyword("INTERP")] Interpolated = 6,
    }

    /// <summary>Gets or sets the style.</summary>
    [CgmEnum]
    public Style Value { get; set; }
}

/// <summary>The fill colour.</summary>
[CgmCommand(AttributeElement.FillColour, "FILLCOLR", Default = "the colour index 1")]
[CgmConstructor(nameof(Color))]
public sealed partial class FillColour : ColourCommand;

/// <summary>The hatch index.</summary>
[CgmCommand(AttributeElement.HatchIndex, "HATCHINDEX")]
public sealed partial class HatchIndex : Command
{
    /// <summary>The standard hatch styles.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum HatchType
    {
        /// <summary>Horizontal lines.</summary>
        Horizontal = 1,

        /// <summary>Vertical lines.</summary>
        Vertical = 2,

        /// <summary>Lines with positive slope.</summary>
        PositiveSlope = 3,

        /// <summary>Lines with negative slope.</summary>
        NegativeSlope = 4,

        /// <summary>Horizontal and vertical lines.</summary>
        HorizontalVerticalCross = 5,

        /// <summary>Lines with positive and negative slope.</summary>
        PositiveNegativeCross = 6,
    }

    /// <summary>Gets or sets the hatch index; negative ones are private or defined by the picture.</summary>
    [CgmIndex]
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the same index as an enum member; Python can read it only where the index has a
    /// name.</summary>
    public HatchType Value { get => (HatchType)Index; set => Index = (int)value; }
}

/// <summary>The pattern index.</summary>
[CgmCommand(AttributeElement.PatternIndex, "PATINDEX")]
public sealed partial class PatternIndex : GenericIndexCommand;

/// <summary>The reference point of patterns and hatches.</summary>
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
    /// <summary>Gets or sets the pattern index, from 1.</summary>
    [CgmIndex]
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the count of cells in a row.</summary>
    [CgmInteger]
    public int CellsPerLine { get; set; } = 1;

    /// <summary>Gets or sets the count of rows.</summary>
    [CgmInteger]
    public int LineCount { get; set; } = 1;

    /// <summary>Gets or sets the bits of a colour index, or of a colour component, in a binary file: 1, 2, 4, 8, 16, 24
    /// or 32, or 0 for the precision of the metafile.</summary>
    [CgmLocalBits]
    public int LocalPrecision { get; set; }

    /// <summary>Gets or sets the cells, row by row: colour indexes, or 0xAARRGGBB where the colour selection mode is
    /// direct.</summary>
    [CgmCustom]
    public int[] Cells { get; set; } = [1];

    private int[] ExchangeCells(ParameterExchange x) =>
        x.Cells(Cells, CellsPerLine, LineCount, LocalPrecision, withMode: false);
}

/// <summary>The size of a whole pattern as two vectors, in the unit of the interior style specification mode.</summary>
[CgmCommand(AttributeElement.PatternSize, "PATSIZE")]
public sealed partial class PatternSize : Command
{
    /// <summary>Gets or sets the X component of the height vector.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double HeightX { get; set; }

    /// <summary>Gets or sets the Y component of the height vector.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double HeightY { get; set; } = 1;

    /// <summary>Gets or sets the X component of the width vector.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double WidthX { get; set; } = 1;

    /// <summary>Gets or sets the Y component of the width vector.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double WidthY { get; set; }
}

/// <summary>Defines consecutive entries of the colour table.</summary>
[CgmCommand(AttributeElement.ColourTable, "COLRTABLE")]
[CgmConstructor(nameof(StartIndex), nameof(Colors))]
public sealed partial class ColourTable : Command
{
    /// <summary>Gets or sets the index of the first entry.</summary>
    [CgmColorIndex]
    public int StartIndex { get; set; }

    /// <summary>Gets or sets the colours, all direct.</summary>
    [CgmDirectColor]
    public List<CgmColor> Colors { get; set; } = [];
}

/// <summary>The gradient of interpolated interiors.</summary>
[CgmCommand(AttributeElement.InterpolatedInterior, "INTERPINT")]
public sealed partial class InterpolatedInterior : Command
{
    /// <summary>Gets or sets the style: 1 parallel, 2 elliptical, 3 triangular.</summary>
    [CgmIndex]
    public int Style { get; set; } = 1;

    /// <summary>Gets or sets the reference geometry as X and Y of vectors from the fill reference point, in the unit of
    /// the interior style specification mode: one vector for style 1, two for the others.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode), Count = "Style == 1 ? 2 : 4")]
    public List<double> ReferenceGeometry { get; set; } = [1, 0];

    /// <summary>Gets or sets the stages of the gradient in fractions of the reference vector; none for style
    /// 3.</summary>
    [CgmReal(Counted = true)]
    public List<double> StageDesignators { get; set; } = [];

    /// <summary>Gets or sets the colours, one more than stages, or three for style 3.</summary>
    [CgmColor]
    public List<CgmColor> Colors { get; set; } = [];
}
