using System;
using System.Collections.Generic;
using System.IO;

namespace Korvan.WrpGen.Emit;

/// <summary>
/// A folder of generated files. A file is touched only when its text changes, so that builds stay
/// incremental, and what this run did not write is removed.
/// </summary>
public sealed class OutputFolder(string path)
{
    private readonly HashSet<string> _written = new(StringComparer.Ordinal);

    public int Changed { get; private set; }

    public void Write(string name, string text)
    {
        string file = Path.GetFullPath(Path.Combine(path, name));
        _written.Add(file);
        if (File.Exists(file) && File.ReadAllText(file) == text)
        {
            return;
        }
        Directory.CreateDirectory(Path.GetDirectoryName(file)!);
        File.WriteAllText(file, text);
        Changed++;
    }

    /// <summary>Removes files of these extensions that this run did not write.</summary>
    public void RemoveStale(params ReadOnlySpan<string> extensions)
    {
        foreach (string extension in extensions)
        {
            foreach (string file in Directory.GetFiles(path, "*" + extension, SearchOption.AllDirectories))
            {
                RemoveIfStale(Path.GetFullPath(file));
            }
        }
    }

    private void RemoveIfStale(string file)
    {
        if (!_written.Contains(file))
        {
            File.Delete(file);
            Changed++;
        }
    }
}
