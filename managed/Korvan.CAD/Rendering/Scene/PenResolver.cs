using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.PlotStyles;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>
/// Settles colour, line weight, line type, transparency and visibility of an entity. Inside of blocks layer 0 stands
/// for the layer of the reference, and "by block" for the reference's own value; both go on through nested blocks.
/// </summary>
internal sealed class PenResolver
{
    internal const short ByLayerWeight = -1;
    internal const short ByBlockWeight = -2;
    internal const short DefaultWeight = -3;
    private const float DefaultMillimetres = 0.25f;
    private const string ByLayer = "BYLAYER";
    private const string ByBlock = "BYBLOCK";
    private const int TransparencyByBlock = 0x01000000;

    private readonly SceneTables _tables;
    private readonly RenderStyle _style;
    private readonly DrawingList _list;
    private readonly bool _showWeights;
    private readonly PlotColors _plots;
    private readonly bool _isExternal;
    private string? _lastLayerName;
    private ViewportScope? _lastViewport;
    private LayerInfo? _lastLayer;

    /// <summary>A resolver; sheets of paper and plots show line weights, the model only where the screen
    /// does.</summary>
    internal PenResolver(SceneTables tables, RenderStyle style, DrawingList list, bool onPaper)
    {
        _showWeights = onPaper || style.AsPlotted || tables.Settings.ShowLineWeights;
        _tables = tables;
        _style = style;
        _list = list;
        _plots = new PlotColors(style.Background);
    }

    private PenResolver(PenResolver other, SceneTables tables)
    {
        (_tables, _style, _list) = (tables, other._style, other._list);
        _isExternal = true; // names of its layers have nothing to do with those of the sheet
        (_showWeights, _plots, Styles, PlotUnit) = (other._showWeights, other._plots, other.Styles, other.PlotUnit);
    }

    /// <summary>Returns a resolver for another drawing on the same page.</summary>
    internal PenResolver For(SceneTables tables) => new(this, tables);

    /// <summary>Gets the styles that the page is plotted by; null for none.</summary>
    internal PlotStyleTable? Styles { get; init; }

    /// <summary>Gets the drawing units in a millimetre of the paper.</summary>
    internal double PlotUnit { get; init; } = 1;

    /// <summary>The layer whose properties hold for the entity.</summary>
    internal LayerInfo LayerOf(CadEntityBase entity, BlockContext context)
    {
        string name = entity.LayerName;
        if (context.Layer != null && name == "0")
        {
            return context.Layer;
        }

        if (!ReferenceEquals(name, _lastLayerName) || !ReferenceEquals(context.Viewport, _lastViewport))
        {
            _lastLayer = _tables.Layer(name);
            if (!_isExternal && context.Viewport?.Layers?.TryGetValue(name, out LayerInfo? changed) == true)
            {
                _lastLayer = changed;
            }

            (_lastLayerName, _lastViewport) = (name, context.Viewport);
        }

        return _lastLayer!;
    }

    internal bool IsVisible(LayerInfo layer, BlockContext context)
    {
        bool shown = !layer.IsOff && !layer.IsReserved && !IsFrozen(layer, context) && (
            layer.IsPlotted || !_style.AsPlotted);
        return shown && (_style.Layers == null || _style.Layers.Contains(layer.Name));
    }

    /// <summary>A frozen layer hides the whole of a reference; one that is merely off hides what lies on it.</summary>
    internal bool IsFrozen(LayerInfo layer, BlockContext context) =>
        layer.IsFrozen || (context.Viewport != null && context.Viewport.FrozenLayers.Contains(layer.Name));

    internal Pen PenOf(CadEntityBase entity, LayerInfo layer, BlockContext context)
    {
        var pen = new Pen
        {
            LineWeight = WeightOf(entity.LineWeight, layer, context),
            Pattern = PatternOf(entity.LineTypeName, layer, context),
            PatternScale = PatternScale(entity.LinetypeScale, context),
            Layer = _list.Layer(layer.Name, layer.IsPlotted),
            Plot = Styles is { IsNamed: true } ? NamedStyle(entity, layer) : null,
        };
        var color = new DrawingColor(entity.ColorId, entity.ColorValue);
        return Colored(pen, color, AlphaOf(entity, layer, context), layer, context);
    }

    /// <summary>Gives a pen another colour, with what the plot style of that colour changes.</summary>
    internal Pen Colored(Pen pen, DrawingColor color, byte alpha, LayerInfo layer, BlockContext context)
    {
        pen.Color = ColorOf(color, layer, context, pen.Plot).WithAlpha(alpha);
        if (Styles is null)
        {
            return pen;
        }

        pen.Plot = Styles.IsNamed ? pen.Plot : StyleOf(color, layer, context);
        pen.Style = _plots.StrokeStyle(pen.Plot) is StrokeStyle stroke ? _list.StyleIndex(stroke) : 0;
        pen.LineWeight = pen.Plot?.LineWeight ?? pen.LineWeight;
        pen.PlotUnit = PlotUnit;
        if (pen.Plot is { LineType: >= 0 and < PlotStyle.LineTypeOfObject } style)
        {
            (pen.Pattern, double scale) = PlotPatterns.LineOf(style, pen.LineWeight);
            pen.PatternScale = scale * PlotUnit;
        }

        return pen;
    }

    /// <summary>The colour on the page. Where plot styles are assigned by name, that of the entity is given.</summary>
    internal Rgba ColorOf(DrawingColor color, LayerInfo layer, BlockContext context, PlotStyle? named = null)
    {
        if (_style.SingleColor is Rgba single)
        {
            return single;
        }

        if (Styles is null)
        {
            return OwnColor(color, layer, context);
        }

        bool isInherited = color.TrueColor < 0 && color.Index == AciPalette.ByBlock && context.Parent != null;
        return isInherited
            ? context.ByBlock.Color.WithAlpha(255)
            : _plots.Apply(
                Styles.IsNamed ? named : StyleOf(color, layer, context), OwnColor(color, layer, context));
    }

    private Rgba OwnColor(DrawingColor color, LayerInfo layer, BlockContext context)
    {
        if (color.TrueColor >= 0)
        {
            return Rgba.FromRgb(color.TrueColor);
        }

        return color.Index switch
        {
            AciPalette.ByLayer when layer.Color.TrueColor >= 0 => Rgba.FromRgb(layer.Color.TrueColor),
            AciPalette.ByLayer => AciPalette.Color(Math.Abs(layer.Color.Index), _style.Background),
            AciPalette.ByBlock when context.Parent == null => AciPalette.Color(AciPalette.Contrast, _style.Background),
            AciPalette.ByBlock => context.ByBlock.Color.WithAlpha(255),
            _ => AciPalette.Color(Math.Abs(color.Index), _style.Background),
        };
    }

    /// <summary>The plot style of a colour. Colours that are no index have none.</summary>
    private PlotStyle? StyleOf(DrawingColor color, LayerInfo layer, BlockContext context)
    {
        if (color.TrueColor >= 0)
        {
            return null;
        }

        return color.Index switch
        {
            AciPalette.ByLayer => layer.Color.TrueColor >= 0 ? null : Styles!.Of(Math.Abs(layer.Color.Index)),
            AciPalette.ByBlock when context.Parent != null => context.ByBlock.Plot,
            AciPalette.ByBlock => Styles!.Of(AciPalette.Contrast),
            _ => Styles!.Of(Math.Abs(color.Index)),
        };
    }

    private PlotStyle? NamedStyle(CadEntityBase entity, LayerInfo layer)
    {
        string handle = entity.PlotStyle.Length > 0 ? entity.PlotStyle : layer.PlotStyleHandle;
        return _tables.PlotStyles.NameOf(handle) is string name ? Styles!.Of(name) : null;
    }

    internal LinePattern? PatternOf(string name, LayerInfo layer, BlockContext context)
    {
        if (name.Equals(ByBlock, StringComparison.OrdinalIgnoreCase))
        {
            return context.Parent == null ? null : context.ByBlock.Pattern;
        }

        string used = name.Length == 0
            || name.Equals(ByLayer, StringComparison.OrdinalIgnoreCase) ? layer.LineType : name;
        return _tables.LineTypes.TryGetValue(used, out LinePattern? pattern) ? pattern : null;
    }

    internal double PatternScale(double entityScale, BlockContext context)
    {
        double own = entityScale > 0 ? entityScale : 1;
        double scale = _tables.Settings.LinetypeScale * own * _style.LineTypeScale;
        return context.Viewport == null ? scale : scale * context.Viewport.PatternScale;
    }

    internal float WeightOf(short weight, LayerInfo layer, BlockContext context)
    {
        if (!_showWeights)
        {
            return 0;
        }

        short used = weight == ByLayerWeight ? layer.LineWeight : weight;
        if (used == ByBlockWeight)
        {
            return context.Parent == null ? DefaultMillimetres : context.ByBlock.LineWeight;
        }

        return used < 0 ? DefaultMillimetres : used / 100f;
    }

    private byte AlphaOf(CadEntityBase entity, LayerInfo layer, BlockContext context)
    {
        int value = entity.Transparency;
        if ((value & RawColor.HasOpacity) != 0)
        {
            return (byte)value;
        }

        if ((value & TransparencyByBlock) != 0)
        {
            return context.Parent == null ? (byte)255 : context.ByBlock.Color.A;
        }

        return (byte)Math.Round(layer.Opacity * 255);
    }
}
