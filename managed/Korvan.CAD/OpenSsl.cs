using System;
using System.Linq;
using System.Runtime.InteropServices;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>
/// Searches the library that <see cref="System.Security.Cryptography"/> uses before its first use: without it, the
/// runtime terminates the process.
/// </summary>
internal static class OpenSsl
{
    private static readonly string[] Files = ["libssl.so.3", "libssl.so.1.1"];

    private static readonly Lazy<bool> Found = new(() => Files.Any(static file => NativeLibrary.TryLoad(file, out _)));

    internal static void Require()
    {
        if (!Found.Value)
        {
            throw new FrameworkException(
                $"Signatures and sealed watermarks need the shared library {Files[0]}, which could not be loaded. "
                + "On Debian and Ubuntu it comes with the package libssl3.");
        }
    }
}
