using System;
using System.Collections.Generic;
using System.IO;
using Xunit;

namespace Korvan.CAD.Tests;

/// <summary>Real drawings that stand beside the checkout, where somebody has put them.</summary>
internal static class SharedDrawings
{
    internal static readonly string? Root = Find("drawings");

    internal static readonly string? Catalogue = Find("catalogue.tsv");

    internal static string Dxf(string name) => Path.Combine(Root!, "dxf", name);

    internal static string Dwg(string name) => Path.Combine(Root!, "dwg", name);

    internal static IEnumerable<string> AllDxf() => Directory.EnumerateFiles(Path.Combine(Root!, "dxf"));

    private static string? Find(string name)
    {
        for (DirectoryInfo? at = new(AppContext.BaseDirectory); at is not null; at = at.Parent)
        {
            string candidate = Path.Combine(at.FullName, "shared", name);
            if (File.Exists(candidate) || Directory.Exists(candidate))
            {
                return candidate;
            }
        }

        string? stated = Environment.GetEnvironmentVariable("KORVAN_SHARED");
        return stated is null ? null : Path.Combine(stated, name);
    }
}

[AttributeUsage(AttributeTargets.Method)]
internal sealed class DrawingFactAttribute : FactAttribute
{
    public DrawingFactAttribute()
    {
        Skip = SharedDrawings.Root is null ? "There is no folder shared/drawings beside the checkout." : null;
    }
}

[AttributeUsage(AttributeTargets.Method)]
internal sealed class DrawingTheoryAttribute : TheoryAttribute
{
    public DrawingTheoryAttribute()
    {
        Skip = SharedDrawings.Root is null ? "There is no folder shared/drawings beside the checkout." : null;
    }
}
