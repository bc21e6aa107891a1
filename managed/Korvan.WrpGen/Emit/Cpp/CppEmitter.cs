using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Emit.Cpp;

/// <summary>
/// Writes the native half: for each namespace a header and one or more units of constant tables, for
/// all typed collections a unit, and the root file that lists the modules.
/// </summary>
public static class CppEmitter
{
    // A unit of more types would keep one compiler busy while the others wait.
    private const int TypesPerUnit = 150;

    private const string Note =
        "// Made by Korvan.WrpGen. Changes belong into the managed declarations or into the generator.";

    public static void Write(BindingModel model, OutputFolder folder)
    {
        foreach (ModuleModel module in model.Modules)
        {
            folder.Write(FileOf(module) + ".h", Header(module));
            WriteUnits(model, module, folder);
        }
        string generics = GenericsFileOf(model);
        folder.Write(generics + ".h", GenericsHeader(model));
        folder.Write(generics + ".cpp", GenericsUnit(model));
        folder.Write($"PyJ_{model.RootModule.ShortName}.cpp", RootUnit(model));
        folder.RemoveStale(".h", ".cpp");
    }

    private static void WriteUnits(BindingModel model, ModuleModel module, OutputFolder folder)
    {
        TypeModel[][] chunks = [.. module.Types.Chunk(TypesPerUnit)];
        for (int i = 0; i < int.Max(chunks.Length, 1); i++)
        {
            var writer = new CodeWriter();
            writer.Line(Note).Line("#include \"bindings/binding.h\"");
            foreach (string header in HeadersFor(model, module, chunks.ElementAtOrDefault(i) ?? []))
            {
                writer.Line($"#include \"{header}.h\"");
            }
            writer.Line();
            foreach (TypeModel type in chunks.ElementAtOrDefault(i) ?? [])
            {
                WriteType(writer, model, type);
            }
            if (i == 0)
            {
                WriteModule(writer, module);
            }
            folder.Write(FileOf(module) + (i == 0 ? ".cpp" : $"_{i + 1}.cpp"), writer.ToString());
        }
    }

    private static void WriteType(CodeWriter writer, BindingModel model, TypeModel type)
    {
        if (type.Kind == BoundKind.Enum)
        {
            EnumUnitWriter.Write(writer, type);
        }
        else
        {
            new TypeUnitWriter(writer, model, type).Write();
        }
    }

    private static void WriteModule(CodeWriter writer, ModuleModel module)
    {
        string symbol = SymbolOf(module);
        IEnumerable<string> children = module.Children.Select(child => $"&module_{SymbolOf(child)}");
        // An outer type must stand before those that are nested in it.
        TypeModel[] types = [.. module.Types.OrderBy(type => type.QualifiedName, System.StringComparer.Ordinal)];
        IEnumerable<string> classes =
            types.Where(type => type.Kind != BoundKind.Enum).Select(type => $"&class_{type.Symbol}");
        IEnumerable<string> enums =
            types.Where(type => type.Kind == BoundKind.Enum).Select(type => $"&enum_{type.Symbol}");
        WriteList(writer, "ModuleRecord", $"children_{symbol}", children);
        WriteList(writer, "ClassBinding", $"classes_{symbol}", classes);
        WriteList(writer, "EnumBinding", $"enums_{symbol}", enums);
        writer.Line($"ModuleRecord module_{symbol} = {{\"{module.Name}\", \"{module.ShortName}\", " +
            $"children_{symbol}, classes_{symbol}, enums_{symbol}}};");
    }

    private static void WriteList(CodeWriter writer, string type, string name, IEnumerable<string> items)
    {
        writer.Line($"static {type}* const {name}[] = {{");
        writer.Indented(() =>
        {
            foreach (string item in items)
            {
                writer.Line(item + ",");
            }
            writer.Line("nullptr");
        });
        writer.Line("};");
    }

    private static string Header(ModuleModel module)
    {
        var writer = new CodeWriter();
        Guarded(writer, $"KORVAN_{FileOf(module).ToUpperInvariant()}_H", () =>
        {
            foreach (TypeModel type in module.Types)
            {
                writer.Line($"extern HostRecord PyHost_cs_{type.Symbol};");
                writer.Line(type.Kind == BoundKind.Enum
                    ? $"extern EnumBinding enum_{type.Symbol};"
                    : $"extern ClassBinding class_{type.Symbol};");
            }
            writer.Line($"extern ModuleRecord module_{SymbolOf(module)};");
        });
        return writer.ToString();
    }

    private static string GenericsHeader(BindingModel model)
    {
        var writer = new CodeWriter();
        Guarded(writer, $"KORVAN_{GenericsFileOf(model).ToUpperInvariant()}_H", () =>
        {
            foreach (ElementUse use in model.Elements)
            {
                foreach (GenericHost host in GenericHost.For(use))
                {
                    writer.Line($"extern HostRecord PyHost_gn_{host.Kind}_{use.Hash};");
                }
                foreach (string symbol in GenericUnitWriter.Symbols(use))
                {
                    writer.Line($"extern ClassBinding {symbol};");
                }
            }
            writer.Line($"extern const void* const {GenericUnitWriter.AllCallbacks}[];");
        });
        return writer.ToString();
    }

    private static string GenericsUnit(BindingModel model)
    {
        var writer = new CodeWriter();
        writer.Line(Note).Line("#include \"bindings/binding.h\"");
        foreach (ModuleModel module in model.Modules)
        {
            writer.Line($"#include \"{FileOf(module)}.h\"");
        }
        writer.Line($"#include \"{GenericsFileOf(model)}.h\"").Line();
        var generics = new GenericUnitWriter(model, writer);
        foreach (ElementUse use in model.Elements)
        {
            generics.Write(use);
        }
        generics.WriteCallbacks();
        return writer.ToString();
    }

    private static string RootUnit(BindingModel model)
    {
        var writer = new CodeWriter();
        writer.Line(Note).Line("#include \"bindings/binding.h\"");
        writer.Line($"#include \"{FileOf(model.RootModule)}.h\"");
        writer.Line($"#include \"{GenericsFileOf(model)}.h\"").Line();
        IEnumerable<string> generics = model.Elements
            .SelectMany(GenericUnitWriter.Symbols)
            .Select(symbol => "&" + symbol);
        WriteList(writer, "ClassBinding", "generics", generics);
        writer.Line($"extern const BoundTree bound_tree;");
        writer.Line($"const BoundTree bound_tree = {{&module_{SymbolOf(model.RootModule)}, generics, " +
            $"{GenericUnitWriter.AllCallbacks}}};");
        return writer.ToString();
    }

    private static void Guarded(CodeWriter writer, string guard, System.Action body)
    {
        writer.Line(Note).Line($"#ifndef {guard}").Line($"#define {guard}").Line();
        writer.Line("#include \"bindings/tables.h\"").Line();
        body();
        writer.Line().Line("#endif");
    }

    // The namespaces that the unit's members refer to.
    private static IEnumerable<string> HeadersFor(
        BindingModel model, ModuleModel module, IReadOnlyList<TypeModel> types)
    {
        var modules = new SortedSet<string>(module.Children.Select(FileOf), System.StringComparer.Ordinal);
        modules.Add(FileOf(module));
        modules.Add(GenericsFileOf(model));
        foreach (TypeModel referenced in types.SelectMany(TypeReferences.Of))
        {
            modules.Add(FileOf(referenced.Module));
        }
        return modules;
    }

    private static string FileOf(ModuleModel module) => FileOf(module.Name);

    private static string FileOf(string module) => "PyM_" + module.Replace('.', '_');

    private static string GenericsFileOf(BindingModel model) => $"PyG_{model.RootModule.ShortName}";

    private static string SymbolOf(ModuleModel module) => $"{TypeHash.Of(module.Name)}_{module.ShortName}";
}
