using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit.Docs;

/// <summary>
/// Writes the API reference in Markdown: an index of modules, a folder for each with an index of its types, and a page
/// for each type.
/// </summary>
public static class DocsEmitter
{
    public static void Write(BindingModel model, OutputFolder folder)
    {
        var links = new DocsLinks(model);
        ILookup<TypeModel?, TypeModel> heirs = model.Types.ToLookup(type => type.Base);
        ILookup<TypeModel?, TypeModel> nested = model.Types.ToLookup(type => type.Outer);
        var index = new CodeWriter();
        index.Line($"# {model.RootModule.Name}").Line();
        foreach (ModuleModel module in model.Modules.Where(module => module.Types.Count > 0))
        {
            index.Line($"- [{module.Name}]({module.Name}/index.md): {module.Types.Count} types");
            folder.Write($"{module.Name}/index.md", Index(module, links));
            foreach (TypeModel type in module.Types)
            {
                var page = new TypePage(type, links, [.. heirs[type]], [.. nested[type]]);
                folder.Write(DocsLinks.PageOf(type), page.Write());
            }
        }
        folder.Write("index.md", index.ToString());
        folder.RemoveStale(".md");
    }

    private static string Index(ModuleModel module, DocsLinks links)
    {
        var writer = new CodeWriter();
        writer.Line($"# {module.Name}").Line().Line("All modules: [index](../index.md).").Line();
        foreach ((string title, IEnumerable<TypeModel> types) in Kinds(module).Where(kind => kind.Types.Any()))
        {
            writer.Line($"## {title}").Line().Line("| | |").Line("|---|---|");
            foreach (TypeModel type in types)
            {
                string summary = links.Text(type.Doc.Summary.Split("\n\n")[0]).Replace("|", "\\|");
                writer.Line($"| {DocsLinks.To(type)} | {summary} |");
            }
            writer.Line();
        }
        return writer.ToString();
    }

    private static IEnumerable<(string Title, IEnumerable<TypeModel> Types)> Kinds(ModuleModel module) =>
    [
        ("Classes", module.Types.Where(type => type.Kind is BoundKind.Class or BoundKind.StaticClass)),
        ("Value types", module.Types.Where(type => type.Kind == BoundKind.Struct)),
        ("Interfaces", module.Types.Where(type => type.Kind == BoundKind.Interface)),
        ("Enumerations", module.Types.Where(type => type.Kind == BoundKind.Enum)),
    ];
}
