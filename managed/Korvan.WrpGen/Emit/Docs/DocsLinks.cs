using System.Collections.Generic;
using System.Linq;
using System.Text.RegularExpressions;
using Korvan.WrpGen.Emit.Stubs;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit.Docs;

/// <summary>Turns the names of bound types in hints and texts into links between pages.</summary>
internal sealed partial class DocsLinks
{
    private readonly Dictionary<string, TypeModel> _byPythonName;
    private readonly Dictionary<string, TypeModel> _byShortName;
    private readonly PythonTypes _types;

    public DocsLinks(BindingModel model)
    {
        _byPythonName = model.Types.ToDictionary(type => type.PythonName);
        // A short name that several modules have leads nowhere.
        _byShortName = model.Types.GroupBy(type => type.Name).Where(group => group.Count() == 1)
            .ToDictionary(group => group.Key, group => group.Single());
        // As from a module without types, so that every name is whole.
        _types = new PythonTypes(model.RootModule.Name + ".", new HashSet<string>());
    }

    /// <summary>The page of a type, from the root of the pages.</summary>
    public static string PageOf(TypeModel type) => $"{type.Module}/{type.QualifiedName}.md";

    /// <summary>A link to a type; pages of types lie one folder deep.</summary>
    public static string To(TypeModel type) => $"[{type.QualifiedName}](../{PageOf(type)})";

    public string Result(ValueUse value) => Linked(_types.Result(value));

    public string Accepted(ParameterModel parameter) => Linked(_types.Parameter(parameter));

    /// <summary>A text in which names of types, and of their members, are links.</summary>
    public string Text(string text) => QuotedName().Replace(text, match =>
        _byShortName.TryGetValue(match.Groups["type"].Value, out TypeModel? type)
            ? $"[{match.Value}](../{PageOf(type)})"
            : match.Value);

    // ListView[korvan.cad.Color] becomes ListView\[[Color](../korvan.cad/Color.md)\].
    private string Linked(string hint)
    {
        string plain = Implementers().Replace(SecondArgument().Replace(hint, ""), "${module}${name}");
        string escaped = plain.Replace("TextSequence", "Sequence[str]").Replace("[", "\\[").Replace("]", "\\]")
            .Replace("|", "\\|");
        return DottedName().Replace(escaped, match => _byPythonName.TryGetValue(match.Value, out TypeModel? type)
            ? To(type)
            : match.Value[(match.Value.LastIndexOf('.') + 1)..]);
    }

    [GeneratedRegex("`(?<type>[A-Z]\\w*)(\\.\\w+)?`")]
    private static partial Regex QuotedName();

    [GeneratedRegex(@"[A-Za-z_]\w*(\.\w+)+")]
    private static partial Regex DottedName();

    // What a view takes, where only implementers of what it gives.
    [GeneratedRegex(@", [\w.]*\b_Implements\w+")]
    private static partial Regex SecondArgument();

    [GeneratedRegex(@"(?<module>(\w+\.)*)_Implements(?<name>\w+)")]
    private static partial Regex Implementers();
}
