using System.Linq;
using System.Text.RegularExpressions;
using System.Xml.Linq;
using Microsoft.CodeAnalysis;

namespace Korvan.CAD.CodecGen.Metafile;

/// <summary>A property that is a parameter of a command.</summary>
internal sealed class CommandParameter
{
    private readonly AttributeData _attribute;
    private readonly IPropertySymbol _symbol;

    private CommandParameter(IPropertySymbol symbol, AttributeData attribute)
    {
        _symbol = symbol;
        _attribute = attribute;
        Kind = attribute.AttributeClass!.Name.Replace("Attribute", "").Substring("Cgm".Length);
    }

    public string Name => _symbol.Name;

    /// <summary>The name as a parameter of a constructor.</summary>
    public string ArgumentName => char.ToLowerInvariant(Name[0]) + Name.Substring(1);

    public string TypeName => _symbol.Type.ToDisplayString(SymbolDisplayFormat.FullyQualifiedFormat);

    public bool IsReference => _symbol.Type.IsReferenceType;

    /// <summary>The attribute, as in <c>Vdc</c>.</summary>
    public string Kind { get; }

    public static CommandParameter? From(IPropertySymbol symbol)
    {
        AttributeData? attribute = symbol.GetAttributes().FirstOrDefault(candidate =>
            candidate.AttributeClass?.BaseType?.Name == "CgmParameterAttribute");
        return attribute is null ? null : new CommandParameter(symbol, attribute);
    }

    /// <summary>The statement that reads or writes the parameter.</summary>
    public string Exchange()
    {
        if (Kind == "Custom")
        {
            return $"{Name} = Exchange{Name}(x);";
        }

        if (_symbol.Type is not INamedTypeSymbol { Name: "List" } list)
        {
            return $"{Name} = {One("x", Name, _symbol.Type)};";
        }

        string? count = Named("Counted") is true ? "" : Named("Count") as string;
        if (Kind == "Point" && count is null)
        {
            return $"{Name} = x.Points({Name});";
        }

        string one = $"static (y, item) => {One("y", "item", list.TypeArguments[0])}";
        return count is null ? $"{Name} = x.Rest({Name}, {one});" : Counted(count, one);
    }

    /// <summary>What the parameter means, as the documentation of a constructor has it.</summary>
    public string Meaning()
    {
        var documentation = XElement.Parse($"<doc>{_symbol.GetDocumentationCommentXml()}</doc>");
        string text = string.Concat(documentation.Descendants("summary").Nodes().Select(node => node.ToString()));
        text = Regex.Replace(text, @"\s+", " ").Trim();
        const string accessors = "Gets or sets ";
        text = text.StartsWith(accessors, System.StringComparison.Ordinal) ? text.Substring(accessors.Length) : text;
        return text.Length == 0 ? "" : char.ToUpperInvariant(text[0]) + text.Substring(1);
    }

    private string Counted(string count, string one)
    {
        return count.Length == 0
            ? $"{Name} = x.Counted({Name}, {one});"
            : $"{Name} = x.Counted({Name}, nameof({Name}), {count}, {one});";
    }

    private string One(string x, string value, ITypeSymbol type) => Kind switch
    {
        "Enum" => $"{x}.Enumeration({value}, {KeywordEntry.Table(type)})",
        "Size" => $"{x}.Size({value}, {x}.State.Current.{_attribute.ConstructorArguments[0].Value})",
        "SignedBits" or "UnsignedBits" => $"{x}.{Kind}({value}, [{Widths()}])",
        "Groups" => $"{type.ToDisplayString(SymbolDisplayFormat.FullyQualifiedFormat)}.Exchange({x}, {value})",
        _ => $"{x}.{Kind}({value})",
    };

    private string Widths() =>
        string.Join(", ", _attribute.ConstructorArguments[0].Values.Select(width => width.Value));

    private object? Named(string name) =>
        _attribute.NamedArguments.FirstOrDefault(argument => argument.Key == name).Value.Value;
}
