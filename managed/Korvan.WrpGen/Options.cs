using System;
using System.Collections.Generic;
using System.IO;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen;

/// <summary>The command line.</summary>
public sealed class Options
{
    private readonly Dictionary<string, string> _values = [];

    /// <summary>The assemblies to bind, separated as paths are. Those behind the first may build on it.</summary>
    public string[] Assemblies => Required("assembly").Split(Path.PathSeparator);

    /// <summary>The documentation of the first assembly; null for the file beside it.</summary>
    public string? Xml => Optional("xml");

    public RootMap Root => RootMap.Parse(Required("root"));

    public string Interop => Required("interop");

    public string? Cpp => Optional("cpp");

    public string? CSharp => Optional("csharp");

    public string? Stubs => Optional("stubs");

    public string? Docs => Optional("docs");

    public string? Report => Optional("report");

    public static Options Parse(string[] arguments)
    {
        string[] known = ["assembly", "xml", "root", "interop", "cpp", "csharp", "stubs", "docs", "report"];
        var options = new Options();
        for (int i = 0; i < arguments.Length; i += 2)
        {
            string name = arguments[i].TrimStart('-');
            if (Array.IndexOf(known, name) < 0 || i + 1 == arguments.Length)
            {
                throw new ArgumentException(
                    $"'{arguments[i]}' is no option with a value; known are --{string.Join(", --", known)}.");
            }
            options._values[name] = arguments[i + 1];
        }
        return options;
    }

    private string? Optional(string name) => _values.GetValueOrDefault(name);

    private string Required(string name) =>
        Optional(name) ?? throw new ArgumentException($"--{name} is missing.");
}
