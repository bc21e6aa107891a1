using System.Collections.Concurrent;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.Raster.Native;

/// <summary>Checks for a codec's shared library before its first call, so that an error names the missing library and
/// its package.</summary>
internal static class SharedLibrary
{
    private static readonly ConcurrentDictionary<string, bool> Found = new();

    internal static void Require(string file, string package)
    {
        if (!Found.GetOrAdd(file, static name => CarriedLibraries.TryLoad(name, out _)))
        {
            Found.TryRemove(file, out _);
            throw new FrameworkException($"This format needs the shared library {file}, which could not be loaded. "
                + $"On Debian and Ubuntu it comes with the package {package}.");
        }
    }
}
