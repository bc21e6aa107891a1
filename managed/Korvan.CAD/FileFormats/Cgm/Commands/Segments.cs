using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Draws a segment here.</summary>
[CgmCommand(SegmentControlElement.CopySegment, "COPYSEG")]
public sealed partial class CopySegment : Command
{
    /// <summary>Gets or sets the name of the segment.</summary>
    [CgmName]
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets how much of X goes into X.</summary>
    [CgmReal]
    public double ScaleX { get; set; } = 1;

    /// <summary>Gets or sets how much of Y goes into X.</summary>
    [CgmReal]
    public double ShearX { get; set; }

    /// <summary>Gets or sets how much of X goes into Y.</summary>
    [CgmReal]
    public double ShearY { get; set; }

    /// <summary>Gets or sets how much of Y goes into Y.</summary>
    [CgmReal]
    public double ScaleY { get; set; } = 1;

    /// <summary>Gets or sets the way along X, in units of the coordinates.</summary>
    [CgmVdc]
    public double TranslationX { get; set; }

    /// <summary>Gets or sets the way along Y.</summary>
    [CgmVdc]
    public double TranslationY { get; set; }

    /// <summary>Gets or sets whether the transformation of the segment itself is applied first.</summary>
    [CgmYesNo]
    public bool AppliesSegmentTransformation { get; set; }
}

/// <summary>Which clip rectangle holds inside a copied segment.</summary>
[CgmCommand(SegmentControlElement.ClipInheritance, "CLIPINH")]
public sealed partial class ClipInheritance : Command
{
    /// <summary>The clip rectangles.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Value
    {
        /// <summary>That of the place where it is copied.</summary>
        [CgmKeyword("STLIST")]
        StateList = 0,

        /// <summary>The common part of that one and of the segment's own.</summary>
        [CgmKeyword("INTERSECTION")]
        Intersection = 1,
    }

    /// <summary>Gets or sets which.</summary>
    [CgmEnum]
    public Value Inheritance { get; set; }
}

/// <summary>How a segment is moved, turned and scaled.</summary>
[CgmCommand(SegmentControlElement.SegmentTransformation, "SEGTRAN")]
public sealed partial class SegmentTransformation : Command
{
    /// <summary>Gets or sets the name of the segment.</summary>
    [CgmName]
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets how much of X goes into X.</summary>
    [CgmReal]
    public double ScaleX { get; set; } = 1;

    /// <summary>Gets or sets how much of Y goes into X.</summary>
    [CgmReal]
    public double ShearX { get; set; }

    /// <summary>Gets or sets how much of X goes into Y.</summary>
    [CgmReal]
    public double ShearY { get; set; }

    /// <summary>Gets or sets how much of Y goes into Y.</summary>
    [CgmReal]
    public double ScaleY { get; set; } = 1;

    /// <summary>Gets or sets the way along X, in units of the coordinates.</summary>
    [CgmVdc]
    public double TranslationX { get; set; }

    /// <summary>Gets or sets the way along Y.</summary>
    [CgmVdc]
    public double TranslationY { get; set; }
}

/// <summary>Whether a segment is made to stand out.</summary>
[CgmCommand(SegmentControlElement.SegmentHighlighting, "SEGHIGHL")]
public sealed partial class SegmentHighlighting : Command
{
    /// <summary>Whether a segment stands out.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Highlighting
    {
        /// <summary>It looks as usual.</summary>
        [CgmKeyword("NORMAL")]
        Normal = 0,

        /// <summary>It stands out.</summary>
        [CgmKeyword("HIGHL")]
        Highlighted = 1,
    }

    /// <summary>Gets or sets the name of the segment.</summary>
    [CgmName]
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets whether it is.</summary>
    [CgmEnum]
    public Highlighting State { get; set; }
}

/// <summary>Which segments are drawn over others.</summary>
[CgmCommand(SegmentControlElement.SegmentDisplayPriority, "SEGDISPPRI")]
public sealed partial class SegmentDisplayPriority : Command
{
    /// <summary>Gets or sets the name of the segment.</summary>
    [CgmName]
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets the priority; larger ones are drawn over smaller ones.</summary>
    [CgmInteger]
    public int Priority { get; set; }
}

/// <summary>Which of overlapping segments a person picks.</summary>
[CgmCommand(SegmentControlElement.SegmentPickPriority, "SEGPICKPRI")]
public sealed partial class SegmentPickPriority : Command
{
    /// <summary>Gets or sets the name of the segment.</summary>
    [CgmName]
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets the priority; the largest one is picked.</summary>
    [CgmInteger]
    public int Priority { get; set; }
}
