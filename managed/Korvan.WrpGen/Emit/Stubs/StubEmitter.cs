using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Emit.Stubs;

/// <summary>Writes a stub file for each namespace module.</summary>
public static class StubEmitter
{
    private const string Note =
        "# Made by Korvan.WrpGen. Changes belong into the managed declarations or into the generator.";

    public static void Write(BindingModel model, OutputFolder folder)
    {
        foreach (ModuleModel module in model.Modules)
        {
            string own = module == model.RootModule ? Resource("_root.pyi") : "";
            folder.Write(PathOf(module.Name) + "/__init__.pyi", Module(module, own));
        }
        folder.Write(PathOf(model.RootModule.Name) + "/_typing.pyi", $"{Note}\n{Resource("_typing.pyi")}");
        folder.RemoveStale(".pyi");
    }

    private static string PathOf(string module) => module.Replace('.', '/');

    private static string Module(ModuleModel module, string own)
    {
        var body = new CodeWriter();
        var imports = new SortedSet<string>(StringComparer.Ordinal);
        ILookup<TypeModel?, TypeModel> nested = module.Types.ToLookup(type => type.Outer);
        foreach (TypeModel type in nested[null])
        {
            StubTypeWriter.Write(body, type, nested, imports);
        }
        var header = new CodeWriter();
        header.Line(Note);
        header.Line("import builtins").Line("import collections.abc").Line("import contextlib").Line("import datetime");
        header.Line("import decimal").Line("import enum").Line("import typing").Line("import uuid").Line();
        foreach (string import in imports.Where(name => name != module.Name))
        {
            header.Line($"import {import}");
        }
        foreach (ModuleModel child in module.Children.Where(child => !PythonName.IsKeyword(child.ShortName)))
        {
            header.Line($"from . import {child.ShortName} as {child.ShortName}");
        }
        return header.Line() + own + body.ToString();
    }

    private static string Resource(string name)
    {
        using Stream resource = typeof(StubEmitter).Assembly.GetManifestResourceStream(name)!;
        using var reader = new StreamReader(resource);
        return reader.ReadToEnd();
    }
}
