using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit.Docs;

/// <summary>Writes the page of one type: what it is, a list of contents, its members.</summary>
internal sealed class TypePage(
    TypeModel type, DocsLinks links, IReadOnlyList<TypeModel> heirs, IReadOnlyList<TypeModel> nested)
{
    private readonly CodeWriter _writer = new();

    public string Write()
    {
        PropertyModel[] properties = [.. MethodGroup.PropertiesOf(type), .. type.StaticProperties];
        IGrouping<string, MethodGroup>[] methods =
        [
            .. MethodGroup.Of(type).GroupBy(group => group.PythonName)
                .OrderBy(name => name.Key, System.StringComparer.Ordinal),
        ];
        _writer.Line($"# {type.QualifiedName}").Line();
        _writer.Line($"In [{type.Module}](index.md). {Describe()}").Line();
        Paragraphs(type.Doc.Summary);
        Family("Derived from it", heirs);
        Family("Within it", nested);
        Contents(properties, methods);
        if (type.Kind == BoundKind.Enum)
        {
            Members();
        }
        if (type.Constructors.Count > 0)
        {
            _writer.Line("## Constructors").Line();
            type.Constructors.ForEach(constructor => Form(constructor, type.Name));
        }
        Properties(properties);
        Methods(methods);
        return _writer.ToString();
    }

    private string Describe() => type.Kind switch
    {
        BoundKind.Enum => type.IsIntegerEnum ? "An `IntEnum`." : "An `IntFlag`.",
        BoundKind.Interface => "An interface.",
        BoundKind.Struct => "A value type.",
        BoundKind.StaticClass => "Functions and values; it has no instances.",
        _ when type.Base is { } bound => $"A class derived from {DocsLinks.To(bound)}, whose members it has too.",
        _ => "A class.",
    };

    private void Family(string title, IReadOnlyList<TypeModel> types)
    {
        if (types.Count > 0)
        {
            _writer.Line($"{title}: {string.Join(", ", types.Select(DocsLinks.To))}.").Line();
        }
    }

    private void Contents(
        IReadOnlyList<PropertyModel> properties, IReadOnlyList<IGrouping<string, MethodGroup>> methods)
    {
        if (type.Constructors.Count > 0)
        {
            _writer.Line("- [Constructors](#constructors)");
        }
        if (properties.Count > 0)
        {
            IEnumerable<string> names = properties.Select(one => $"`{one.PythonName}`");
            _writer.Line($"- [Properties](#properties): {string.Join(", ", names)}");
        }
        if (methods.Count > 0)
        {
            IEnumerable<string> names = methods.Select(one => $"[`{one.Key}`](#{one.Key})");
            _writer.Line($"- [Methods](#methods): {string.Join(", ", names)}");
        }
        if (type.Constructors.Count + properties.Count + methods.Count > 0)
        {
            _writer.Line();
        }
    }

    private void Members()
    {
        bool isUnsigned = type.Underlying!.Kind == ValueKind.UInt64;
        _writer.Line("| Member | Value | |").Line("|---|---|---|");
        foreach (EnumMemberModel member in type.EnumMembers)
        {
            string value = isUnsigned ? $"{(ulong)member.Bits}" : $"{member.Bits}";
            _writer.Line($"| `{member.PythonName}` | {value} | {Cell(member.Doc.Summary)} |");
        }
        _writer.Line();
    }

    private void Properties(IReadOnlyList<PropertyModel> properties)
    {
        if (properties.Count == 0)
        {
            return;
        }
        _writer.Line("## Properties").Line();
        _writer.Line("| Property | Type | |").Line("|---|---|---|");
        foreach (PropertyModel property in properties)
        {
            string access = property.CanWrite ? "" : "Read-only. ";
            string text = access + Cell(property.Doc.Summary);
            _writer.Line($"| `{property.PythonName}` | {links.Result(property.Value)} | {text} |");
        }
        _writer.Line();
    }

    private void Methods(IReadOnlyList<IGrouping<string, MethodGroup>> methods)
    {
        if (methods.Count == 0)
        {
            return;
        }
        _writer.Line("## Methods").Line();
        foreach (IGrouping<string, MethodGroup> name in methods)
        {
            _writer.Line($"### {name.Key}").Line();
            foreach (MethodModel overload in name.SelectMany(group => group.Overloads))
            {
                Form(overload, overload.PythonName);
            }
        }
    }

    private void Form(MethodModel method, string name)
    {
        IEnumerable<string> parameters = method.Parameters.Select(
            parameter => $"{parameter.PythonName}: {links.Accepted(parameter)}");
        string result = method.IsConstructor ? "" : $" → {links.Result(method.Result)}";
        string called = method.IsStatic ? $"{type.Name}.{name}" : name;
        _writer.Line($"**{called}**({string.Join(", ", parameters)}){result}").Line();
        Paragraphs(method.Doc.Summary);
        string returns = method.Doc.Returns;
        string[] fields =
        [
            .. method.Doc.Parameters.Select(one => $"- `{one.Key}`: {links.Text(one.Value)}"),
            .. returns.Length == 0 ? (IEnumerable<string>)[] : [$"- result: {links.Text(returns)}"],
            .. method.Doc.Raises.Select(one => $"- fails with {one.Key}: {links.Text(one.Value)}"),
        ];
        foreach (string field in fields)
        {
            _writer.Line(field);
        }
        if (fields.Length > 0)
        {
            _writer.Line();
        }
    }

    private void Paragraphs(string text)
    {
        if (text.Length > 0)
        {
            _writer.Line(links.Text(text)).Line();
        }
    }

    private string Cell(string text) => links.Text(text).Replace("\n", " ").Replace("|", "\\|");
}
