using System;
using System.IO;
using Microsoft.Win32.SafeHandles;

namespace Korvan.CAD.Input;

/// <summary>Files that a drawing names. Only regular files in the folder of the drawing or below it are opened; a name
/// that leads elsewhere is tried by its last part alone, and links that lead out of the folder are not
/// followed.</summary>
internal static class FolderFiles
{
    /// <summary>Returns the folder with the files of a drawing; <see langword="null"/> for a drawing that was read from
    /// a device or an open descriptor.</summary>
    internal static string? FolderOf(string drawing)
    {
        string path = Path.GetFullPath(drawing);
        bool isOfSystem = path.StartsWith("/dev/", StringComparison.Ordinal)
            || path.StartsWith("/proc/", StringComparison.Ordinal);
        return isOfSystem ? null : Path.GetDirectoryName(path);
    }

    /// <summary>Returns the path of a file, or <see langword="null"/> if there is none that may be opened.</summary>
    /// <param name="folder">The folder of the drawing.</param>
    /// <param name="name">The name in the drawing, with slashes or backslashes.</param>
    internal static string? Find(string folder, string name)
    {
        string relative = name.Replace('\\', '/');
        if (relative.Contains('\0', StringComparison.Ordinal))
        {
            return null;
        }

        bool leadsOut = relative.StartsWith('/') || relative.Contains(':', StringComparison.Ordinal)
            || Array.Exists(relative.Split('/'), static part => part == "..");
        string bare = relative[(relative.LastIndexOf('/') + 1)..];
        foreach (string candidate in leadsOut ? [bare] : (string[])[relative, bare])
        {
            string path = Path.Combine(folder, candidate);
            if (candidate.Length > 0 && PosixFile.KindOf(path) == PosixFile.Kind.Regular)
            {
                return path;
            }
        }

        return FindIgnoringCase(folder, bare);
    }

    /// <summary>Names come from systems that take upper and lower case as the same.</summary>
    private static string? FindIgnoringCase(string folder, string name)
    {
        const int mostFiles = 10_000;
        try
        {
            int seen = 0;
            foreach (string path in name.Length > 0 ? Directory.EnumerateFiles(folder) : [])
            {
                if (++seen > mostFiles)
                {
                    break;
                }

                if (Path.GetFileName(path).Equals(name, StringComparison.OrdinalIgnoreCase)
                    && PosixFile.KindOf(path) == PosixFile.Kind.Regular)
                {
                    return path;
                }
            }
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException)
        {
            return null;
        }

        return null;
    }

    /// <summary>Reads a file that <see cref="Find"/> has returned. Its length adds to the budget of the call.</summary>
    /// <returns>The bytes; <see langword="null"/> if it cannot be read, or lies elsewhere.</returns>
    internal static byte[]? Read(string folder, string path)
    {
        try
        {
            using SafeFileHandle file = PosixFile.OpenRegular(path);
            string root = PosixFile.RealPath(folder).TrimEnd('/') + "/";
            long length = RandomAccess.GetLength(file);
            if (!PosixFile.PathOf(file).StartsWith(root, StringComparison.Ordinal) || length > Array.MaxLength)
            {
                return null;
            }

            Budget.Current?.AddSource(length);
            Budget.VerifyRoom(length);
            byte[] data = new byte[length];
            int count = RandomAccess.Read(file, data, 0);
            return count == length ? data : null;
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException)
        {
            return null;
        }
    }
}
