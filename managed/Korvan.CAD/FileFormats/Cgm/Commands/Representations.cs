using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Defines a line bundle.</summary>
[CgmCommand(PictureDescriptorElement.LineRepresentation, "LINEREP")]
public sealed partial class LineRepresentation : Command
{
    /// <summary>Gets or sets the bundle index, from 1.</summary>
    [CgmIndex]
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets the index of the dash pattern; negative ones are private or defined by the
    /// picture.</summary>
    [CgmIndex]
    public int TypeIndex { get; set; } = 1;

    /// <summary>Gets or sets the same index as an enum member; Python can read it only where the index has a
    /// name.</summary>
    public DashType Type { get => (DashType)TypeIndex; set => TypeIndex = (int)value; }

    /// <summary>Gets or sets the width, in the unit of the line width specification mode.</summary>
    [CgmSize(nameof(PictureCoding.LineWidthMode))]
    public double Width { get; set; } = 1;

    /// <summary>Gets or sets the colour.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(1);
}

/// <summary>Defines a marker bundle.</summary>
[CgmCommand(PictureDescriptorElement.MarkerRepresentation, "MARKERREP")]
public sealed partial class MarkerRepresentation : Command
{
    /// <summary>Gets or sets the bundle index, from 1.</summary>
    [CgmIndex]
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets the index of the marker type; negative ones are private.</summary>
    [CgmIndex]
    public int TypeIndex { get; set; } = 3;

    /// <summary>Gets or sets the same index as an enum member; Python can read it only where the index has a
    /// name.</summary>
    public MarkerType.Type Type { get => (MarkerType.Type)TypeIndex; set => TypeIndex = (int)value; }

    /// <summary>Gets or sets the size, in the unit of the marker size specification mode.</summary>
    [CgmSize(nameof(PictureCoding.MarkerSizeMode))]
    public double Size { get; set; } = 1;

    /// <summary>Gets or sets the colour.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(1);
}

/// <summary>Defines a text bundle.</summary>
[CgmCommand(PictureDescriptorElement.TextRepresentation, "TEXTREP")]
public sealed partial class TextRepresentation : Command
{
    /// <summary>Gets or sets the bundle index, from 1.</summary>
    [CgmIndex]
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets the index of the font in the font list, from 1.</summary>
    [CgmIndex]
    public int FontIndex { get; set; } = 1;

    /// <summary>Gets or sets the text precision.</summary>
    [CgmEnum]
    public TextPrecisionType Precision { get; set; }

    /// <summary>Gets or sets the character spacing as a fraction of the character height.</summary>
    [CgmReal]
    public double Spacing { get; set; }

    /// <summary>Gets or sets the ratio of the character width to that of the font.</summary>
    [CgmReal]
    public double ExpansionFactor { get; set; } = 1;

    /// <summary>Gets or sets the colour.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(1);
}

/// <summary>Defines a fill bundle.</summary>
[CgmCommand(PictureDescriptorElement.FillRepresentation, "FILLREP")]
public sealed partial class FillRepresentation : Command
{
    /// <summary>Gets or sets the bundle index, from 1.</summary>
    [CgmIndex]
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets the interior style.</summary>
    [CgmEnum]
    public InteriorStyle.Style Style { get; set; }

    /// <summary>Gets or sets the colour.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(1);

    /// <summary>Gets or sets the hatch index; negative ones are private or defined by the picture.</summary>
    [CgmIndex]
    public int HatchNumber { get; set; } = 1;

    /// <summary>Gets or sets the same index as an enum member; Python can read it only where the index has a
    /// name.</summary>
    public HatchIndex.HatchType Hatch { get => (HatchIndex.HatchType)HatchNumber; set => HatchNumber = (int)value; }

    /// <summary>Gets or sets the pattern index, from 1.</summary>
    [CgmIndex]
    public int PatternIndex { get; set; } = 1;
}

/// <summary>Defines an edge bundle.</summary>
[CgmCommand(PictureDescriptorElement.EdgeRepresentation, "EDGEREP")]
public sealed partial class EdgeRepresentation : Command
{
    /// <summary>Gets or sets the bundle index, from 1.</summary>
    [CgmIndex]
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets the index of the dash pattern; negative ones are private or defined by the
    /// picture.</summary>
    [CgmIndex]
    public int TypeIndex { get; set; } = 1;

    /// <summary>Gets or sets the same index as an enum member; Python can read it only where the index has a
    /// name.</summary>
    public DashType Type { get => (DashType)TypeIndex; set => TypeIndex = (int)value; }

    /// <summary>Gets or sets the width, in the unit of the edge width specification mode.</summary>
    [CgmSize(nameof(PictureCoding.EdgeWidthMode))]
    public double Width { get; set; } = 1;

    /// <summary>Gets or sets the colour.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(1);
}

/// <summary>Defines a dash pattern.</summary>
[CgmCommand(PictureDescriptorElement.LineAndEdgeTypeDefinition, "LINEEDGETYPEDEF")]
public sealed partial class LineAndEdgeTypeDefinition : Command
{
    /// <summary>Gets or sets the line and edge type index of the pattern; negative.</summary>
    [CgmIndex]
    public int TypeIndex { get; set; } = -1;

    /// <summary>Gets or sets the length of the pattern, in the unit of the line width specification mode.</summary>
    [CgmSize(nameof(PictureCoding.LineWidthMode))]
    public double RepeatLength { get; set; } = 1;

    /// <summary>Gets or sets the lengths of dash, gap, dash, gap and so on, relative to each other.</summary>
    [CgmInteger]
    public List<int> Elements { get; set; } = [1, 1];
}

/// <summary>Defines a hatch: lines in one or two directions, with gaps between them.</summary>
[CgmCommand(PictureDescriptorElement.HatchStyleDefinition, "HATCHSTYLEDEF")]
public sealed partial class HatchStyleDefinition : Command
{
    /// <summary>The styles of hatches.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum HatchStyle
    {
        /// <summary>Parallel lines.</summary>
        [CgmKeyword("PARALLEL")] Parallel = 0,

        /// <summary>Lines in two directions.</summary>
        [CgmKeyword("CROSSHATCH")] CrossHatch = 1,
    }

    /// <summary>Gets or sets the hatch index; negative.</summary>
    [CgmIndex]
    public int HatchNumber { get; set; } = -1;

    /// <summary>Gets or sets the style.</summary>
    [CgmEnum]
    public HatchStyle Style { get; set; }

    /// <summary>Gets or sets the X component of the first direction.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double FirstDirectionX { get; set; } = 1;

    /// <summary>Gets or sets the Y component of the first direction.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double FirstDirectionY { get; set; }

    /// <summary>Gets or sets the X component of the second direction.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double SecondDirectionX { get; set; }

    /// <summary>Gets or sets the Y component of the second direction.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double SecondDirectionY { get; set; } = 1;

    /// <summary>Gets or sets the distance after which the lines repeat, in the unit of the interior style specification
    /// mode.</summary>
    [CgmSize(nameof(PictureCoding.InteriorStyleMode))]
    public double CycleLength { get; set; } = 1;

    /// <summary>Gets or sets the distances from line to line, relative to each other.</summary>
    [CgmInteger(Counted = true)]
    public List<int> GapWidths { get; set; } = [1];

    /// <summary>Gets or sets the line types, as many as gaps.</summary>
    [CgmIndex(Count = "GapWidths.Count")]
    public List<int> LineTypes { get; set; } = [1];
}

/// <summary>Defines a geometric pattern, drawn by a segment.</summary>
[CgmCommand(PictureDescriptorElement.GeometricPatternDefinition, "GEOPATDEF")]
public sealed partial class GeometricPatternDefinition : Command
{
    /// <summary>Gets or sets the pattern index, from 1.</summary>
    [CgmIndex]
    public int PatternIndex { get; set; } = 1;

    /// <summary>Gets or sets the name of the segment.</summary>
    [CgmName]
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets a corner of the rectangle of the segment that is one repeat of the pattern.</summary>
    [CgmPoint]
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the opposite corner.</summary>
    [CgmPoint]
    public CgmPoint SecondCorner { get; set; } = new(1, 1);
}
