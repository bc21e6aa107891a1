using System;
using System.Collections.Generic;
using System.Linq;
using System.Text;

namespace Korvan.CAD.Formats;

/// <summary>The formats as a table for the documentation.</summary>
internal static class FormatTable
{
    /// <summary>Returns a table in Markdown with a row for each format that is read or written.</summary>
    internal static string ToMarkdown()
    {
        var text = new StringBuilder("| Format | Extensions | Read | Written with |\n|---|---|---|---|\n");
        foreach (FormatRecord record in FormatRegistry.All
            .Where(static record => record.Read is not null || record.Writers.Length > 0)
            .OrderBy(static record => record.Name, StringComparer.OrdinalIgnoreCase))
        {
            IEnumerable<string> extensions = record.Formats.SelectMany(static format => Metadata.Of(format).Extensions);
            IEnumerable<string> options = record.Writers.Select(static writer => $"`{writer.OptionsType.Name}`");
            IEnumerable<string> listed = extensions.Distinct().Select(static one => $"`{one}`");
            text.Append($"| {record.Name} | {string.Join(", ", listed)}")
                .Append($" | {(record.Read is null ? "" : "yes")} | {string.Join(", ", options)} |\n");
        }

        return text.ToString();
    }
}
