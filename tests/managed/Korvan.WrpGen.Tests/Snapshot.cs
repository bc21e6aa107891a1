using System;
using System.IO;
using System.Runtime.CompilerServices;
using Xunit;

namespace Korvan.WrpGen.Tests;

/// <summary>Expected output in files; KORVAN_UPDATE_SNAPSHOTS=1 writes them anew.</summary>
internal static class Snapshot
{
    public static void Matches(string name, string text, [CallerFilePath] string test = "")
    {
        string file = Path.Combine(Path.GetDirectoryName(test)!, "..", "Snapshots", name);
        if (Environment.GetEnvironmentVariable("KORVAN_UPDATE_SNAPSHOTS") == "1")
        {
            File.WriteAllText(file, text);
            return;
        }
        Assert.True(File.Exists(file), $"There is no snapshot {name}; set KORVAN_UPDATE_SNAPSHOTS=1 to write it.");
        Assert.Equal(File.ReadAllText(file), text);
    }

    /// <summary>The block that begins with a line, up to the next line that is not indented under it.</summary>
    public static string Block(string text, string header, string last)
    {
        int start = text.IndexOf(header, StringComparison.Ordinal);
        Assert.True(start >= 0, $"'{header}' was not written.");
        int end = text.IndexOf(last, start, StringComparison.Ordinal);
        return text[start..(end < 0 ? text.Length : end + last.Length)];
    }
}
