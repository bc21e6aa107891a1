using System;
using System.Linq;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>
/// Searches the library that <see cref="System.Security.Cryptography"/> uses before its first use: without it, the
/// runtime terminates the process.
/// </summary>
internal static class OpenSsl
{
    /// <summary>The name by which the runtime of an installed package asks for the library beside it.</summary>
    private const string CarriedName = "korvanssl.3";

    private static readonly string[] Files = [CarriedName, "libssl.so.3", "libssl.so.1.1"];

    private static readonly Lazy<bool> Found =
        new(static () => Files.Any(static file => CarriedLibraries.TryLoad(file, out _)));

    internal static void Require()
    {
        if (!Found.Value)
        {
            throw new FrameworkException(
                "Signatures and sealed watermarks need the shared library libssl.so.3, which could not be loaded. "
                + "On Debian and Ubuntu it comes with the package libssl3.");
        }
    }
}
