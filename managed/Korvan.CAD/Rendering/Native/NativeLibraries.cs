using Korvan.CAD.DisplayList;

namespace Korvan.CAD.Rendering.Native;

/// <summary>Looks for the shared libraries before the first call, so that a missing one is named with its
/// package.</summary>
internal static class NativeLibraries
{
    private static readonly (string File, string Package)[] Needed =
    [
        (Cairo.Library, "libcairo2"),
        (Fontconfig.Library, "libfontconfig1"),
        (Pango.ObjectLibrary, "libglib2.0-0"),
        (Pango.Library, "libpango-1.0-0"),
        (Pango.CairoLibrary, "libpangocairo-1.0-0"),
        (Pango.FreeTypeLibrary, "libpangoft2-1.0-0"),
    ];

    private static volatile bool _found;

    internal static void Require()
    {
        if (_found)
        {
            return;
        }

        foreach ((string file, string package) in Needed)
        {
            Require(file, package);
        }

        CarriedFonts.Provide();
        _found = true;
    }

    /// <summary>Throws when <paramref name="file"/> cannot be loaded; names the Debian package that brings
    /// it.</summary>
    internal static void Require(string file, string package)
    {
        if (!CarriedLibraries.TryLoad(file, out _))
        {
            throw new RenderException(
                $"Rendering needs the shared library {file}, which could not be loaded. " +
                $"On Debian and Ubuntu it comes with the package {package}.");
        }
    }
}
