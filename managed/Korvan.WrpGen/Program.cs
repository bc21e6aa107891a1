using System;
using System.IO;
using System.Linq;
using Korvan.WrpGen.Emit;
using Korvan.WrpGen.Emit.Cpp;
using Korvan.WrpGen.Emit.CSharp;
using Korvan.WrpGen.Emit.Docs;
using Korvan.WrpGen.Emit.Stubs;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Reading;

namespace Korvan.WrpGen;

internal static class Program
{
    private static int Main(string[] arguments)
    {
        try
        {
            Run(Options.Parse(arguments));
            return 0;
        }
        catch (Exception e) when (e is ArgumentException or IOException)
        {
            Console.Error.WriteLine($"Korvan.WrpGen: {e.Message}");
            return 1;
        }
    }

    private static void Run(Options options)
    {
        BindingModel model = LibraryReader.Read(options.Assemblies, options.Xml, options.Root, options.Interop);
        int changed =
            Write(options.CSharp, folder => CSharpEmitter.Write(model, folder)) +
            Write(options.Cpp, folder => CppEmitter.Write(model, folder)) +
            Write(options.Stubs, folder => StubEmitter.Write(model, folder)) +
            Write(options.Docs, folder => DocsEmitter.Write(model, folder));
        if (options.Report is { } report)
        {
            File.WriteAllLines(report, model.LeftOut.Select(one => $"{one.Member}: {one.Reason}"));
        }
        Console.WriteLine(
            $"{model.Types.Count} types, {model.Elements.Count} element types, " +
            $"{model.LeftOut.Count} declarations left out, {changed} files changed");
    }

    private static int Write(string? path, Action<OutputFolder> emit)
    {
        if (path is null)
        {
            return 0;
        }
        Directory.CreateDirectory(path);
        var folder = new OutputFolder(path);
        emit(folder);
        return folder.Changed;
    }
}
