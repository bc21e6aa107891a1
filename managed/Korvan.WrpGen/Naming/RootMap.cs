using System;
using System.Linq;

namespace Korvan.WrpGen.Naming;

/// <summary>Where the managed namespaces hang in Python, and what their wrapper classes are called.</summary>
public sealed record RootMap(string Namespace, string Module)
{
    private const int ShortNameLength = 8;

    public static RootMap Parse(string text) => text.Split('=') switch
    {
        [{ Length: > 0 } space, { Length: > 0 } module] => new RootMap(space, module),
        _ => throw new ArgumentException($"--root wants Namespace=module, not '{text}'."),
    };

    public bool Contains(string? space) =>
        space is not null && (space == Namespace || space.StartsWith(Namespace + ".", StringComparison.Ordinal));

    public string ModuleOf(string space) =>
        Module + string.Concat(space[Namespace.Length..]
            .Split('.', StringSplitOptions.RemoveEmptyEntries)
            .Select(component => "." + PythonName.Module(component)));

    /// <summary>The managed namespace that holds the wrapper classes of a namespace.</summary>
    public static string WrapperNamespace(string space) =>
        string.Join('.', space.Split('.').Select(component => "WrpNs_" + component));

    public static string WrapperClass(string simpleName, string managedHash) =>
        $"WrpCs_{simpleName[..Math.Min(simpleName.Length, ShortNameLength)]}_{managedHash}";
}
