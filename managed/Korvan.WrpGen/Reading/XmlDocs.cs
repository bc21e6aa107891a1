using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using System.Xml.Linq;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Reading;

/// <summary>The library's XML documentation, with references written as Python names.</summary>
internal sealed class XmlDocs
{
    private readonly Dictionary<string, XElement> _members = [];

    public static XmlDocs Load(IEnumerable<string> paths)
    {
        var docs = new XmlDocs();
        IEnumerable<XDocument> documents = paths.Where(File.Exists).Select(path => XDocument.Load(path));
        foreach (XElement member in documents.SelectMany(document => document.Descendants("member")))
        {
            docs._members[member.Attribute("name")!.Value] = member;
        }
        return docs;
    }

    public DocText Of(string id) => Of(id, []);

    /// <summary>The documentation of a member. What it leaves unsaid is taken from where it points to, or else from the
    /// first of those members that it stands for.</summary>
    public DocText Of(string id, IEnumerable<string> inherited)
    {
        XElement? member = _members.GetValueOrDefault(id);
        DocText own = member is null ? DocText.None : Read(member);
        XElement? pointer = member?.Element("inheritdoc");
        if (member is not null && pointer is null)
        {
            return own;
        }
        IEnumerable<string> sources = pointer?.Attribute("cref") is { } target ? [target.Value] : inherited;
        return own.Over(sources.Where(source => source != id).Select(source => Of(source, []))
            .FirstOrDefault(text => !text.IsEmpty, DocText.None));
    }

    private static DocText Read(XElement member)
    {
        var parameters = member.Elements("param").ToDictionary(
            parameter => PythonName.Lower(parameter.Attribute("name")!.Value), Text);
        string summary = Join(Text(member.Element("summary")), Text(member.Element("remarks")));
        return new DocText(summary, parameters, Text(member.Element("returns") ?? member.Element("value")))
        {
            Raises =
            [
                .. member.Elements("exception").Select(one =>
                    KeyValuePair.Create(one.Attribute("cref")!.Value.Split('.')[^1], Text(one))),
            ],
        };
    }

    private static string Join(string summary, string remarks) =>
        remarks.Length == 0 ? summary : summary.Length == 0 ? remarks : $"{summary}\n\n{remarks}";

    private static string Text(XElement? element)
    {
        if (element is null)
        {
            return "";
        }
        var text = new StringBuilder();
        Append(text, element);
        string[] paragraphs = text.ToString().Split("\n\n", StringSplitOptions.RemoveEmptyEntries);
        return string.Join("\n\n", paragraphs.Select(Fold).Where(paragraph => paragraph.Length > 0));
    }

    private static string Fold(string text) =>
        string.Join(' ', text.Split((char[]?)null, StringSplitOptions.RemoveEmptyEntries));

    private static void Append(StringBuilder text, XElement element)
    {
        foreach (XNode node in element.Nodes())
        {
            switch (node)
            {
                case XText plain:
                    text.Append(plain.Value.Replace("\n", " "));
                    break;
                case XElement { Name.LocalName: "para" or "p" } paragraph:
                    text.Append("\n\n");
                    Append(text, paragraph);
                    text.Append("\n\n");
                    break;
                case XElement child:
                    AppendInline(text, child);
                    break;
            }
        }
    }

    private static void AppendInline(StringBuilder text, XElement child)
    {
        switch (child.Name.LocalName)
        {
            case "see" or "seealso" when child.Attribute("cref") is { } target:
                text.Append('`').Append(PythonTarget(target.Value)).Append('`');
                break;
            case "see" when child.Attribute("langword") is { } word:
                text.Append('`').Append(PythonWord(word.Value)).Append('`');
                break;
            case "paramref":
                text.Append('`').Append(PythonName.Lower(child.Attribute("name")!.Value)).Append('`');
                break;
            case "c":
                text.Append('`').Append(child.Value).Append('`');
                break;
            default:
                Append(text, child);
                break;
        }
    }

    private static string PythonWord(string word) => word switch
    {
        "null" => "None",
        "true" => "True",
        "false" => "False",
        _ => word,
    };

    // T:Korvan.CAD.Image is Image; P:Korvan.CAD.Image.Width is Image.width.
    private static string PythonTarget(string cref)
    {
        string name = cref.Split('(')[0];
        string[] parts = name[(name.IndexOf(':') + 1)..].Split('.');
        string last = parts[^1];
        string owner = parts.Length > 1 ? parts[^2] + "." : "";
        return name[0] switch
        {
            'P' => owner + PythonName.Lower(last),
            'F' => owner + PythonName.Upper(last),
            'M' when last == "#ctor" => parts[^2],
            'M' => owner + PythonName.Lower(last),
            _ => last,
        };
    }
}
