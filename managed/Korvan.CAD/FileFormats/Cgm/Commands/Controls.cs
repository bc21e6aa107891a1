using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The colour of gaps between dashes and behind hatches, where drawing is not transparent.</summary>
[CgmCommand(ControlElement.AuxiliaryColour, "AUXCOLR")]
public sealed partial class AuxiliaryColour : ColourCommand;

/// <summary>Whether gaps between dashes and behind hatches let through what is below.</summary>
[CgmCommand(ControlElement.Transparency, "TRANSPARENCY")]
public sealed partial class Transparency : Command
{
    /// <summary>Gets or sets whether they do; if not, gaps have the auxiliary colour.</summary>
    [CgmFlag]
    public bool IsTransparent { get; set; } = true;
}

/// <summary>The rectangle that drawing is cut at.</summary>
[CgmCommand(ControlElement.ClipRectangle, "CLIPRECT",
    Default = "the default extent of pictures")]
[CgmConstructor(nameof(FirstCorner), nameof(SecondCorner))]
public sealed partial class ClipRectangle : Command
{
    /// <summary>Gets or sets the corner that is seen at the lower left.</summary>
    [CgmPoint]
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the corner that is seen at the upper right.</summary>
    [CgmPoint]
    public CgmPoint SecondCorner { get; set; } = new(32767, 32767);
}

/// <summary>Whether drawing is cut at the clip rectangle.</summary>
[CgmCommand(ControlElement.ClipIndicator, "CLIP")]
[CgmConstructor(nameof(IsClipping))]
public sealed partial class ClipIndicator : Command
{
    /// <summary>Gets or sets whether drawing is cut.</summary>
    [CgmFlag]
    public bool IsClipping { get; set; } = true;
}

/// <summary>What of lines is cut at the clip rectangle.</summary>
[CgmCommand(ControlElement.LineClipping, "LINECLIPMODE")]
public sealed partial class LineClipping : Command
{
    /// <summary>Gets or sets what is cut.</summary>
    [CgmEnum]
    public ClippingMode Mode { get; set; }
}

/// <summary>What of markers is cut at the clip rectangle.</summary>
[CgmCommand(ControlElement.MarkerClipping, "MARKERCLIPMODE")]
public sealed partial class MarkerClipping : Command
{
    /// <summary>Gets or sets what is cut.</summary>
    [CgmEnum]
    public ClippingMode Mode { get; set; }
}

/// <summary>What of edges is cut at the clip rectangle.</summary>
[CgmCommand(ControlElement.EdgeClipping, "EDGECLIPMODE")]
public sealed partial class EdgeClipping : Command
{
    /// <summary>Gets or sets what is cut.</summary>
    [CgmEnum]
    public ClippingMode Mode { get; set; }
}

/// <summary>Ends a part of the outline of a closed figure; the next line begins another.</summary>
[CgmCommand(ControlElement.NewRegion, "NEWREGION")]
public sealed partial class NewRegion : Command;

/// <summary>Keeps all attributes under a name.</summary>
[CgmCommand(ControlElement.SavePrimitiveContext, "SAVEPRIMCONT")]
public sealed partial class SavePrimitiveContext : Command
{
    /// <summary>Gets or sets the name, a number.</summary>
    [CgmName]
    public int ContextName { get; set; }
}

/// <summary>Brings back attributes that were kept.</summary>
[CgmCommand(ControlElement.RestorePrimitiveContext, "RESPRIMCONT")]
public sealed partial class RestorePrimitiveContext : Command
{
    /// <summary>Gets or sets the name that they were kept under.</summary>
    [CgmName]
    public int ContextName { get; set; }
}

/// <summary>What a protection region does to later drawing.</summary>
[CgmCommand(ControlElement.ProtectionRegionIndicator, "PROTREGION")]
public sealed partial class ProtectionRegionIndicator : Command
{
    /// <summary>Gets or sets the index of the region, from 1.</summary>
    [CgmIndex]
    public int RegionIndex { get; set; } = 1;

    /// <summary>Gets or sets 1 for nothing, 2 to cut drawing at its border, 3 to keep drawing out.</summary>
    [CgmIndex]
    public int Indicator { get; set; } = 1;
}

/// <summary>Whether texts follow the last compound text path.</summary>
[CgmCommand(ControlElement.GeneralizedTextPathMode, "GENTEXTPATHMODE")]
public sealed partial class GeneralizedTextPathMode : Command
{
    /// <summary>The ways to follow a path.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum TextPathMode
    {
        /// <summary>They do not.</summary>
        [CgmKeyword("OFF")]
        Off = 0,

        /// <summary>Characters stand on the path and keep their direction.</summary>
        [CgmKeyword("NONTANGENTIAL")]
        NonTangential = 1,

        /// <summary>Characters turn with the path.</summary>
        [CgmKeyword("AXISTANGENTIAL")]
        AxisTangential = 2,
    }

    /// <summary>Gets or sets how they follow it.</summary>
    [CgmEnum]
    public TextPathMode Mode { get; set; }
}

/// <summary>How long the point may be in which lines meet.</summary>
[CgmCommand(ControlElement.MitreLimit, "MITRELIMIT")]
public sealed partial class MitreLimit : Command
{
    /// <summary>Gets or sets the largest length in widths of the line, at least 1.</summary>
    [CgmReal]
    public double Limit { get; set; } = 32767;
}

/// <summary>A colour of cells that lets through what is below.</summary>
[CgmCommand(ControlElement.TransparentCellColour, "TRANSPCELLCOLR")]
public sealed partial class TransparentCellColour : Command
{
    /// <summary>Gets or sets whether there is one.</summary>
    [CgmFlag]
    public bool IsActive { get; set; }

    /// <summary>Gets or sets which.</summary>
    [CgmColor]
    public CgmColor Color { get; set; } = new(0);
}
