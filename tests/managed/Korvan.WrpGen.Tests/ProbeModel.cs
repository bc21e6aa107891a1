using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Reflection;
using Korvan.WrpGen.Emit;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;
using Korvan.WrpGen.Reading;

namespace Korvan.WrpGen.Tests;

/// <summary>The probe library, read once for all tests.</summary>
internal static class ProbeModel
{
    private static readonly Lazy<BindingModel> LazyModel = new(Read);

    public static BindingModel Model => LazyModel.Value;

    public static string AssemblyPath => typeof(Probe.Echo).Assembly.Location;

    public static string RepositoryRoot { get; } = Path.GetFullPath(
        typeof(ProbeModel).Assembly.GetCustomAttributes<AssemblyMetadataAttribute>()
            .First(attribute => attribute.Key == "RepositoryRoot").Value!);

    public static TypeModel Type(string name) => Model.Types.First(type => type.QualifiedName == name);

    public static BindingModel Read() => LibraryReader.Read(
        AssemblyPath, Path.ChangeExtension(AssemblyPath, ".xml"), RootMap.Parse("Korvan.Probe=korvan.probe"),
        "WrpInterop.Korvan.Probe");

    /// <summary>What an emitter writes, file by file.</summary>
    public static SortedDictionary<string, string> Emit(
        Action<BindingModel, OutputFolder> emit, BindingModel? model = null)
    {
        string folder = Directory.CreateTempSubdirectory("korvan-wrpgen-").FullName;
        try
        {
            emit(model ?? Model, new OutputFolder(folder));
            var files = new SortedDictionary<string, string>(StringComparer.Ordinal);
            foreach (string file in Directory.GetFiles(folder, "*", SearchOption.AllDirectories))
            {
                files[Path.GetRelativePath(folder, file)] = File.ReadAllText(file);
            }
            return files;
        }
        finally
        {
            Directory.Delete(folder, recursive: true);
        }
    }
}
