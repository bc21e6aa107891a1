using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Emit.Stubs;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit.Docs;

/// <summary>Writes the API reference: a Markdown page for each namespace module, and an index.</summary>
public static class DocsEmitter
{
    public static void Write(BindingModel model, OutputFolder folder)
    {
        ModuleModel[] modules = [.. model.Modules.Where(module => module.Types.Count > 0)];
        var index = new CodeWriter();
        index.Line($"# {model.RootModule.Name}").Line();
        foreach (ModuleModel module in modules)
        {
            index.Line($"- [{module.Name}]({module.Name}.md): {module.Types.Count} types");
            folder.Write(module.Name + ".md", Page(module));
        }
        folder.Write("index.md", index.ToString());
        folder.RemoveStale(".md");
    }

    private static string Page(ModuleModel module)
    {
        var writer = new CodeWriter();
        writer.Line($"# {module.Name}").Line();
        foreach (TypeModel type in module.Types)
        {
            writer.Line($"## {type.QualifiedName}").Line();
            writer.Line($"{Describe(type)}{(type.Doc.Summary.Length > 0 ? " " + type.Doc.Summary : "")}").Line();
            if (type.Kind == BoundKind.Enum)
            {
                WriteMembers(writer, type);
            }
            else
            {
                WriteType(writer, type);
            }
        }
        return writer.ToString();
    }

    private static string Describe(TypeModel type) => type.Kind switch
    {
        BoundKind.Enum => type.IsIntegerEnum ? "`IntEnum`." : "`IntFlag`.",
        BoundKind.Interface => "Interface.",
        BoundKind.Struct => "Value type.",
        BoundKind.StaticClass => "Functions and values; no instances.",
        _ when type.Base is { } bound => $"Class over `{bound.PythonName}`.",
        _ => "Class.",
    };

    private static void WriteMembers(CodeWriter writer, TypeModel type)
    {
        writer.Line("| Member | Value | |").Line("|---|---|---|");
        foreach (EnumMemberModel member in type.EnumMembers)
        {
            writer.Line($"| `{member.PythonName}` | {member.Bits} | {Cell(member.Doc.Summary)} |");
        }
        writer.Line();
    }

    private static void WriteType(CodeWriter writer, TypeModel type)
    {
        var types = new PythonTypes(type.Module, new HashSet<string>());
        MethodModel[] methods =
        [
            .. type.Constructors,
            .. MethodGroup.Of(type).SelectMany(group => group.Legs),
        ];
        PropertyModel[] properties = [.. MethodGroup.PropertiesOf(type), .. type.StaticProperties];
        if (properties.Length > 0)
        {
            writer.Line("| Property | Type | |").Line("|---|---|---|");
            foreach (PropertyModel property in properties)
            {
                string access = property.CanWrite ? "" : "Read-only. ";
                string hint = types.Result(property.Value).Replace("|", "\\|");
                writer.Line($"| `{property.PythonName}` | `{hint}` | {access}{Cell(property.Doc.Summary)} |");
            }
            writer.Line();
        }
        foreach (MethodModel method in methods)
        {
            WriteMethod(writer, types, method);
        }
    }

    private static void WriteMethod(CodeWriter writer, PythonTypes types, MethodModel method)
    {
        string parameters = string.Join(
            ", ", method.Parameters.Select(parameter => $"{parameter.PythonName}: {types.Parameter(parameter)}"));
        string result = method.IsConstructor ? "" : $" -> {types.Result(method.Result)}";
        string form = method.IsStatic ? "static " : "";
        string summary = method.Doc.Summary.Replace("\n", " ");
        writer.Line($"- `{form}{method.PythonName}({parameters}){result}` {summary}".TrimEnd());
        foreach ((string name, string text) in method.Doc.Parameters)
        {
            writer.Line($"  - `{name}`: {text}");
        }
        if (method.Doc.Returns.Length > 0)
        {
            writer.Line($"  - returns {method.Doc.Returns}");
        }
        writer.Line();
    }

    private static string Cell(string text) => text.Replace("\n", " ").Replace("|", "\\|");
}
