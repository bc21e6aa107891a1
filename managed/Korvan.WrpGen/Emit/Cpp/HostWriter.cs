using System.Collections.Generic;
using System.Linq;

namespace Korvan.WrpGen.Emit.Cpp;

/// <summary>Writes a host record: the delegates of one managed class, in the order of binding.</summary>
internal static class HostWriter
{
    private const int NamesPerLine = 4;

    public static void Write(CodeWriter writer, string name, string managedClass, IEnumerable<string> delegates)
    {
        string[] names = [.. delegates];
        string symbol = name["PyHost_".Length..];
        writer.Line($"static void* slots_{symbol}[{names.Length}];");
        writer.Line($"static constexpr char delegates_{symbol}[] =");
        string[][] lines = [.. names.Chunk(NamesPerLine)];
        writer.Indented(() =>
        {
            for (int i = 0; i < lines.Length; i++)
            {
                string text = string.Join(' ', lines[i].Select(one => $"\"{one}\\0\""));
                writer.Line(i == lines.Length - 1 ? text + ";" : text);
            }
        });
        writer.Line($"constinit HostRecord {name} = {{");
        writer.Indented(() => writer.Line($"\"{managedClass}\",")
            .Line($"delegates_{symbol}, slots_{symbol}, {names.Length}}};"));
    }
}
