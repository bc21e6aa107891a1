using System;
using System.IO;

namespace Korvan.CAD.Tests;

/// <summary>Files of the checkout that tests hold the library against.</summary>
internal static class RepositoryFiles
{
    /// <summary>Gets whether expected output is written anew instead of compared.</summary>
    internal static bool Update => Environment.GetEnvironmentVariable("KORVAN_UPDATE_SNAPSHOTS") == "1";

    internal static string Find(string relative)
    {
        for (DirectoryInfo? at = new(AppContext.BaseDirectory); at is not null; at = at.Parent)
        {
            string candidate = Path.Combine(at.FullName, relative);
            if (File.Exists(candidate) && File.Exists(Path.Combine(at.FullName, "CMakePresets.json")))
            {
                return candidate;
            }
        }

        throw new FileNotFoundException($"{relative} is in no folder above {AppContext.BaseDirectory}.");
    }
}
