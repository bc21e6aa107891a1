using System;
using System.Collections.Generic;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.DisplayList;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>A layout that can be drawn: the model, or a sheet of paper.</summary>
internal sealed record LayoutInfo(string Name, BlockInfo Block, bool IsModel, PaperSheet? Sheet);

/// <summary>A drawing as the renderer sees it: tables for lookup and layouts in their order.</summary>
internal sealed record DrawingScene(SceneTables Tables, BlockInfo Model, IReadOnlyList<LayoutInfo> Layouts)
{
    internal const string ModelName = "Model";

    /// <summary>The layouts of the given names, in their order; the model when there are none.</summary>
    internal List<LayoutInfo> Choose(IReadOnlyList<string> names)
    {
        var chosen = new List<LayoutInfo>();
        foreach (string name in names.Count == 0 ? [ModelName] : names)
        {
            chosen.Add(Find(name) ?? throw new RenderException(
                $"The drawing has no layout \"{name}\"; it has {string.Join(", ", NamesInQuotes())}."));
        }

        return chosen;
    }

    internal DrawingList Build(LayoutInfo layout, RenderStyle style, TextEngine engine) => layout.IsModel
        ? SceneBuilder.BuildModel(Tables, style, engine, Model)
        : SceneBuilder.BuildLayout(Tables, style, engine, layout.Block, Model);

    private LayoutInfo? Find(string name)
    {
        foreach (LayoutInfo layout in Layouts)
        {
            if (string.Equals(layout.Name, name, StringComparison.OrdinalIgnoreCase))
            {
                return layout;
            }
        }

        return null;
    }

    private IEnumerable<string> NamesInQuotes()
    {
        foreach (LayoutInfo layout in Layouts)
        {
            yield return "\"" + layout.Name + "\"";
        }
    }
}
