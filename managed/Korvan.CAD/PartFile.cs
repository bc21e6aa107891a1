using System;
using System.IO;
using System.Text;

namespace Korvan.CAD;

/// <summary>A file that is being written, under no name or a temporary one.</summary>
internal sealed class PartFile
{
    private const string PartSuffix = ".part";
    private const int UniqueLength = 32;
    private const int BufferSize = 1 << 16;

    private string? _name;

    private PartFile(string target, string shown, string? name, FileStream stream)
    {
        Target = target;
        Shown = shown;
        _name = name;
        Stream = stream;
    }

    /// <summary>Gets the path of the final file.</summary>
    internal string Target { get; }

    /// <summary>Gets that path as the program passed it.</summary>
    internal string Shown { get; }

    internal FileStream Stream { get; }

    internal static PartFile Open(string target, string shown, bool avoidName)
    {
        if (avoidName && PosixFile.OpenUnnamed(Path.GetDirectoryName(target)!) is { } file)
        {
            if (PosixFile.CanName(file))
            {
                return new PartFile(target, shown, null, new FileStream(file, FileAccess.ReadWrite, BufferSize));
            }

            file.Dispose();
        }

        RemoveForgotten(target);
        string name = NewName(target);
        try
        {
            return new PartFile(
                target, shown, name,
                new FileStream(name, FileMode.CreateNew, FileAccess.ReadWrite, FileShare.None, BufferSize));
        }
        catch (Exception e) when (AtomicFile.IsOfTarget(e))
        {
            throw AtomicFile.NotWritten(shown, e.Message.Replace(name, shown, StringComparison.Ordinal));
        }
    }

    /// <summary>Assigns the final name to an unnamed file if it is free, otherwise a temporary name, from which it
    /// is moved.</summary>
    internal void Name(bool overWrite)
    {
        if (_name is not null || PosixFile.TryName(Stream.SafeFileHandle, Target))
        {
            return;
        }

        if (!overWrite)
        {
            throw AtomicFile.ExistsAlready(Shown);
        }

        // The same name each time, so that the next save finds what a process that was killed now leaves.
        PosixFile.Lock(Stream.SafeFileHandle);
        string name = FixedName(Target);
        if (!PosixFile.TryName(Stream.SafeFileHandle, name))
        {
            RemoveUnlocked(name);
            name = PosixFile.TryName(Stream.SafeFileHandle, name) ? name : Named(NewName(Target));
        }

        _name = name;
    }

    private string Named(string name)
    {
        PosixFile.TryName(Stream.SafeFileHandle, name);
        return name;
    }

    internal void MoveIntoPlace(bool overWrite)
    {
        if (_name is not null)
        {
            File.Move(_name, Target, overWrite);
        }
    }

    internal void Remove()
    {
        if (_name is not null)
        {
            File.Delete(_name);
        }
    }

    /// <summary>A message of the system, with the final name in place of the temporary one.</summary>
    internal string WithoutName(string message) =>
        _name is null ? message : message.Replace(_name, Shown, StringComparison.Ordinal);

    private static string NewName(string target) => Part(target, Guid.NewGuid().ToString("N"));

    // A number for the name, so that nobody else's file has it.
    private static string FixedName(string target)
    {
        const ulong offset = 0xCBF29CE484222325, prime = 0x100000001B3; // FNV-1a
        ulong hash = offset;
        foreach (char character in Path.GetFileName(target))
        {
            hash = (hash ^ character) * prime;
        }

        return Part(target, $"{hash:x16}{hash * prime:x16}");
    }

    private static string Part(string target, string unique) => $"{Start(target)}{unique}{PartSuffix}";

    // Names end at a length in bytes, in most file systems.
    private static string Start(string target)
    {
        const int longestName = 255;
        string name = Path.GetFileName(target);
        while (Encoding.UTF8.GetByteCount(name) > longestName - 1 - UniqueLength - PartSuffix.Length)
        {
            name = name[..^1];
        }

        return Path.Combine(Path.GetDirectoryName(target)!, name) + ".";
    }

    // Files that a terminated process has left.
    private static void RemoveForgotten(string target)
    {
        string folder = Path.GetDirectoryName(target)!;
        string start = Path.GetFileName(Start(target));
        foreach (string path in Directory.EnumerateFiles(folder, "*" + PartSuffix))
        {
            string name = Path.GetFileName(path);
            if (name.Length == start.Length + UniqueLength + PartSuffix.Length
                && name.StartsWith(start, StringComparison.Ordinal)
                && Guid.TryParseExact(name.AsSpan(start.Length, UniqueLength), "N", out _))
            {
                RemoveUnlocked(path);
            }
        }
    }

    // A file that is being written is locked.
    private static void RemoveUnlocked(string path)
    {
        try
        {
            using var unused = new FileStream(
                path, FileMode.Open, FileAccess.ReadWrite, FileShare.None, 1, FileOptions.DeleteOnClose);
        }
        catch (Exception e) when (AtomicFile.IsOfTarget(e))
        {
            // Another process is writing it.
        }
    }
}
