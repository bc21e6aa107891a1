using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text.RegularExpressions;
using Korvan.WrpGen.Emit;
using Korvan.WrpGen.Emit.Cpp;
using Korvan.WrpGen.Emit.CSharp;
using Korvan.WrpGen.Emit.Docs;
using Korvan.WrpGen.Emit.Stubs;
using Korvan.WrpGen.Model;
using Xunit;

namespace Korvan.WrpGen.Tests.Emit;

public partial class EmitterTests
{
    [Theory]
    [InlineData("Shapes")]
    [InlineData("Triple")]
    [InlineData("Closable")]
    public void WrapperClasses(string type)
    {
        string wrapper = ProbeModel.Type(type).WrapperClass;
        string text = ProbeModel.Emit(CSharpEmitter.Write)["WrpNs_Korvan.Probe.cs"];
        Snapshot.Matches($"{type}.cs.txt", Snapshot.Block(text, $"public static unsafe class {wrapper}", "\n}\n"));
    }

    [Theory]
    [InlineData("Mixed")]
    [InlineData("Settings")]
    [InlineData("Choice")]
    public void NativeTables(string type)
    {
        string text = ProbeModel.Emit(CppEmitter.Write)["PyM_korvan_probe.cpp"];
        string header = $"// Korvan.Probe.{type}\n";
        int start = text.IndexOf(header, System.StringComparison.Ordinal);
        int end = text.IndexOf("\n\n", start, System.StringComparison.Ordinal);
        Snapshot.Matches($"{type}.cpp.txt", text[start..end] + "\n");
    }

    [Fact]
    public void StubsOfANamespace()
    {
        SortedDictionary<string, string> stubs = ProbeModel.Emit(StubEmitter.Write);
        Assert.Equal(
            [
                "korvan/probe/__init__.pyi", "korvan/probe/_typing.pyi", "korvan/probe/inner/__init__.pyi",
                "korvan/probe/inner/deep/__init__.pyi", "korvan/probe/inner/import/__init__.pyi",
            ],
            stubs.Keys);
        Snapshot.Matches("inner.pyi.txt", stubs["korvan/probe/inner/__init__.pyi"]);
    }

    [Theory]
    [InlineData("Mixed")]
    [InlineData("NumberList")]
    [InlineData("IShape")]
    [InlineData("BoxRow")]
    [InlineData("Cube")]
    [InlineData("Box")]
    public void StubsOfTypes(string type)
    {
        string text = ProbeModel.Emit(StubEmitter.Write)["korvan/probe/__init__.pyi"];
        Snapshot.Matches($"{type}.pyi.txt", Snapshot.Block(text, $"class {type}(", "\n    ...\n"));
    }

    [Fact]
    public void ApiPages()
    {
        SortedDictionary<string, string> pages = ProbeModel.Emit(DocsEmitter.Write);
        Snapshot.Matches("Holder.md.txt", pages["korvan.probe.inner/Holder.md"]);
        Snapshot.Matches("Box.md.txt", pages["korvan.probe/Box.md"]);
        foreach ((string page, string text) in pages)
        {
            string folder = "/" + Path.GetDirectoryName(page);
            Assert.All(LinkTarget().Matches(text).Select(match => match.Groups[1].Value), target => Assert.True(
                pages.ContainsKey(Path.GetRelativePath("/", Path.GetFullPath(target, folder))),
                $"{page} leads to {target}, which is not there"));
        }
    }

    [GeneratedRegex(@"\]\(([^#)]+)\)")]
    private static partial Regex LinkTarget();

    [Fact]
    public void TwoRunsWriteTheSame()
    {
        BindingModel again = ProbeModel.Read();
        Assert.Equal(ProbeModel.Emit(CSharpEmitter.Write), ProbeModel.Emit(CSharpEmitter.Write, again));
        Assert.Equal(ProbeModel.Emit(CppEmitter.Write), ProbeModel.Emit(CppEmitter.Write, again));
        Assert.Equal(ProbeModel.Emit(StubEmitter.Write), ProbeModel.Emit(StubEmitter.Write, again));
    }

    [Fact]
    public void OnlyWhatChangedIsWrittenAndWhatIsStaleGoes()
    {
        string folder = Directory.CreateTempSubdirectory("korvan-wrpgen-").FullName;
        try
        {
            string stale = Path.Combine(folder, "PyM_gone.cpp");
            File.WriteAllText(stale, "");
            var first = new OutputFolder(folder);
            CppEmitter.Write(ProbeModel.Model, first);
            var second = new OutputFolder(folder);
            CppEmitter.Write(ProbeModel.Model, second);
            Assert.True(first.Changed > 1);
            Assert.Equal(0, second.Changed);
            Assert.False(File.Exists(stale));
        }
        finally
        {
            Directory.Delete(folder, recursive: true);
        }
    }
}
