using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Input;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering;

/// <summary>What an export could not draw as it is, each thing once, with how often it was met.</summary>
internal sealed class RenderNotes
{
    private readonly Dictionary<(RenderErrorCode Code, string What), int> _counts = [];
    private int _missingGlyphs;

    internal void Add(RenderErrorCode code, string what, int count = 1)
    {
        _counts[(code, what)] = _counts.GetValueOrDefault((code, what)) + count;
    }

    internal void AddSkipped(DrawingList list)
    {
        string[] kinds = [.. list.Skipped.Keys];
        Array.Sort(kinds, StringComparer.Ordinal);
        foreach (string kind in kinds)
        {
            bool picture = kind.EndsWith(DrawingList.MissingFile, StringComparison.Ordinal);
            Add(picture ? RenderErrorCode.MissingPicture : RenderErrorCode.EntityNotDrawn, kind, list.Skipped[kind]);
        }
    }

    /// <summary>The engine counts over all its pages.</summary>
    internal void SetFonts(TextEngine engine)
    {
        _missingGlyphs = engine.UnknownGlyphs;
        string[] names = [.. engine.Replaced.Keys];
        Array.Sort(names, StringComparer.OrdinalIgnoreCase);
        Fonts = Array.ConvertAll(names, name => $"{name}: {engine.Replaced[name]}");
    }

    /// <summary>Gets the fonts that were replaced, each with what it was replaced by.</summary>
    internal string[] Fonts { get; private set; } = [];

    internal List<RenderResult> Results()
    {
        List<RenderResult> results = [];
        foreach (((RenderErrorCode code, string what), int count) in _counts)
        {
            results.Add(new RenderResult(code, SafeText.Of($"{what} ({count})")));
        }

        if (_missingGlyphs > 0)
        {
            results.Add(new RenderResult(RenderErrorCode.MissingGlyph, $"missing glyphs ({_missingGlyphs})"));
        }

        return results;
    }
}
