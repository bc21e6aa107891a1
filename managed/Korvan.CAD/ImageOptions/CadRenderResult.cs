using System;
using System.Collections.Generic;

namespace Korvan.CAD.ImageOptions;

/// <summary>What became of the pages of an export: how long they took, and what was not drawn as it is.</summary>
public class CadRenderResult : RenderResult
{
    private readonly RenderResult[] _failures;

    internal CadRenderResult(IReadOnlyCollection<RenderResult> failures, TimeSpan duration)
        : base(Reasons(failures), failures.Count == 0 ? "Everything was drawn." : $"{failures.Count} things were not drawn as they are.")
    {
        _failures = [.. failures];
        RenderDuration = duration;
    }

    /// <summary>Gets whether everything was drawn as it is.</summary>
    public bool IsRenderComplete => _failures.Length == 0;

    /// <summary>Gets what was not drawn as it is.</summary>
    public RenderResult[] Failures => [.. _failures];

    /// <summary>Gets how long the export took.</summary>
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
