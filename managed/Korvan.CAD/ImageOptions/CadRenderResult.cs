using System;
using System.Collections.Generic;

namespace Korvan.CAD.ImageOptions;

/// <summary>The result of an export: its duration, and what could not be rendered faithfully.</summary>
public class CadRenderResult : RenderResult
{
    private readonly RenderResult[] _failures;

    internal CadRenderResult(IReadOnlyCollection<RenderResult> failures, TimeSpan duration)
        : base(
            Reasons(failures),
            failures.Count == 0
                ? "Everything was rendered faithfully."
                : $"{failures.Count} things were not rendered faithfully.")
    {
        _failures = [.. failures];
        RenderDuration = duration;
    }

    /// <summary>Gets whether everything was rendered faithfully.</summary>
    public bool IsRenderComplete => _failures.Length == 0;

    /// <summary>Gets what was not rendered faithfully.</summary>
    public RenderResult[] Failures => [.. _failures];

    /// <summary>Gets the fonts that the drawing names and that were not available, each with what replaced it, such as
    /// "simplex.shx: the stroke face of the library". A replacement is no failure.</summary>
    public string[] FontSubstitutions { get; internal init; } = [];

    /// <summary>Gets the duration of the export.</summary>
    public TimeSpan RenderDuration { get; }

    private static RenderErrorCode Reasons(IReadOnlyCollection<RenderResult> failures)
    {
        RenderErrorCode all = RenderErrorCode.Success;
        foreach (RenderResult failure in failures)
        {
            all |= failure.RenderCode;
        }

        return all;
    }
}
