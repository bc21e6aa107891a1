using System;
using System.Collections.Generic;
using System.Diagnostics.CodeAnalysis;
using System.IO;
using System.Reflection;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;

namespace Korvan.CAD;

/// <summary>
/// Finds shared libraries: those that lie beside the runtime in an installed package, else those of the system.
/// </summary>
/// <remarks>
/// The names of carried libraries end with a checksum, so that the loader confuses none with a library that another
/// part of the process brought. Folders below the folder of the libraries are searched, too: further packages put
/// theirs there.
/// </remarks>
internal static class CarriedLibraries
{
    private const int ChecksumLength = 8;

    private static readonly string RuntimeFolder = RuntimeEnvironment.GetRuntimeDirectory();

    private static readonly Lazy<Dictionary<string, string>> Files = new(List);

    /// <summary>The folder of a package that has a name, beside the runtime's; it need not exist.</summary>
    internal static string Folder(string name) => Path.GetFullPath(Path.Combine(RuntimeFolder, "..", "..", name));

    /// <summary>Loads a library by the name that it has on systems.</summary>
    internal static bool TryLoad(string name, out nint library) =>
        (Files.Value.TryGetValue(name, out string? file) && NativeLibrary.TryLoad(file, out library))
        || NativeLibrary.TryLoad(name, out library);

    [ModuleInitializer]
    [SuppressMessage("Usage", "CA2255", Justification = "Has to be known before the first native call.")]
    internal static void Register() =>
        NativeLibrary.SetDllImportResolver(typeof(CarriedLibraries).Assembly, Resolve);

    /// <summary>The name of a file without the checksum: libcairo-0123abcd.so.2 is libcairo.so.2.</summary>
    internal static string PlainName(string file)
    {
        int end = file.IndexOf(".so", StringComparison.Ordinal);
        int start = end - ChecksumLength - 1;
        bool isMarked = start > 0 && file[start] == '-'
            && IsHexadecimal(file.AsSpan(start + 1, ChecksumLength));
        return isMarked ? string.Concat(file.AsSpan(0, start), file.AsSpan(end)) : file;
    }

    private static bool IsHexadecimal(ReadOnlySpan<char> text)
    {
        foreach (char digit in text)
        {
            if (!char.IsAsciiHexDigitLower(digit))
            {
                return false;
            }
        }

        return true;
    }

    private static nint Resolve(string name, Assembly assembly, DllImportSearchPath? searchPath) =>
        name != "libc" && Files.Value.TryGetValue(name, out string? file) ? NativeLibrary.Load(file) : 0;

    private static Dictionary<string, string> List()
    {
        Dictionary<string, string> files = [];
        string folder = Folder("libraries");
        if (Directory.Exists(folder))
        {
            foreach (string file in Directory.EnumerateFiles(folder, "*", SearchOption.AllDirectories))
            {
                files[PlainName(Path.GetFileName(file))] = file;
            }
        }

        return files;
    }
}
