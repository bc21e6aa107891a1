using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cad.Model.Dimensions;
using Korvan.CAD.FileFormats.Cad.Model.Tables;
using Korvan.CAD.FileFormats.Shx;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>A colour as the drawing states it, before blocks, layers and the background have had their say.</summary>
internal readonly record struct DrawingColor(int Index, int TrueColor = -1);

/// <summary>A layer, reduced to what drawing asks of it.</summary>
internal sealed record LayerInfo(string Name)
{
    internal string Handle { get; init; } = string.Empty;

    internal DrawingColor Color { get; init; } = new(AciPalette.Contrast);

    internal string LineType { get; init; } = string.Empty;

    internal string PlotStyleHandle { get; init; } = string.Empty;

    internal short LineWeight { get; init; } = PenResolver.DefaultWeight;

    internal double Opacity { get; init; } = 1;

    internal bool IsOff { get; init; }

    internal bool IsFrozen { get; init; }

    internal bool IsPlotted { get; init; } = true;

    /// <summary>The layer of definition points, which show on no output at all.</summary>
    internal bool IsReserved => Name.Equals("DEFPOINTS", StringComparison.OrdinalIgnoreCase);
}

/// <summary>A text style, its font already resolved.</summary>
internal sealed record StyleInfo(
    FontSpec Font, double FixedHeight, double WidthFactor, double ObliqueDegrees, bool IsToleranceFont)
{
    /// <summary>The standard style of drawings without one, which a save adds to them.</summary>
    internal static readonly StyleInfo Default = new(FontTable.FromFile("txt"), 0, 1, 0, false);

    /// <summary>What texts that name no style have.</summary>
    internal static readonly StyleInfo Outlined = new(FontSpec.Default, 0, 1, 0, false);

    /// <summary>Gets whether characters are below each other.</summary>
    internal bool IsVertical { get; init; }
}

/// <summary>What leaders and tolerance frames take from a dimension style.</summary>
internal readonly record struct DimStyleInfo(
    double ArrowSize, double TextHeight, double TextGap, double Scale, string TextStyle)
{
    internal static readonly DimStyleInfo Default = new(0.18, 0.18, 0.09, 1, string.Empty);
}

/// <summary>One line of a multi-line style.</summary>
internal readonly record struct MlineElement(double Offset, DrawingColor Color, string LineType);

internal sealed record MlineStyle(IReadOnlyList<MlineElement> Elements, int Flags, DrawingColor FillColor);

/// <summary>A block, or the block of a layout.</summary>
internal sealed record BlockInfo(string Name, Vec3 Base, IReadOnlyList<CadEntityBase> Entities)
{
    internal bool IsExternal { get; init; }

    /// <summary>Gets whether an external drawing is left out where the drawing with this block is itself one.</summary>
    internal bool IsOverlay { get; init; }

    /// <summary>Gets the path of an external drawing, as the file states it.</summary>
    internal string ExternalPath { get; init; } = string.Empty;

    /// <summary>Sort keys by entity handle, where the draw order differs from the order in the file.</summary>
    internal IReadOnlyDictionary<ulong, ulong>? DrawOrder { get; init; }
}

/// <summary>The header variables that rendering depends on.</summary>
internal sealed record SceneSettings
{
    /// <summary>Gets the variables of the header without a readable value, which have that of a new drawing.</summary>
    internal string[] Unreadable { get; init; } = [];

    internal double LinetypeScale { get; init; } = 1;

    internal bool PaperLinetypeScale { get; init; } = true;

    internal int PointMode { get; init; }

    internal double PointSize { get; init; }

    internal bool FillMode { get; init; } = true;

    /// <summary>0 hides all attributes, 1 respects their own flags, 2 shows all.</summary>
    internal int AttributeMode { get; init; } = 1;

    internal bool ShowLineWeights { get; init; }

    internal bool ShowSplineFrames { get; init; }

    internal double TextSize { get; init; } = 2.5;

    /// <summary>Whether and how the frames of images and wipeouts show.</summary>
    internal bool ImageFrames { get; init; } = true;

    internal bool WipeoutFrames { get; init; }

    /// <summary>Whether the boundaries of clipped block references show: 0 no, 1 yes, 2 on screens only.</summary>
    internal int ClipFrames { get; init; }

    /// <summary>When the drawing was made, in universal time.</summary>
    internal DateTime? Created { get; init; }

    /// <summary>When the drawing was last changed, in universal time.</summary>
    internal DateTime? Modified { get; init; }
}

/// <summary>Everything of a drawing that entities refer to by name, ready for lookup.</summary>
internal sealed class SceneTables
{
    private const string StandardStyle = "STANDARD";

    internal Dictionary<string, LayerInfo> Layers { get; } = new(StringComparer.OrdinalIgnoreCase);

    internal Dictionary<string, LinePattern?> LineTypes { get; } = new(StringComparer.OrdinalIgnoreCase);

    /// <summary>Names in the order of their tables, as stored graphics refer to them.</summary>
    internal List<string> LayerNames { get; } = [];

    internal List<string> LineTypeNames { get; } = [];

    internal Dictionary<string, StyleInfo> Styles { get; } = new(StringComparer.OrdinalIgnoreCase);

    internal Dictionary<string, DimStyleInfo> DimStyles { get; } = new(StringComparer.OrdinalIgnoreCase);

    internal Dictionary<string, MlineStyle> MlineStyles { get; } = new(StringComparer.OrdinalIgnoreCase);

    internal Dictionary<string, BlockInfo> Blocks { get; } = new(StringComparer.OrdinalIgnoreCase);

    /// <summary>Styles and blocks by the handle of their record, as some entities refer to them.</summary>
    internal Dictionary<ulong, StyleInfo> StylesByHandle { get; } = [];

    internal Dictionary<ulong, BlockInfo> BlocksByRecord { get; } = [];

    /// <summary>The styles of dimensions that have no block.</summary>
    internal DimensionStyles Dimensions { get; set; } = new(new CadDrawing(DrawingSeed.Blank));

    /// <summary>What tables without a block are drawn from.</summary>
    internal TableSources CellSources { get; set; } = new(new CadDrawing(DrawingSeed.Blank));

    /// <summary>The pixels of images, by the handle of their definition.</summary>
    internal ImageFiles Images { get; set; } = ImageFiles.None;

    /// <summary>The symbols of the shape files that the drawing names.</summary>
    internal ShapeFiles Shapes { get; set; } = ShapeFiles.None;

    /// <summary>The drawings that external blocks stand for.</summary>
    internal ExternalDrawings External { get; set; } = ExternalDrawings.None;

    /// <summary>The plot styles that page setups name.</summary>
    internal PlotStyleFiles PlotStyles { get; set; } = PlotStyleFiles.None;

    /// <summary>What block references are clipped to.</summary>
    internal ClipBoundaries Clips { get; set; } = ClipBoundaries.None;

    /// <summary>What viewports change of layers.</summary>
    internal ViewportLayers ViewportLayers { get; set; } = ViewportLayers.None;

    internal SceneSettings Settings { get; set; } = new();

    internal LayerInfo Layer(string name) => Layers.TryGetValue(name, out LayerInfo? layer) ? layer : AddLayer(name);

    /// <summary>The style of a name; texts whose style is not in the drawing have its standard one.</summary>
    internal StyleInfo Style(string name) =>
        Styles.TryGetValue(name, out StyleInfo? style) || Styles.TryGetValue(StandardStyle, out style)
            ? style
            : StyleInfo.Default;

    internal DimStyleInfo DimStyle(string name) =>
        DimStyles.TryGetValue(name, out DimStyleInfo style) ? style : DimStyleInfo.Default;

    // Files may name layers that their table lacks; such a layer has the defaults of a new one.
    private LayerInfo AddLayer(string name)
    {
        var layer = new LayerInfo(name);
        Layers.Add(name, layer);
        return layer;
    }
}
