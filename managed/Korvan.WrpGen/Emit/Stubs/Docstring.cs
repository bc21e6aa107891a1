using System.Collections.Generic;
using System.Linq;
using System.Text;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit.Stubs;

/// <summary>Documentation as a docstring: summary, arguments, result.</summary>
internal static class Docstring
{
    private const int Width = 88;

    public static void Write(CodeWriter writer, DocText doc)
    {
        if (doc.IsEmpty)
        {
            return;
        }
        string[] lines = [.. Lines(doc)];
        if (lines.Length == 1)
        {
            writer.Line($"\"\"\"{Escape(lines[0])}\"\"\"");
            return;
        }
        writer.Line("\"\"\"" + Escape(lines[0]));
        foreach (string line in lines.Skip(1))
        {
            writer.Line(Escape(line));
        }
        writer.Line("\"\"\"");
    }

    /// <summary>The lines of a docstring: the paragraphs, then the list of fields.</summary>
    public static IEnumerable<string> Lines(DocText doc)
    {
        bool first = true;
        foreach (string paragraph in doc.Summary.Split("\n\n").Where(text => text.Length > 0))
        {
            if (!first)
            {
                yield return "";
            }
            first = false;
            foreach (string line in Fold(paragraph, ""))
            {
                yield return line;
            }
        }
        string[] fields = [.. Fields(doc)];
        if (!first && fields.Length > 0)
        {
            yield return "";
        }
        foreach (string line in fields.SelectMany(field => Fold(field, "    ")))
        {
            yield return line;
        }
    }

    // Every managed exception arrives as a RuntimeError that names it.
    private static IEnumerable<string> Fields(DocText doc) =>
    [
        .. doc.Parameters.Select(parameter => $":param {parameter.Key}: {parameter.Value}"),
        .. doc.Returns.Length == 0 ? (IEnumerable<string>)[] : [$":returns: {doc.Returns}"],
        .. doc.Raises.Select(one => $":raises RuntimeError: {one.Key}: {one.Value}"),
    ];

    private static IEnumerable<string> Fold(string text, string hanging)
    {
        var line = new StringBuilder();
        foreach (string word in text.Replace("\n", " ").Split(' '))
        {
            if (line.Length > 0 && line.Length + 1 + word.Length > Width)
            {
                yield return line.ToString();
                line.Clear().Append(hanging);
            }
            else if (line.Length > 0)
            {
                line.Append(' ');
            }
            line.Append(word);
        }
        yield return line.ToString();
    }

    // No text may end the string, nor begin an escape.
    private static string Escape(string text) => text.Replace("\\", "\\\\").Replace("\"", "\\\"");
}
