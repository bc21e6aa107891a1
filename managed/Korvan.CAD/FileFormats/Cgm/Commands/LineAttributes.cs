using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The dashes of lines or edges.</summary>
[CgmCommand]
public abstract partial class DashTypeCommand : Command
{
    /// <summary>Gets or sets the number of the dashes; negative ones are private or defined by the picture.</summary>
    [CgmIndex]
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public DashType Type { get => (DashType)Index; set => Index = (int)value; }
}

/// <summary>How lines or edges and their dashes end.</summary>
[CgmCommand]
public abstract partial class CapCommand : Command
{
    /// <summary>Gets or sets the number of how lines end; negative ones are private.</summary>
    [CgmIndex]
    public int CapIndex { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public LineCapIndicator Cap { get => (LineCapIndicator)CapIndex; set => CapIndex = (int)value; }

    /// <summary>Gets or sets the number of how dashes end; negative ones are private.</summary>
    [CgmIndex]
    public int DashCapIndex { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public DashCapIndicator DashCap { get => (DashCapIndicator)DashCapIndex; set => DashCapIndex = (int)value; }
}

/// <summary>How the pieces of lines or edges meet.</summary>
[CgmCommand]
public abstract partial class JoinCommand : Command
{
    /// <summary>Gets or sets the number of how pieces meet; negative ones are private.</summary>
    [CgmIndex]
    public int Index { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public JoinIndicator Join { get => (JoinIndicator)Index; set => Index = (int)value; }
}

/// <summary>Which bundle of attributes lines take.</summary>
[CgmCommand(AttributeElement.LineBundleIndex, "LINEINDEX")]
public sealed partial class LineBundleIndex : GenericIndexCommand;

/// <summary>The dashes of lines.</summary>
[CgmCommand(AttributeElement.LineType, "LINETYPE")]
public sealed partial class LineType : DashTypeCommand;

/// <summary>The width of lines.</summary>
[CgmCommand(AttributeElement.LineWidth, "LINEWIDTH",
    Default = "the width 1")]
[CgmConstructor(nameof(Width))]
public sealed partial class LineWidth : Command
{
    /// <summary>Gets or sets the width, not negative, in what the mode of the picture says.</summary>
    [CgmSize(nameof(PictureCoding.LineWidthMode))]
    public double Width { get; set; } = 1;
}

/// <summary>The colour of lines.</summary>
[CgmCommand(AttributeElement.LineColour, "LINECOLR",
    Default = "the number 1 of the colour table")]
[CgmConstructor(nameof(Color))]
public sealed partial class LineColour : ColourCommand;

/// <summary>How lines and their dashes end.</summary>
[CgmCommand(AttributeElement.LineCap, "LINECAP")]
public sealed partial class LineCap : CapCommand;

/// <summary>How the pieces of lines meet.</summary>
[CgmCommand(AttributeElement.LineJoin, "LINEJOIN")]
public sealed partial class LineJoin : JoinCommand;

/// <summary>How dashes go on at the points of a line: 1 as the program that draws likes it, 2 they go on, 3 they begin
/// anew, 4 they go on and are fitted to the ends.</summary>
[CgmCommand(AttributeElement.LineTypeContinuation, "LINETYPECONT")]
public sealed partial class LineTypeContinuation : GenericIndexCommand;

/// <summary>Where in its dashes a line begins.</summary>
[CgmCommand(AttributeElement.LineTypeInitialOffset, "LINETYPEINITOFFSET")]
public sealed partial class LineTypeInitialOffset : Command
{
    /// <summary>Gets or sets the part of the dashes that is left out at the beginning, 0 to 1.</summary>
    [CgmReal]
    public double Offset { get; set; }
}

/// <summary>Which bundle of attributes markers take.</summary>
[CgmCommand(AttributeElement.MarkerBundleIndex, "MARKERINDEX")]
public sealed partial class MarkerBundleIndex : GenericIndexCommand;

/// <summary>The shape of markers.</summary>
[CgmCommand(AttributeElement.MarkerType, "MARKERTYPE")]
public sealed partial class MarkerType : Command
{
    /// <summary>The shapes of markers.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>A dot.</summary>
        Dot = 1,

        /// <summary>A plus.</summary>
        Plus = 2,

        /// <summary>An asterisk.</summary>
        Asterisk = 3,

        /// <summary>A circle.</summary>
        Circle = 4,

        /// <summary>A diagonal cross.</summary>
        Cross = 5,
    }

    /// <summary>Gets or sets the number of the shape; negative ones are private.</summary>
    [CgmIndex]
    public int Index { get; set; } = 3;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public Type Value { get => (Type)Index; set => Index = (int)value; }
}

/// <summary>The size of markers.</summary>
[CgmCommand(AttributeElement.MarkerSize, "MARKERSIZE",
    Default = "the size 1")]
[CgmConstructor(nameof(Size))]
public sealed partial class MarkerSize : Command
{
    /// <summary>Gets or sets the size, not negative, in what the mode of the picture says.</summary>
    [CgmSize(nameof(PictureCoding.MarkerSizeMode))]
    public double Size { get; set; } = 1;
}

/// <summary>The colour of markers.</summary>
[CgmCommand(AttributeElement.MarkerColour, "MARKERCOLR",
    Default = "the number 1 of the colour table")]
[CgmConstructor(nameof(Color))]
public sealed partial class MarkerColour : ColourCommand;

/// <summary>Which bundle of attributes edges take.</summary>
[CgmCommand(AttributeElement.EdgeBundleIndex, "EDGEINDEX")]
public sealed partial class EdgeBundleIndex : GenericIndexCommand;

/// <summary>The dashes of edges.</summary>
[CgmCommand(AttributeElement.EdgeType, "EDGETYPE")]
public sealed partial class EdgeType : DashTypeCommand;

/// <summary>The width of edges.</summary>
[CgmCommand(AttributeElement.EdgeWidth, "EDGEWIDTH",
    Default = "the width 1")]
[CgmConstructor(nameof(Width))]
public sealed partial class EdgeWidth : Command
{
    /// <summary>Gets or sets the width, not negative, in what the mode of the picture says.</summary>
    [CgmSize(nameof(PictureCoding.EdgeWidthMode))]
    public double Width { get; set; } = 1;
}

/// <summary>The colour of edges.</summary>
[CgmCommand(AttributeElement.EdgeColour, "EDGECOLR",
    Default = "the number 1 of the colour table")]
[CgmConstructor(nameof(Color))]
public sealed partial class EdgeColour : ColourCommand;

/// <summary>Whether areas have edges.</summary>
[CgmCommand(AttributeElement.EdgeVisibility, "EDGEVIS")]
[CgmConstructor(nameof(IsVisible))]
public sealed partial class EdgeVisibility : Command
{
    /// <summary>Gets or sets whether areas have edges.</summary>
    [CgmFlag]
    public bool IsVisible { get; set; }
}

/// <summary>How edges and their dashes end.</summary>
[CgmCommand(AttributeElement.EdgeCap, "EDGECAP")]
public sealed partial class EdgeCap : CapCommand;

/// <summary>How the pieces of edges meet.</summary>
[CgmCommand(AttributeElement.EdgeJoin, "EDGEJOIN")]
public sealed partial class EdgeJoin : JoinCommand;

/// <summary>How dashes go on at the points of an edge: 1 as the program that draws likes it, 2 they go on, 3 they begin
/// anew, 4 they go on and are fitted to the ends.</summary>
[CgmCommand(AttributeElement.EdgeTypeContinuation, "EDGETYPECONT")]
public sealed partial class EdgeTypeContinuation : GenericIndexCommand;

/// <summary>Where in its dashes an edge begins.</summary>
[CgmCommand(AttributeElement.EdgeTypeInitialOffset, "EDGETYPEINITOFFSET")]
public sealed partial class EdgeTypeInitialOffset : Command
{
    /// <summary>Gets or sets the part of the dashes that is left out at the beginning, 0 to 1.</summary>
    [CgmReal]
    public double Offset { get; set; }
}
