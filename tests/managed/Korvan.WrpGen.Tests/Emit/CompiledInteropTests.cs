using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices;
using Korvan.WrpGen.Emit;
using Korvan.WrpGen.Emit.CSharp;
using Korvan.WrpGen.Model;
using Microsoft.CodeAnalysis;
using Microsoft.CodeAnalysis.CSharp;
using Xunit;

namespace Korvan.WrpGen.Tests.Emit;

/// <summary>Compiles the probe's whole interop assembly and looks at what it exports.</summary>
public class CompiledInteropTests
{
    private static readonly Lazy<Assembly> LazyInterop = new(Compile);

    // What a native caller and a managed function agree on without any conversion.
    private static readonly HashSet<Type> WordTypes =
    [
        typeof(void), typeof(byte), typeof(sbyte), typeof(short), typeof(ushort), typeof(int), typeof(uint),
        typeof(long), typeof(ulong), typeof(nint), typeof(nuint), typeof(float), typeof(double),
    ];

    [Fact]
    public void EveryExportedSignatureIsBlittable()
    {
        MethodInfo[] exported = [.. Exported()];
        Assert.True(exported.Length > 500);
        Assert.All(exported, method =>
        {
            string name = $"{method.DeclaringType}.{method.Name}";
            Assert.True(IsBlittable(method.ReturnType), $"{name} returns {method.ReturnType}");
            Assert.All(method.GetParameters(), parameter =>
                Assert.True(IsBlittable(parameter.ParameterType), $"{name}({parameter})"));
        });
    }

    [Fact]
    public void EveryExportedNameIsUniqueInATopLevelClass()
    {
        Assert.All(Exported().GroupBy(method => method.DeclaringType!), type =>
        {
            Assert.False(type.Key.IsNested);
            Assert.Equal(type.Count(), type.Select(method => method.Name).Distinct().Count());
        });
    }

    [Fact]
    public void EveryDelegateThatTheNativeTablesNameExists()
    {
        Assert.All(ProbeModel.Model.Types, type => AssertExports(
            $"{type.WrapperNamespace}.{type.WrapperClass}", type.Delegates));
        foreach (ElementUse use in ProbeModel.Model.Elements)
        {
            Assert.All(GenericHost.For(use), host => AssertExports(
                $"Korvan.WrpGen.Generic.{host.ClassPrefix}_{use.Hash}", host.Delegates));
        }
    }

    [Theory]
    [InlineData("ExchangeHost", "GetTypeName SetExceptionCallback SetCatchAndClearErrorCallback " +
        "SetU16StrBuilderCallback SetPyUnraisableStrBuilderCallback SetPyStrBuilderCallback " +
        "SetPyBytesBuilderCallback SetPyObjApiCallbacks SetPyStaticCallbacks SetPyGenericCallbacks FreePendingArgs " +
        "FreeInstance InitServices " +
        "BoxStcTarget")]
    [InlineData("ObjectHost", "ToStringOfObj ToStringOfStc GetHashOfObj GetHashOfStc IsEqualsOfObj IsEqualsOfStc " +
        "IsTypeOf GetTypeName GetObjType GetStcType Dispose")]
    [InlineData("SiApiStream", "CanRead CanSeek CanWrite Length Position Close Flush Read Seek SetLength Write " +
        "btp_IsAssignable btp_TypeOf btp_CastTo btp_ReInterpretObj btp_CastAs")]
    public void HandWrittenClassesAreComplete(string type, string names) =>
        AssertExports("Korvan.WrpGen.Interop." + type, names.Split(' '));

    private static void AssertExports(string type, IEnumerable<string> names)
    {
        Type wrapper = LazyInterop.Value.GetType(type, throwOnError: true)!;
        IEnumerable<string> exported = wrapper.GetMethods(BindingFlags.Public | BindingFlags.Static)
            .Where(IsExported).Select(method => method.Name);
        Assert.Empty(names.Except(exported));
    }

    private static IEnumerable<MethodInfo> Exported() => LazyInterop.Value.GetTypes()
        .SelectMany(type => type.GetMethods(BindingFlags.Public | BindingFlags.NonPublic | BindingFlags.Static))
        .Where(IsExported);

    private static bool IsExported(MethodInfo method) =>
        method.GetCustomAttribute<UnmanagedCallersOnlyAttribute>() is not null;

    // Structs of two words return in registers, and have no reference in them.
    private static bool IsBlittable(Type type) =>
        WordTypes.Contains(type) || type.IsPointer ||
        (type.IsValueType && !type.IsPrimitive && !type.IsEnum && type
            .GetFields(BindingFlags.Instance | BindingFlags.Public | BindingFlags.NonPublic)
            .All(field => IsBlittable(field.FieldType)));

    private static Assembly Compile()
    {
        string managed = Path.Combine(ProbeModel.RepositoryRoot, "managed");
        string runtime = Path.Combine(managed, "WrpInterop.Korvan.CAD", "Runtime");
        IEnumerable<string> sources = Directory.GetFiles(runtime, "*.cs", SearchOption.AllDirectories)
            .Append(Path.Combine(managed, "Korvan.WrpGen", "Naming", "PythonName.cs"))
            .Order(StringComparer.Ordinal).Select(File.ReadAllText)
            .Concat(ProbeModel.Emit(CSharpEmitter.Write).Values);
        var parsing = new CSharpParseOptions(LanguageVersion.Preview);
        string framework = Path.GetDirectoryName(typeof(object).Assembly.Location)!;
        IEnumerable<string> references = Directory.GetFiles(framework, "System*.dll")
            .Append(Path.Combine(framework, "netstandard.dll")).Append(ProbeModel.AssemblyPath);
        var compilation = CSharpCompilation.Create(
            "WrpInterop.Korvan.Probe",
            sources.Select(source => CSharpSyntaxTree.ParseText(source, parsing)),
            references.Where(IsManaged).Select(path => MetadataReference.CreateFromFile(path)),
            new CSharpCompilationOptions(
                OutputKind.DynamicallyLinkedLibrary, allowUnsafe: true,
                nullableContextOptions: NullableContextOptions.Enable));
        using var image = new MemoryStream();
        var result = compilation.Emit(image);
        Assert.Empty(result.Diagnostics.Where(diagnostic => diagnostic.Severity >= DiagnosticSeverity.Warning));
        return Assembly.Load(image.ToArray());
    }

    private static bool IsManaged(string path)
    {
        using FileStream file = File.OpenRead(path);
        using var reader = new System.Reflection.PortableExecutable.PEReader(file);
        return reader.HasMetadata;
    }
}
