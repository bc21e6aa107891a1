using System;
using System.Diagnostics;
using System.IO;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Independent readers of what is rendered. A test that needs one fails aloud where it is missing.</summary>
internal static class Tools
{
    internal static void Require(string program)
    {
        foreach (string folder in (Environment.GetEnvironmentVariable("PATH")
            ?? string.Empty).Split(Path.PathSeparator))
        {
            if (File.Exists(Path.Combine(folder, program)))
            {
                return;
            }
        }

        Assert.Fail($"This test reads its output with the program {program}, which is not installed.");
    }

    internal static string Run(string program, params string[] arguments)
    {
        Require(program);
        var start = new ProcessStartInfo(program) { RedirectStandardOutput = true, RedirectStandardError = true };
        foreach (string argument in arguments)
        {
            start.ArgumentList.Add(argument);
        }

        using Process process = Process.Start(start)!;
        string text = process.StandardOutput.ReadToEnd();
        string error = process.StandardError.ReadToEnd();
        process.WaitForExit();
        Assert.True(process.ExitCode == 0, $"{program} failed: {error}");
        return text;
    }

    internal static string TempFile(string extension) =>
        Path.Combine(Path.GetTempPath(), "korvan-" + Guid.NewGuid().ToString("N") + extension);
}
