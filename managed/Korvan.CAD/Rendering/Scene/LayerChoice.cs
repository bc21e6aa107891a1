using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The layers that options name.</summary>
internal static class LayerChoice
{
    private const int MaxSuggestions = 3;

    /// <summary>Gives the names that are to be drawn; nothing for all.</summary>
    internal static HashSet<string>? Of(ImageOptionsBase options)
    {
        string[] own = (options.VectorRasterizationOptions as CadRasterizationOptions)?.Layers ?? [];
        return options.Layers.Length + own.Length == 0
            ? null
            : new HashSet<string>(
                options.Layers.Concat(own).Select(static name => name ?? ""), StringComparer.OrdinalIgnoreCase);
    }

    /// <summary>Notes names that no layer of the drawing has; where none of them has one, nothing would be drawn, and
    /// that is refused.</summary>
    internal static void Verify(CadDrawing drawing, ExportContext context)
    {
        if (Of(context.Options) is not { } wanted)
        {
            return;
        }

        var known = new HashSet<string>(drawing.Layers.Names, StringComparer.OrdinalIgnoreCase);
        if (!wanted.IsSubsetOf(known))
        {
            known.UnionWith(DrawingWalk.Entities(drawing).Select(static entity => entity.LayerName));
        }

        string[] missing = [.. wanted.Except(known, StringComparer.OrdinalIgnoreCase).Order(StringComparer.Ordinal)];
        if (missing.Length == wanted.Count)
        {
            throw new RenderException(
                $"The drawing has no layer {Quoted(missing)}; the nearest that layers may name "
                    + $"{Nearest(missing[0], known)}.");
        }

        foreach (string name in missing)
        {
            context.Notes.Add(RenderErrorCode.LayerNotFound,
                $"layer \"{name}\" was asked for, but the drawing has none of this name");
        }
    }

    private static string Nearest(string name, HashSet<string> known)
    {
        string[] nearest = [.. known.OrderBy(one => Distance(one.ToUpperInvariant(), name.ToUpperInvariant()))
            .ThenBy(static one => one, StringComparer.Ordinal).Take(MaxSuggestions)];
        return nearest.Length == 1 ? $"is {Quoted(nearest)}" : $"are {Quoted(nearest)}";
    }

    private static string Quoted(IEnumerable<string> names) =>
        string.Join(", ", names.Select(static name => $"\"{name}\""));

    /// <summary>How many characters are inserted, deleted or replaced between one string and the other (Levenshtein
    /// distance).</summary>
    private static int Distance(string from, string to)
    {
        int[] row = [.. Enumerable.Range(0, to.Length + 1)];
        for (int i = 1; i <= from.Length; i++)
        {
            int corner = row[0];
            row[0] = i;
            for (int j = 1; j <= to.Length; j++)
            {
                int changed = corner + (from[i - 1] == to[j - 1] ? 0 : 1);
                corner = row[j];
                row[j] = Math.Min(changed, Math.Min(row[j], row[j - 1]) + 1);
            }
        }

        return row[to.Length];
    }
}
