using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The choices of a caller that change what is put into the list.</summary>
internal sealed record RenderStyle
{
    internal const int DefaultCircleSides = 64;

    internal Rgba Background { get; init; } = Rgba.White;

    /// <summary>Everything in this colour, or null for the objects' own.</summary>
    internal Rgba? SingleColor { get; init; }

    /// <summary>What becomes of every colour in the end; null to keep them.</summary>
    internal Func<Rgba, Rgba>? ColorMap { get; init; }

    /// <summary>Layers to draw; null for all.</summary>
    internal IReadOnlySet<string>? Layers { get; init; }

    /// <summary>Leaves out layers that are not plotted, and shows line weights whatever the screen does.</summary>
    internal bool AsPlotted { get; init; }

    /// <summary>Fills areas of a pattern evenly, in half its colour.</summary>
    internal bool CoarseHatches { get; init; }

    /// <summary>How many sides a circle gets where curves are tessellated.</summary>
    internal int CircleSides { get; init; } = DefaultCircleSides;

    internal double LineTypeScale { get; init; } = 1;

    /// <summary>From world coordinates of the model to the plane that is drawn.</summary>
    internal Affine3 ModelView { get; init; } = Affine3.Identity;

    /// <summary>Draws blocks that repeat as symbols, for devices that have them.</summary>
    internal bool HasSymbols { get; init; }

    /// <summary>Places the outlines of texts that are drawn by strokes as hidden text, for devices whose text can be
    /// searched and selected.</summary>
    internal bool HasHiddenText { get; init; }

    /// <summary>The most items that a list stores at once; nothing for all.</summary>
    internal int? MaxStored { get; init; }

    /// <summary>The number of items that is expected; 0 for a few.</summary>
    internal int Expected { get; init; }

    /// <summary>What receives the items of a list that stores a part of them.</summary>
    internal Action<DrawingList>? Drain { get; init; }
}
