using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;

namespace Korvan.CAD.Tests.Surface;

/// <summary>The layers of the library and their modules, from the file that declares them, lowest first.</summary>
internal sealed class LayerMap
{
    private const string Root = "Korvan.CAD";

    private readonly List<(string Pattern, int Layer, string Module)> _rules = [];

    private LayerMap(IEnumerable<string> lines)
    {
        foreach (string line in lines.Select(static text => text.Split('#')[0].TrimEnd())
            .Where(static text => text.Length > 0))
        {
            if (!char.IsWhiteSpace(line[0]))
            {
                Names.Add(line);
                continue;
            }

            string[] parts = line.Split(':', 2);
            string module = parts[0].Trim();
            foreach (string pattern in parts[1].Split(' ', StringSplitOptions.RemoveEmptyEntries))
            {
                _rules.Add((pattern, Names.Count - 1, module));
            }
        }
    }

    /// <summary>Gets the names of the layers, lowest first.</summary>
    internal List<string> Names { get; } = [];

    internal static LayerMap Read() => new(File.ReadLines(Path.Combine(AppContext.BaseDirectory, "layers.txt")));

    /// <summary>Returns layer and module of a type: those of the longest pattern that matches its name.</summary>
    internal (int Layer, string Module) Find(string type)
    {
        (string Pattern, int Layer, string Module) best = _rules.Where(rule => Fits(rule.Pattern, type))
            .OrderByDescending(static rule => rule.Pattern.Length + (rule.Pattern.EndsWith('*') ? 0 : 1000))
            .FirstOrDefault();
        return best.Pattern is null ? (-1, "") : (best.Layer, best.Module);
    }

    /// <summary>Returns the patterns that match no type.</summary>
    internal IEnumerable<string> Unused(IReadOnlyCollection<string> types) =>
        _rules.Select(static rule => rule.Pattern).Where(pattern => !types.Any(type => Fits(pattern, type)));

    // "A.*" is a namespace with those in it, "*" the types of the root namespace, any other pattern a type.
    private static bool Fits(string pattern, string type)
    {
        string name = type[(Root.Length + 1)..];
        return pattern == "*"
            ? !name.Contains('.')
            : pattern.EndsWith(".*", StringComparison.Ordinal)
            ? name.StartsWith(pattern[..^1], StringComparison.Ordinal)
            : name == pattern || name.StartsWith(pattern + '`', StringComparison.Ordinal);
    }
}
