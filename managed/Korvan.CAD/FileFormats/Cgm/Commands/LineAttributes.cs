using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A line or edge type, its dash pattern.</summary>
[CgmCommand]
public abstract partial class DashTypeCommand : Command
{
    /// <summary>Gets or sets the index of the dash pattern; negative ones are private or defined by the
    /// picture.</summary>
    [CgmIndex]
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the same index as an enum member; Python can read it only where the index has a
    /// name.</summary>
    public DashType Type { get => (DashType)Index; set => Index = (int)value; }
}

/// <summary>The caps of lines or edges and of their dashes.</summary>
[CgmCommand]
public abstract partial class CapCommand : Command
{
    /// <summary>Gets or sets the index of the line cap; negative ones are private.</summary>
    [CgmIndex]
    public int CapIndex { get; set; } = 1;

    /// <summary>Gets or sets the same index as an enum member; Python can read it only where the index has a
    /// name.</summary>
    public LineCapIndicator Cap { get => (LineCapIndicator)CapIndex; set => CapIndex = (int)value; }

    /// <summary>Gets or sets the index of the dash cap; negative ones are private.</summary>
    [CgmIndex]
    public int DashCapIndex { get; set; } = 1;

    /// <summary>Gets or sets the same index as an enum member; Python can read it only where the index has a
    /// name.</summary>
    public DashCapIndicator DashCap { get => (DashCapIndicator)DashCapIndex; set => DashCapIndex = (int)value; }
}

/// <summary>The joins of lines or edges.</summary>
[CgmCommand]
public abstract partial class JoinCommand : Command
{
    /// <summary>Gets or sets the index of the join; negative ones are private.</summary>
    [CgmIndex]
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the same index as an enum member; Python can read it only where the index has a
    /// name.</summary>
    public JoinIndicator Join { get => (JoinIndicator)Index; set => Index = (int)value; }
}

/// <summary>The line bundle index.</summary>
[CgmCommand(AttributeElement.LineBundleIndex, "LINEINDEX")]
public sealed partial class LineBundleIndex : GenericIndexCommand;

/// <summary>The line type, the dash pattern of lines.</summary>
[CgmCommand(AttributeElement.LineType, "LINETYPE")]
public sealed partial class LineType : DashTypeCommand;

/// <summary>The line width.</summary>
[CgmCommand(AttributeElement.LineWidth, "LINEWIDTH", Default = "the width 1")]
[CgmConstructor(nameof(Width))]
public sealed partial class LineWidth : Command
{
    /// <summary>Gets or sets the width, not negative, in the unit of the line width specification mode.</summary>
    [CgmSize(nameof(PictureCoding.LineWidthMode))]
    public double Width { get; set; } = 1;
}

/// <summary>The line colour.</summary>
[CgmCommand(AttributeElement.LineColour, "LINECOLR", Default = "the colour index 1")]
[CgmConstructor(nameof(Color))]
public sealed partial class LineColour : ColourCommand;

/// <summary>The caps of lines and their dashes.</summary>
[CgmCommand(AttributeElement.LineCap, "LINECAP")]
public sealed partial class LineCap : CapCommand;

/// <summary>The line join.</summary>
[CgmCommand(AttributeElement.LineJoin, "LINEJOIN")]
public sealed partial class LineJoin : JoinCommand;

/// <summary>How the dash pattern continues at the vertices of a line: 1 unspecified, 2 continue, 3 restart, 4 adaptive
/// continue.</summary>
[CgmCommand(AttributeElement.LineTypeContinuation, "LINETYPECONT")]
public sealed partial class LineTypeContinuation : GenericIndexCommand;

/// <summary>Where in its dash pattern a line starts.</summary>
[CgmCommand(AttributeElement.LineTypeInitialOffset, "LINETYPEINITOFFSET")]
public sealed partial class LineTypeInitialOffset : Command
{
    /// <summary>Gets or sets the offset as a fraction of the dash pattern, 0 to 1.</summary>
    [CgmReal]
    public double Offset { get; set; }
}

/// <summary>The marker bundle index.</summary>
[CgmCommand(AttributeElement.MarkerBundleIndex, "MARKERINDEX")]
public sealed partial class MarkerBundleIndex : GenericIndexCommand;

/// <summary>The marker type.</summary>
[CgmCommand(AttributeElement.MarkerType, "MARKERTYPE")]
public sealed partial class MarkerType : Command
{
    /// <summary>The standard marker types.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>A dot.</summary>
        Dot = 1,

        /// <summary>A plus sign.</summary>
        Plus = 2,

        /// <summary>An asterisk.</summary>
        Asterisk = 3,

        /// <summary>A circle.</summary>
        Circle = 4,

        /// <summary>A diagonal cross.</summary>
        Cross = 5,
    }

    /// <summary>Gets or sets the index of the marker type; negative ones are private.</summary>
    [CgmIndex]
    public int Index { get; set; } = 3;

    /// <summary>Gets or sets the same index as an enum member; Python can read it only where the index has a
    /// name.</summary>
    public Type Value { get => (Type)Index; set => Index = (int)value; }
}

/// <summary>The marker size.</summary>
[CgmCommand(AttributeElement.MarkerSize, "MARKERSIZE", Default = "the size 1")]
[CgmConstructor(nameof(Size))]
public sealed partial class MarkerSize : Command
{
    /// <summary>Gets or sets the size, not negative, in the unit of the marker size specification mode.</summary>
    [CgmSize(nameof(PictureCoding.MarkerSizeMode))]
    public double Size { get; set; } = 1;
}

/// <summary>The marker colour.</summary>
[CgmCommand(AttributeElement.MarkerColour, "MARKERCOLR", Default = "the colour index 1")]
[CgmConstructor(nameof(Color))]
public sealed partial class MarkerColour : ColourCommand;

/// <summary>The edge bundle index.</summary>
[CgmCommand(AttributeElement.EdgeBundleIndex, "EDGEINDEX")]
public sealed partial class EdgeBundleIndex : GenericIndexCommand;

/// <summary>The edge type, the dash pattern of edges.</summary>
[CgmCommand(AttributeElement.EdgeType, "EDGETYPE")]
public sealed partial class EdgeType : DashTypeCommand;

/// <summary>The edge width.</summary>
[CgmCommand(AttributeElement.EdgeWidth, "EDGEWIDTH", Default = "the width 1")]
[CgmConstructor(nameof(Width))]
public sealed partial class EdgeWidth : Command
{
    /// <summary>Gets or sets the width, not negative, in the unit of the edge width specification mode.</summary>
    [CgmSize(nameof(PictureCoding.EdgeWidthMode))]
    public double Width { get; set; } = 1;
}

/// <summary>The edge colour.</summary>
[CgmCommand(AttributeElement.EdgeColour, "EDGECOLR", Default = "the colour index 1")]
[CgmConstructor(nameof(Color))]
public sealed partial class EdgeColour : ColourCommand;

/// <summary>Whether the edges of areas are drawn.</summary>
[CgmCommand(AttributeElement.EdgeVisibility, "EDGEVIS")]
[CgmConstructor(nameof(IsVisible))]
public sealed partial class EdgeVisibility : Command
{
    /// <summary>Gets or sets whether edges are drawn.</summary>
    [CgmFlag]
    public bool IsVisible { get; set; }
}

/// <summary>The caps of edges and their dashes.</summary>
[CgmCommand(AttributeElement.EdgeCap, "EDGECAP")]
public sealed partial class EdgeCap : CapCommand;

/// <summary>The edge join.</summary>
[CgmCommand(AttributeElement.EdgeJoin, "EDGEJOIN")]
public sealed partial class EdgeJoin : JoinCommand;

/// <summary>How the dash pattern continues at the vertices of an edge: 1 unspecified, 2 continue, 3 restart, 4 adaptive
/// continue.</summary>
[CgmCommand(AttributeElement.EdgeTypeContinuation, "EDGETYPECONT")]
public sealed partial class EdgeTypeContinuation : GenericIndexCommand;

/// <summary>Where in its dash pattern an edge starts.</summary>
[CgmCommand(AttributeElement.EdgeTypeInitialOffset, "EDGETYPEINITOFFSET")]
public sealed partial class EdgeTypeInitialOffset : Command
{
    /// <summary>Gets or sets the offset as a fraction of the dash pattern, 0 to 1.</summary>
    [CgmReal]
    public double Offset { get; set; }
}
