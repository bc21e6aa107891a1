using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Whether coordinates have a size in the world.</summary>
[CgmCommand(PictureDescriptorElement.ScalingMode, "SCALEMODE")]
public sealed partial class ScalingMode : Command
{
    /// <summary>The kinds of scaling.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Mode
    {
        /// <summary>Any size will do.</summary>
        [CgmKeyword("ABSTRACT")]
        Abstract = 0,

        /// <summary>A unit is so many millimetres.</summary>
        [CgmKeyword("METRIC")]
        Metric = 1,
    }

    /// <summary>Gets or sets whether they have one.</summary>
    [CgmEnum]
    public Mode Value { get; set; }

    /// <summary>Gets or sets how many millimetres one unit is; only for metric scaling.</summary>
    [CgmFloatingReal]
    public double MetricScaleFactor { get; set; } = 1;
}

/// <summary>How the elements of a picture tell colours.</summary>
[CgmCommand(PictureDescriptorElement.ColourSelectionMode, "COLRMODE")]
public sealed partial class ColourSelectionMode : Command
{
    /// <summary>The ways to tell a colour.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>By its number in the colour table.</summary>
        [CgmKeyword("INDEXED")]
        Indexed = 0,

        /// <summary>By its components.</summary>
        [CgmKeyword("DIRECT")]
        Direct = 1,
    }

    /// <summary>Gets or sets the way.</summary>
    [CgmEnum]
    public Type Value { get; set; } = Type.Indexed;

    internal override void Apply(CodingState state) => state.Current.ColorSelection = Value;
}

/// <summary>What the widths of lines count.</summary>
[CgmCommand(PictureDescriptorElement.LineWidthSpecificationMode, "LINEWIDTHMODE")]
public sealed partial class LineWidthSpecificationMode : Command
{
    /// <summary>Gets or sets what they count.</summary>
    [CgmEnum]
    public SpecificationMode Value { get; set; } = SpecificationMode.Scaled;

    internal override void Apply(CodingState state) => state.Current.LineWidthMode = Value;
}

/// <summary>What the sizes of markers count.</summary>
[CgmCommand(PictureDescriptorElement.MarkerSizeSpecificationMode, "MARKERSIZEMODE")]
public sealed partial class MarkerSizeSpecificationMode : Command
{
    /// <summary>Gets or sets what they count.</summary>
    [CgmEnum]
    public SpecificationMode Value { get; set; } = SpecificationMode.Scaled;

    internal override void Apply(CodingState state) => state.Current.MarkerSizeMode = Value;
}

/// <summary>What the widths of edges count.</summary>
[CgmCommand(PictureDescriptorElement.EdgeWidthSpecificationMode, "EDGEWIDTHMODE")]
public sealed partial class EdgeWidthSpecificationMode : Command
{
    /// <summary>Gets or sets what they count.</summary>
    [CgmEnum]
    public SpecificationMode Value { get; set; } = SpecificationMode.Scaled;

    internal override void Apply(CodingState state) => state.Current.EdgeWidthMode = Value;
}

/// <summary>What the sizes of hatches, patterns and blends count.</summary>
[CgmCommand(PictureDescriptorElement.InteriorStyleSpecificationMode, "INTSTYLEMODE")]
public sealed partial class InteriorStyleSpecificationMode : Command
{
    /// <summary>Gets or sets what they count.</summary>
    [CgmEnum]
    public SpecificationMode Value { get; set; }

    internal override void Apply(CodingState state) => state.Current.InteriorStyleMode = Value;
}

/// <summary>The part of the plane that is the picture; where the first corner is not the lower left one, an axis runs
/// the other way.</summary>
[CgmCommand(PictureDescriptorElement.VdcExtent, "VDCEXT",
    Default = "the default extent of whole numbers, (0, 0) to (32767, 32767)")]
[CgmConstructor(nameof(FirstCorner), nameof(SecondCorner))]
public sealed partial class VdcExtent : Command
{
    /// <summary>Gets or sets the corner that is seen at the lower left.</summary>
    [CgmPoint]
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the corner that is seen at the upper right.</summary>
    [CgmPoint]
    public CgmPoint SecondCorner { get; set; } = new(32767, 32767);
}

/// <summary>The colour of the surface, and number 0 of the colour table.</summary>
[CgmCommand(PictureDescriptorElement.BackgroundColour, "BACKCOLR",
    Default = "white")]
[CgmConstructor(nameof(Color))]
public sealed partial class BackgroundColour : Command
{
    /// <summary>Gets or sets the colour, told by its components.</summary>
    [CgmDirectColor]
    public CgmColor Color { get; set; } = new(Korvan.CAD.Color.White);
}

/// <summary>The part of the surface of a device that the picture fills.</summary>
[CgmCommand(PictureDescriptorElement.DeviceViewport, "DEVVP",
    Default = "the whole surface, in parts of it")]
public sealed partial class DeviceViewport : Command
{
    /// <summary>Gets or sets the first corner.</summary>
    [CgmViewportPoint]
    public ViewportPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the corner opposite to it.</summary>
    [CgmViewportPoint]
    public ViewportPoint SecondCorner { get; set; } = new(new VC(1), new VC(1));
}

/// <summary>What the coordinates of the device viewport count.</summary>
[CgmCommand(PictureDescriptorElement.DeviceViewportSpecificationMode, "DEVVPMODE",
    Default = "the element with its default, parts of the surface")]
public sealed partial class DeviceViewportSpecificationMode : Command
{
    /// <summary>The kinds of coordinates.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Mode
    {
        /// <summary>Parts of the surface, 0 to 1.</summary>
        [CgmKeyword("FRACTION")]
        FractionOfDrawingSurface = 0,

        /// <summary>Millimetres, multiplied by a factor.</summary>
        [CgmKeyword("MM")]
        MillimetresWithScaleFactor = 1,

        /// <summary>Units of the device.</summary>
        [CgmKeyword("PHYDEVCOORD")]
        PhysicalDeviceCoordinates = 2,
    }

    /// <summary>Gets or sets the kind.</summary>
    [CgmEnum]
    public Mode Value { get; set; } = Mode.FractionOfDrawingSurface;

    /// <summary>Gets or sets the factor of millimetres.</summary>
    [CgmFloatingReal]
    public double ScaleFactor { get; set; } = 1;

    internal override void Apply(CodingState state) => state.ViewportMode = Value;
}

/// <summary>How the extent of the picture is fitted into the viewport.</summary>
[CgmCommand(PictureDescriptorElement.DeviceViewportMapping, "DEVVPMAP",
    Default = "the default mapping: the shape is kept, at the lower left")]
public sealed partial class DeviceViewportMapping : Command
{
    /// <summary>Whether both axes have the same scale.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Isotropy
    {
        /// <summary>The picture fills the viewport.</summary>
        [CgmKeyword("NOTFORCED")]
        NotForced = 0,

        /// <summary>The shape of the picture is kept.</summary>
        [CgmKeyword("FORCED")]
        Forced = 1,
    }

    /// <summary>Places along X.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Horizontalalignment
    {
        /// <summary>Left.</summary>
        [CgmKeyword("LEFT")]
        Left = 0,

        /// <summary>In the middle.</summary>
        [CgmKeyword("CTR")]
        Centre = 1,

        /// <summary>Right.</summary>
        [CgmKeyword("RIGHT")]
        Right = 2,
    }

    /// <summary>Places along Y.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Verticalalignment
    {
        /// <summary>At the bottom.</summary>
        [CgmKeyword("BOTTOM")]
        Bottom = 0,

        /// <summary>In the middle.</summary>
        [CgmKeyword("CTR")]
        Centre = 1,

        /// <summary>At the top.</summary>
        [CgmKeyword("TOP")]
        Top = 2,
    }

    /// <summary>Gets or sets whether both axes have the same scale.</summary>
    [CgmEnum]
    public Isotropy Scaling { get; set; } = Isotropy.Forced;

    /// <summary>Gets or sets where the picture lies in a wider viewport.</summary>
    [CgmEnum]
    public Horizontalalignment HorizontalAlignment { get; set; }

    /// <summary>Gets or sets where the picture lies in a higher viewport.</summary>
    [CgmEnum]
    public Verticalalignment VerticalAlignment { get; set; }
}
