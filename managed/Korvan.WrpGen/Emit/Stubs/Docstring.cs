using System.Collections.Generic;
using System.Linq;
using System.Text;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit.Stubs;

/// <summary>Documentation as a docstring: summary, arguments, result.</summary>
internal static class Docstring
{
    private const int Width = 88;

    public static bool IsEmpty(DocText doc) =>
        doc.Summary.Length == 0 && doc.Returns.Length == 0 && doc.Parameters.Count == 0;

    public static void Write(CodeWriter writer, DocText doc)
    {
        if (IsEmpty(doc))
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

    private static IEnumerable<string> Lines(DocText doc)
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
        foreach ((string name, string text) in doc.Parameters)
        {
            if (!first)
            {
                yield return "";
            }
            first = false;
            foreach (string line in Fold($":param {name}: {text}", "    "))
            {
                yield return line;
            }
        }
        foreach (string line in doc.Returns.Length == 0 ? [] : Fold($":returns: {doc.Returns}", "    "))
        {
            yield return line;
        }
    }

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
