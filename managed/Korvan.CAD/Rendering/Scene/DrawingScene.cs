using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>A layout that can be drawn: the model, or a sheet of paper.</summary>
internal sealed record LayoutInfo(string Name, BlockInfo Block, bool IsModel, PlotArea? Plot) : ScenePage(Name)
{
    /// <summary>Gets the plot styles of the page setup; null for none.</summary>
    internal PlotSetup? Styles { get; init; }

    internal override int Entities => Block.Entities.Count;

    internal override PaperSheet? SheetFor(in Bounds2 content) => Plot?.SheetFor(content);
}

/// <summary>A drawing as the renderer sees it: tables for lookup and layouts in their order.</summary>
internal sealed class DrawingScene(SceneTables tables, BlockInfo model, IReadOnlyList<LayoutInfo> layouts) : VectorScene
{
    internal const string ModelName = "Model";

    internal SceneTables Tables => tables;

    internal BlockInfo Model => model;

    internal IReadOnlyList<LayoutInfo> Layouts => layouts;

    internal override IReadOnlyList<ScenePage> Pages => layouts;

    internal override DateTime? Created => tables.Settings.Created;

    internal override DateTime? Modified => tables.Settings.Modified;

    protected override IReadOnlyList<ScenePage> DefaultPages => Choose([ModelName]);

    internal override DrawingList Build(ScenePage page, RenderStyle style, TextEngine engine)
    {
        var layout = (LayoutInfo)page;
        PlotSetup? styles = UsesStyles(layout, style) ? layout.Styles : null;
        return layout.IsModel
            ? SceneBuilder.BuildModel(Tables, style, engine, Model, styles)
            : SceneBuilder.BuildLayout(Tables, style, engine, layout.Block, Model, styles);
    }

    // A sheet of paper is shown as it is plotted; the model only where a plot was asked for, or on screens that show
    // plot styles.
    private static bool UsesStyles(LayoutInfo layout, RenderStyle style)
    {
        bool isPlot = style.AsPlotted || !layout.IsModel;
        return layout.Styles is { } setup && ((isPlot && setup.OnPlot) || (!style.AsPlotted && setup.OnScreen));
    }
}
