using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Draws a copy of a segment.</summary>
[CgmCommand(SegmentControlElement.CopySegment, "COPYSEG")]
public sealed partial class CopySegment : Command
{
    /// <summary>Gets or sets the name of the segment.</summary>
    [CgmName]
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets the element a11 of the transformation matrix, from X to X.</summary>
    [CgmReal]
    public double ScaleX { get; set; } = 1;

    /// <summary>Gets or sets the element a12 of the transformation matrix, from Y to X.</summary>
    [CgmReal]
    public double ShearX { get; set; }

    /// <summary>Gets or sets the element a21 of the transformation matrix, from X to Y.</summary>
    [CgmReal]
    public double ShearY { get; set; }

    /// <summary>Gets or sets the element a22 of the transformation matrix, from Y to Y.</summary>
    [CgmReal]
    public double ScaleY { get; set; } = 1;

    /// <summary>Gets or sets the translation along X, in VDC.</summary>
    [CgmVdc]
    public double TranslationX { get; set; }

    /// <summary>Gets or sets the translation along Y, in VDC.</summary>
    [CgmVdc]
    public double TranslationY { get; set; }

    /// <summary>Gets or sets whether the transformation of the segment itself is applied first.</summary>
    [CgmYesNo]
    public bool AppliesSegmentTransformation { get; set; }
}

/// <summary>The clip region inside a copied segment.</summary>
[CgmCommand(SegmentControlElement.ClipInheritance, "CLIPINH")]
public sealed partial class ClipInheritance : Command
{
    /// <summary>The clip regions.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Value
    {
        /// <summary>The clip region where the segment is copied.</summary>
        [CgmKeyword("STLIST")] StateList = 0,

        /// <summary>The intersection of that one with the clip region of the segment.</summary>
        [CgmKeyword("INTERSECTION")] Intersection = 1,
    }

    /// <summary>Gets or sets the clip region.</summary>
    [CgmEnum]
    public Value Inheritance { get; set; }
}

/// <summary>The transformation of a segment.</summary>
[CgmCommand(SegmentControlElement.SegmentTransformation, "SEGTRAN")]
public sealed partial class SegmentTransformation : Command
{
    /// <summary>Gets or sets the name of the segment.</summary>
    [CgmName]
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets the element a11 of the transformation matrix, from X to X.</summary>
    [CgmReal]
    public double ScaleX { get; set; } = 1;

    /// <summary>Gets or sets the element a12 of the transformation matrix, from Y to X.</summary>
    [CgmReal]
    public double ShearX { get; set; }

    /// <summary>Gets or sets the element a21 of the transformation matrix, from X to Y.</summary>
    [CgmReal]
    public double ShearY { get; set; }

    /// <summary>Gets or sets the element a22 of the transformation matrix, from Y to Y.</summary>
    [CgmReal]
    public double ScaleY { get; set; } = 1;

    /// <summary>Gets or sets the translation along X, in VDC.</summary>
    [CgmVdc]
    public double TranslationX { get; set; }

    /// <summary>Gets or sets the translation along Y, in VDC.</summary>
    [CgmVdc]
    public double TranslationY { get; set; }
}

/// <summary>Whether a segment is highlighted.</summary>
[CgmCommand(SegmentControlElement.SegmentHighlighting, "SEGHIGHL")]
public sealed partial class SegmentHighlighting : Command
{
    /// <summary>The states of highlighting.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Highlighting
    {
        /// <summary>Not highlighted.</summary>
        [CgmKeyword("NORMAL")] Normal = 0,

        /// <summary>Highlighted.</summary>
        [CgmKeyword("HIGHL")] Highlighted = 1,
    }

    /// <summary>Gets or sets the name of the segment.</summary>
    [CgmName]
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets the state.</summary>
    [CgmEnum]
    public Highlighting State { get; set; }
}

/// <summary>The display priority of a segment.</summary>
[CgmCommand(SegmentControlElement.SegmentDisplayPriority, "SEGDISPPRI")]
public sealed partial class SegmentDisplayPriority : Command
{
    /// <summary>Gets or sets the name of the segment.</summary>
    [CgmName]
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets the priority; segments of larger ones are drawn over others.</summary>
    [CgmInteger]
    public int Priority { get; set; }
}

/// <summary>The pick priority of a segment.</summary>
[CgmCommand(SegmentControlElement.SegmentPickPriority, "SEGPICKPRI")]
public sealed partial class SegmentPickPriority : Command
{
    /// <summary>Gets or sets the name of the segment.</summary>
    [CgmName]
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets the priority; of overlapping segments the one of the largest is picked.</summary>
    [CgmInteger]
    public int Priority { get; set; }
}
