using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Something of a vector image that makes a page of its own.</summary>
internal abstract record ScenePage(string Name)
{
    /// <summary>Gets about how many items the page has at least.</summary>
    internal virtual int Entities => 0;

    /// <summary>The paper of a page that has one.</summary>
    /// <param name="content">The extents of what the page shows, in drawing units.</param>
    internal abstract PaperSheet? SheetFor(in Bounds2 content);
}

/// <summary>A vector image as the renderer sees it: pages with names, each of which becomes a display list.</summary>
internal abstract class VectorScene
{
    internal abstract IReadOnlyList<ScenePage> Pages { get; }

    /// <summary>Gets when the image was made, in universal time; null where it does not say.</summary>
    internal virtual DateTime? Created => null;

    /// <summary>Gets when the image was last changed, in universal time; null where it does not say.</summary>
    internal virtual DateTime? Modified => null;

    /// <summary>The pages that are drawn when none is asked for.</summary>
    protected abstract IReadOnlyList<ScenePage> DefaultPages { get; }

    internal abstract DrawingList Build(ScenePage page, RenderStyle style, TextEngine engine);

    /// <summary>The pages of the given names, in their order.</summary>
    internal List<ScenePage> Choose(IReadOnlyList<string> names)
    {
        var chosen = new List<ScenePage>();
        if (names.Count == 0)
        {
            return [.. DefaultPages];
        }

        foreach (string name in names)
        {
            chosen.Add(Pages.FirstOrDefault(page => string.Equals(page.Name, name, StringComparison.OrdinalIgnoreCase))
                ?? throw new RenderException(
                    $"The drawing has no layout \"{name}\"; layouts may name "
                        + $"{string.Join(", ", Pages.Select(static page => $"\"{page.Name}\""))}."));
        }

        return chosen;
    }
}
