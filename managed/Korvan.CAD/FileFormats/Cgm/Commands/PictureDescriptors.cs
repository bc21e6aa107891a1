using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Whether coordinates have a metric size.</summary>
[CgmCommand(PictureDescriptorElement.ScalingMode, "SCALEMODE")]
public sealed partial class ScalingMode : Command
{
    /// <summary>The scaling modes.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Mode
    {
        /// <summary>Coordinates have no size.</summary>
        [CgmKeyword("ABSTRACT")] Abstract = 0,

        /// <summary>Coordinates are in millimetres, multiplied by a factor.</summary>
        [CgmKeyword("METRIC")] Metric = 1,
    }

    /// <summary>Gets or sets the mode.</summary>
    [CgmEnum]
    public Mode Value { get; set; }

    /// <summary>Gets or sets the millimetres of one VDC unit; for metric scaling.</summary>
    [CgmFloatingReal]
    public double MetricScaleFactor { get; set; } = 1;
}

/// <summary>Whether the elements of a picture have indexed or direct colours.</summary>
[CgmCommand(PictureDescriptorElement.ColourSelectionMode, "COLRMODE")]
public sealed partial class ColourSelectionMode : Command
{
    /// <summary>The ways to select a colour.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>By an index into the colour table.</summary>
        [CgmKeyword("INDEXED")] Indexed = 0,

        /// <summary>By its components.</summary>
        [CgmKeyword("DIRECT")] Direct = 1,
    }

    /// <summary>Gets or sets the mode.</summary>
    [CgmEnum]
    public Type Value { get; set; } = Type.Indexed;

    internal override void Apply(CodingState state) => state.Current.ColorSelection = Value;
}

/// <summary>The unit of line widths.</summary>
[CgmCommand(PictureDescriptorElement.LineWidthSpecificationMode, "LINEWIDTHMODE")]
public sealed partial class LineWidthSpecificationMode : Command
{
    /// <summary>Gets or sets the unit.</summary>
    [CgmEnum]
    public SpecificationMode Value { get; set; } = SpecificationMode.Scaled;

    internal override void Apply(CodingState state) => state.Current.LineWidthMode = Value;
}

/// <summary>The unit of marker sizes.</summary>
[CgmCommand(PictureDescriptorElement.MarkerSizeSpecificationMode, "MARKERSIZEMODE")]
public sealed partial class MarkerSizeSpecificationMode : Command
{
    /// <summary>Gets or sets the unit.</summary>
    [CgmEnum]
    public SpecificationMode Value { get; set; } = SpecificationMode.Scaled;

    internal override void Apply(CodingState state) => state.Current.MarkerSizeMode = Value;
}

/// <summary>The unit of edge widths.</summary>
[CgmCommand(PictureDescriptorElement.EdgeWidthSpecificationMode, "EDGEWIDTHMODE")]
public sealed partial class EdgeWidthSpecificationMode : Command
{
    /// <summary>Gets or sets the unit.</summary>
    [CgmEnum]
    public SpecificationMode Value { get; set; } = SpecificationMode.Scaled;

    internal override void Apply(CodingState state) => state.Current.EdgeWidthMode = Value;
}

/// <summary>The unit of the sizes of hatches, patterns and gradients.</summary>
[CgmCommand(PictureDescriptorElement.InteriorStyleSpecificationMode, "INTSTYLEMODE")]
public sealed partial class InteriorStyleSpecificationMode : Command
{
    /// <summary>Gets or sets the unit.</summary>
    [CgmEnum]
    public SpecificationMode Value { get; set; }

    internal override void Apply(CodingState state) => state.Current.InteriorStyleMode = Value;
}

/// <summary>The rectangle of virtual device coordinates that the picture shows; where the first corner is not the lower
/// left one, an axis is mirrored.</summary>
[CgmCommand(PictureDescriptorElement.VdcExtent, "VDCEXT",
    Default = "the default VDC extent of integer coordinates, (0, 0) to (32767, 32767)")]
[CgmConstructor(nameof(FirstCorner), nameof(SecondCorner))]
public sealed partial class VdcExtent : Command
{
    /// <summary>Gets or sets the lower left corner, as the picture is displayed.</summary>
    [CgmPoint]
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the upper right corner, as the picture is displayed.</summary>
    [CgmPoint]
    public CgmPoint SecondCorner { get; set; } = new(32767, 32767);
}

/// <summary>The background colour, and entry 0 of the colour table.</summary>
[CgmCommand(PictureDescriptorElement.BackgroundColour, "BACKCOLR", Default = "a white background")]
[CgmConstructor(nameof(Color))]
public sealed partial class BackgroundColour : Command
{
    /// <summary>Gets or sets the colour, direct.</summary>
    [CgmDirectColor]
    public CgmColor Color { get; set; } = new(Korvan.CAD.Color.White);
}

/// <summary>The part of the drawing surface that the picture fills.</summary>
[CgmCommand(PictureDescriptorElement.DeviceViewport, "DEVVP",
    Default = "the whole drawing surface, in fractions of it")]
public sealed partial class DeviceViewport : Command
{
    /// <summary>Gets or sets the first corner.</summary>
    [CgmViewportPoint]
    public ViewportPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the opposite corner.</summary>
    [CgmViewportPoint]
    public ViewportPoint SecondCorner { get; set; } = new(new VC(1), new VC(1));
}

/// <summary>The unit of viewport coordinates.</summary>
[CgmCommand(PictureDescriptorElement.DeviceViewportSpecificationMode, "DEVVPMODE",
    Default = "the default mode, fractions of the drawing surface")]
public sealed partial class DeviceViewportSpecificationMode : Command
{
    /// <summary>The units of viewport coordinates.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Mode
    {
        /// <summary>Fractions of the drawing surface, 0 to 1.</summary>
        [CgmKeyword("FRACTION")] FractionOfDrawingSurface = 0,

        /// <summary>Millimetres, multiplied by a factor.</summary>
        [CgmKeyword("MM")] MillimetresWithScaleFactor = 1,

        /// <summary>Physical device coordinates.</summary>
        [CgmKeyword("PHYDEVCOORD")] PhysicalDeviceCoordinates = 2,
    }

    /// <summary>Gets or sets the unit.</summary>
    [CgmEnum]
    public Mode Value { get; set; } = Mode.FractionOfDrawingSurface;

    /// <summary>Gets or sets the scale factor of millimetres.</summary>
    [CgmFloatingReal]
    public double ScaleFactor { get; set; } = 1;

    internal override void Apply(CodingState state) => state.ViewportMode = Value;
}

/// <summary>How the VDC extent is mapped to the viewport.</summary>
[CgmCommand(PictureDescriptorElement.DeviceViewportMapping, "DEVVPMAP",
    Default = "the default mapping: isotropic, at the lower left")]
public sealed partial class DeviceViewportMapping : Command
{
    /// <summary>Whether the aspect ratio is kept.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Isotropy
    {
        /// <summary>The picture fills the viewport.</summary>
        [CgmKeyword("NOTFORCED")] NotForced = 0,

        /// <summary>The aspect ratio of the picture is kept.</summary>
        [CgmKeyword("FORCED")] Forced = 1,
    }

    /// <summary>The horizontal alignments.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Horizontalalignment
    {
        /// <summary>At the left.</summary>
        [CgmKeyword("LEFT")] Left = 0,

        /// <summary>Centred.</summary>
        [CgmKeyword("CTR")] Centre = 1,

        /// <summary>At the right.</summary>
        [CgmKeyword("RIGHT")] Right = 2,
    }

    /// <summary>The vertical alignments.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Verticalalignment
    {
        /// <summary>At the bottom.</summary>
        [CgmKeyword("BOTTOM")] Bottom = 0,

        /// <summary>Centred.</summary>
        [CgmKeyword("CTR")] Centre = 1,

        /// <summary>At the top.</summary>
        [CgmKeyword("TOP")] Top = 2,
    }

    /// <summary>Gets or sets whether the aspect ratio is kept.</summary>
    [CgmEnum]
    public Isotropy Scaling { get; set; } = Isotropy.Forced;

    /// <summary>Gets or sets the alignment in a wider viewport.</summary>
    [CgmEnum]
    public Horizontalalignment HorizontalAlignment { get; set; }

    /// <summary>Gets or sets the alignment in a higher viewport.</summary>
    [CgmEnum]
    public Verticalalignment VerticalAlignment { get; set; }
}
