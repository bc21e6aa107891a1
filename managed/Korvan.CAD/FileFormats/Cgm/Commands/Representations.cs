using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A bundle of attributes of lines.</summary>
[CgmCommand(PictureDescriptorElement.LineRepresentation, "LINEREP")]
public sealed partial class LineRepresentation : Command
{
    /// <summary>Gets or sets the index of the bundle, from 1.</summary>
    [CgmIndex]
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets the number of the dashes; negative ones are private or defined by the picture.</summary>
    [CgmIndex]
    public int TypeIndex { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public DashType Type { get => (DashType)TypeIndex; set => TypeIndex = (int)value; }

    /// <summary>Gets or sets the width, in what the mode of the picture says.</summary>
    [CgmSize(nameof(PictureCoding.LineWidthMode))]
    public double Width { get; set; } = 1;

    /// <summary>Gets or sets the colour.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(1);
}

/// <summary>A bundle of attributes of markers.</summary>
[CgmCommand(PictureDescriptorElement.MarkerRepresentation, "MARKERREP")]
public sealed partial class MarkerRepresentation : Command
{
    /// <summary>Gets or sets the index of the bundle, from 1.</summary>
    [CgmIndex]
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets the number of the shape; negative ones are private.</summary>
    [CgmIndex]
    public int TypeIndex { get; set; } = 3;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public MarkerType.Type Type { get => (MarkerType.Type)TypeIndex; set => TypeIndex = (int)value; }

    /// <summary>Gets or sets the size, in what the mode of the picture says.</summary>
    [CgmSize(nameof(PictureCoding.MarkerSizeMode))]
    public double Size { get; set; } = 1;

    /// <summary>Gets or sets the colour.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(1);
}

/// <summary>A bundle of attributes of texts.</summary>
[CgmCommand(PictureDescriptorElement.TextRepresentation, "TEXTREP")]
public sealed partial class TextRepresentation : Command
{
    /// <summary>Gets or sets the index of the bundle, from 1.</summary>
    [CgmIndex]
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets the place of the font in the font list, from 1.</summary>
    [CgmIndex]
    public int FontIndex { get; set; } = 1;

    /// <summary>Gets or sets how exactly texts are placed.</summary>
    [CgmEnum]
    public TextPrecisionType Precision { get; set; }

    /// <summary>Gets or sets the gap between characters, in parts of their height.</summary>
    [CgmReal]
    public double Spacing { get; set; }

    /// <summary>Gets or sets how much wider characters are than the font has them.</summary>
    [CgmReal]
    public double ExpansionFactor { get; set; } = 1;

    /// <summary>Gets or sets the colour.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(1);
}

/// <summary>A bundle of attributes of areas.</summary>
[CgmCommand(PictureDescriptorElement.FillRepresentation, "FILLREP")]
public sealed partial class FillRepresentation : Command
{
    /// <summary>Gets or sets the index of the bundle, from 1.</summary>
    [CgmIndex]
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets how areas are filled.</summary>
    [CgmEnum]
    public InteriorStyle.Style Style { get; set; }

    /// <summary>Gets or sets the colour.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(1);

    /// <summary>Gets or sets the number of the hatch; negative ones are private or defined by the
    /// picture.</summary>
    [CgmIndex]
    public int HatchNumber { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public HatchIndex.HatchType Hatch { get => (HatchIndex.HatchType)HatchNumber; set => HatchNumber = (int)value; }

    /// <summary>Gets or sets the index of the pattern, from 1.</summary>
    [CgmIndex]
    public int PatternIndex { get; set; } = 1;
}

/// <summary>A bundle of attributes of edges.</summary>
[CgmCommand(PictureDescriptorElement.EdgeRepresentation, "EDGEREP")]
public sealed partial class EdgeRepresentation : Command
{
    /// <summary>Gets or sets the index of the bundle, from 1.</summary>
    [CgmIndex]
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets the number of the dashes; negative ones are private or defined by the picture.</summary>
    [CgmIndex]
    public int TypeIndex { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public DashType Type { get => (DashType)TypeIndex; set => TypeIndex = (int)value; }

    /// <summary>Gets or sets the width, in what the mode of the picture says.</summary>
    [CgmSize(nameof(PictureCoding.EdgeWidthMode))]
    public double Width { get; set; } = 1;

    /// <summary>Gets or sets the colour.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(1);
}

/// <summary>Dashes of an own kind.</summary>
[CgmCommand(PictureDescriptorElement.LineAndEdgeTypeDefinition, "LINEEDGETYPEDEF")]
public sealed partial class LineAndEdgeTypeDefinition : Command
{
    /// <summary>Gets or sets the number that lines and edges call the dashes by; negative.</summary>
    [CgmIndex]
    public int TypeIndex { get; set; } = -1;

    /// <summary>Gets or sets the length after which the dashes repeat, as widths of lines are told.</summary>
    [CgmSize(nameof(PictureCoding.LineWidthMode))]
    public double RepeatLength { get; set; } = 1;

    /// <summary>Gets or sets the lengths of dash, gap, dash, gap and so on, relative to each other.</summary>
    [CgmInteger]
    public List<int> Elements { get; set; } = [1, 1];
}

/// <summary>A hatch of an own kind: lines in one or two directions, with gaps between them.</summary>
[CgmCommand(PictureDescriptorElement.HatchStyleDefinition, "HATCHSTYLEDEF")]
public sealed partial class HatchStyleDefinition : Command
{
    /// <summary>The kinds of hatches.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum HatchStyle
    {
        /// <summary>Lines in one direction.</summary>
        [CgmKeyword("PARALLEL")]
        Parallel = 0,

        /// <summary>Lines in two directions.</summary>
        [CgmKeyword("CROSSHATCH")]
        CrossHatch = 1,
    }

    /// <summary>Gets or sets the number that areas call the hatch by; negative.</summary>
    [CgmIndex]
    public int HatchNumber { get; set; } = -1;

    /// <summary>Gets or sets whether there are two directions.</summary>
    [CgmEnum]
    public HatchStyle Style { get; set; }

    /// <summary>Gets or sets the abscissa of the first direction.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double FirstDirectionX { get; set; } = 1;

    /// <summary>Gets or sets the ordinate of the first direction.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double FirstDirectionY { get; set; }

    /// <summary>Gets or sets the abscissa of the second direction.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double SecondDirectionX { get; set; }

    /// <summary>Gets or sets the ordinate of the second direction.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double SecondDirectionY { get; set; } = 1;

    /// <summary>Gets or sets the distance after which the lines repeat, as the mode of interiors says.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double CycleLength { get; set; } = 1;

    /// <summary>Gets or sets the distances from line to line, relative to each other.</summary>
    [CgmInteger(Counted = true)]
    public List<int> GapWidths { get; set; } = [1];

    /// <summary>Gets or sets the numbers of the dashes of the lines, as many as gaps.</summary>
    [CgmIndex(Count = "GapWidths.Count")]
    public List<int> LineTypes { get; set; } = [1];
}

/// <summary>A pattern that is drawn by a segment.</summary>
[CgmCommand(PictureDescriptorElement.GeometricPatternDefinition, "GEOPATDEF")]
public sealed partial class GeometricPatternDefinition : Command
{
    /// <summary>Gets or sets the index that areas call the pattern by, from 1.</summary>
    [CgmIndex]
    public int PatternIndex { get; set; } = 1;

    /// <summary>Gets or sets the name of the segment.</summary>
    [CgmName]
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets a corner of the part of the segment that is one piece of the pattern.</summary>
    [CgmPoint]
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the corner opposite to it.</summary>
    [CgmPoint]
    public CgmPoint SecondCorner { get; set; } = new(1, 1);
}
