using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.DisplayList;

/// <content>Hatched areas, whose lines are made for the scale at which the page is drawn.</content>
internal sealed partial class DrawingList
{
    private readonly List<PatternArea> _patterns = [];
    private readonly List<Bounds2> _openClips = [];
    private bool _isResolving;

    /// <summary>Draws one hatched area by strokes and fills.</summary>
    /// <param name="item">The item, with its colour and line weight.</param>
    /// <param name="area">The rings and lines.</param>
    /// <param name="outline">The boundary on the page.</param>
    /// <param name="clip">The region that the clips leave; null for all.</param>
    internal delegate void PatternPainter(
        in DisplayItem item, PatternArea area, PathBuffer outline, Bounds2? clip);

    /// <summary>The surroundings of a page that lines are clipped to.</summary>
    /// <param name="Box">The box.</param>
    /// <param name="Tolerance">The distance of chords from curves, in drawing units.</param>
    internal readonly record struct NearBox(Bounds2 Box, double Tolerance);

    /// <summary>Adds an area that is filled with lines.</summary>
    internal void Pattern(PathBuffer outline, PatternArea area, in StrokeAttributes style)
    {
        if (outline.IsEmpty || !AddPath(outline, DisplayKind.Pattern, style.Color, style.Layer, out int index))
        {
            return;
        }

        _items[index].LineWeight = style.LineWeight;
        _items[index].Style = style.Style;
        _items[index].Extra = _patterns.Count;
        _patterns.Add(area);
    }

    /// <summary>Replaces the hatched areas by what a painter adds in their places, and lines that reach far outside of
    /// the page by their parts near it.</summary>
    /// <param name="painter">Draws areas.</param>
    /// <param name="near">What lines are clipped to; null to keep them.</param>
    internal void Resolve(PatternPainter painter, NearBox? near)
    {
        bool hasFarLines = near is NearBox limits && !limits.Box.Contains(_reach);
        if (_patterns.Count == 0 && !hasFarLines)
        {
            return;
        }

        DisplayItem[] before = _items;
        int count = _itemCount;
        _items = new DisplayItem[count];
        _itemCount = 0;
        _isResolving = true;
        Bounds2[] clips = [.. _clips];
        _clips.Clear();
        _clips.AddRange(_openClips);
        var outline = new PathBuffer();
        var firsts = new int[_symbols.Count > 0 ? count + 1 : 0];
        for (int i = 0; i < count; i++)
        {
            ref readonly DisplayItem item = ref before[i];
            if (firsts.Length > 0)
            {
                firsts[i] = _itemCount;
            }

            if (item.Kind == DisplayKind.Pattern)
            {
                PathOf(item, outline);
                painter(item, _patterns[item.Extra], outline, ActiveClip);
                continue;
            }

            if (hasFarLines && item.Kind == DisplayKind.Stroke && TryAddNear(item, near!.Value))
            {
                continue;
            }

            if (hasFarLines && item.Kind == DisplayKind.Symbol && !near!.Value.Box.Contains(BoxOf(item)))
            {
                Expand(_placements[item.Extra], near.Value, outline);
                continue;
            }

            FollowClip(item, outline);
            NewItem(item.Kind, item.Color, item.Layer) = item;
        }

        if (firsts.Length > 0)
        {
            firsts[count] = _itemCount;
            MoveSymbols(firsts);
        }

        _isResolving = false;
        _clips.Clear();
        _clips.AddRange(clips);
        _patterns.Clear();
        _reach = Bounds2.Empty;
    }

    private void FollowClip(in DisplayItem item, PathBuffer outline)
    {
        if (item.Kind == DisplayKind.PushClip)
        {
            PathOf(item, outline);
            _clips.Add(ActiveClip is Bounds2 clip ? outline.Bounds.Clip(clip) : outline.Bounds);
        }
        else if (item.Kind == DisplayKind.PopClip)
        {
            _clips.RemoveAt(_clips.Count - 1);
        }
    }

    /// <summary>Removes the areas, and notes which clips hold at the start of what is stored next.</summary>
    private void EmptyPatterns()
    {
        _patterns.Clear();
        _openClips.Clear();
        _openClips.AddRange(_clips);
    }

    private void PathOf(in DisplayItem item, PathBuffer path)
    {
        path.Clear();
        ReadOnlySpan<double> c = CoordsOf(item);
        int at = 0;
        foreach (PathVerb verb in VerbsOf(item))
        {
            switch (verb)
            {
                case PathVerb.Move:
                    path.MoveTo(new Vec2(c[at], c[at + 1]));
                    at += 2;
                    break;
                case PathVerb.Line:
                    path.LineTo(new Vec2(c[at], c[at + 1]));
                    at += 2;
                    break;
                case PathVerb.Curve:
                    path.CurveTo(new Vec2(c[at], c[at + 1]), new Vec2(c[at + 2], c[at + 3]),
                        new Vec2(c[at + 4], c[at + 5]));
                    at += 6;
                    break;
                default:
                    path.Close();
                    break;
            }
        }
    }
}
