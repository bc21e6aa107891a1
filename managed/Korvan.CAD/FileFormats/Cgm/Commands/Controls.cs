using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The colour of the gaps of dashed lines and of the background of hatches while transparency is
/// off.</summary>
[CgmCommand(ControlElement.AuxiliaryColour, "AUXCOLR")]
public sealed partial class AuxiliaryColour : ColourCommand;

/// <summary>Whether the gaps of dashed lines and the background of hatches are transparent.</summary>
[CgmCommand(ControlElement.Transparency, "TRANSPARENCY")]
public sealed partial class Transparency : Command
{
    /// <summary>Gets or sets whether they are transparent; if not, they have the auxiliary colour.</summary>
    [CgmFlag]
    public bool IsTransparent { get; set; } = true;
}

/// <summary>The clip rectangle.</summary>
[CgmCommand(ControlElement.ClipRectangle, "CLIPRECT",
    Default = "a clip rectangle of the default VDC extent, (0, 0) to (32767, 32767)")]
[CgmConstructor(nameof(FirstCorner), nameof(SecondCorner))]
public sealed partial class ClipRectangle : Command
{
    /// <summary>Gets or sets the lower left corner, as the picture is displayed.</summary>
    [CgmPoint]
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the upper right corner, as the picture is displayed.</summary>
    [CgmPoint]
    public CgmPoint SecondCorner { get; set; } = new(32767, 32767);
}

/// <summary>Whether drawing is clipped to the clip rectangle.</summary>
[CgmCommand(ControlElement.ClipIndicator, "CLIP")]
[CgmConstructor(nameof(IsClipping))]
public sealed partial class ClipIndicator : Command
{
    /// <summary>Gets or sets whether drawing is clipped.</summary>
    [CgmFlag]
    public bool IsClipping { get; set; } = true;
}

/// <summary>How lines are clipped.</summary>
[CgmCommand(ControlElement.LineClipping, "LINECLIPMODE")]
public sealed partial class LineClipping : Command
{
    /// <summary>Gets or sets the clipping mode.</summary>
    [CgmEnum]
    public ClippingMode Mode { get; set; }
}

/// <summary>How markers are clipped.</summary>
[CgmCommand(ControlElement.MarkerClipping, "MARKERCLIPMODE")]
public sealed partial class MarkerClipping : Command
{
    /// <summary>Gets or sets the clipping mode.</summary>
    [CgmEnum]
    public ClippingMode Mode { get; set; }
}

/// <summary>How edges are clipped.</summary>
[CgmCommand(ControlElement.EdgeClipping, "EDGECLIPMODE")]
public sealed partial class EdgeClipping : Command
{
    /// <summary>Gets or sets the clipping mode.</summary>
    [CgmEnum]
    public ClippingMode Mode { get; set; }
}

/// <summary>Ends a region of a closed figure; the next line starts another.</summary>
[CgmCommand(ControlElement.NewRegion, "NEWREGION")]
public sealed partial class NewRegion : Command;

/// <summary>Saves all attributes under a name.</summary>
[CgmCommand(ControlElement.SavePrimitiveContext, "SAVEPRIMCONT")]
public sealed partial class SavePrimitiveContext : Command
{
    /// <summary>Gets or sets the name of the context, an integer.</summary>
    [CgmName]
    public int ContextName { get; set; }
}

/// <summary>Restores saved attributes.</summary>
[CgmCommand(ControlElement.RestorePrimitiveContext, "RESPRIMCONT")]
public sealed partial class RestorePrimitiveContext : Command
{
    /// <summary>Gets or sets the name of the context that was saved.</summary>
    [CgmName]
    public int ContextName { get; set; }
}

/// <summary>How a protection region clips later drawing.</summary>
[CgmCommand(ControlElement.ProtectionRegionIndicator, "PROTREGION")]
public sealed partial class ProtectionRegionIndicator : Command
{
    /// <summary>Gets or sets the index of the region, from 1.</summary>
    [CgmIndex]
    public int RegionIndex { get; set; } = 1;

    /// <summary>Gets or sets the indicator: 1 off, 2 clip to the region, 3 shield the region.</summary>
    [CgmIndex]
    public int Indicator { get; set; } = 1;
}

/// <summary>Whether text follows the last compound text path.</summary>
[CgmCommand(ControlElement.GeneralizedTextPathMode, "GENTEXTPATHMODE")]
public sealed partial class GeneralizedTextPathMode : Command
{
    /// <summary>The modes of following a text path.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum TextPathMode
    {
        /// <summary>Text does not follow the path.</summary>
        [CgmKeyword("OFF")] Off = 0,

        /// <summary>Characters are placed along the path and keep their orientation.</summary>
        [CgmKeyword("NONTANGENTIAL")] NonTangential = 1,

        /// <summary>Characters are rotated with the tangent of the path.</summary>
        [CgmKeyword("AXISTANGENTIAL")] AxisTangential = 2,
    }

    /// <summary>Gets or sets the mode.</summary>
    [CgmEnum]
    public TextPathMode Mode { get; set; }
}

/// <summary>The mitre limit of line and edge joins.</summary>
[CgmCommand(ControlElement.MitreLimit, "MITRELIMIT")]
public sealed partial class MitreLimit : Command
{
    /// <summary>Gets or sets the largest mitre length in line widths, at least 1.</summary>
    [CgmReal]
    public double Limit { get; set; } = 32767;
}

/// <summary>A colour whose cells are transparent.</summary>
[CgmCommand(ControlElement.TransparentCellColour, "TRANSPCELLCOLR")]
public sealed partial class TransparentCellColour : Command
{
    /// <summary>Gets or sets whether such a colour is in effect.</summary>
    [CgmFlag]
    public bool IsActive { get; set; }

    /// <summary>Gets or sets the colour.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(0);
}
