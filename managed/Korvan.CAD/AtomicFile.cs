using System;
using System.IO;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>
/// Files that appear whole or not at all: written beside their place under a name of their own, then renamed.
/// </summary>
internal static class AtomicFile
{
    internal static void Write(string filePath, bool overWrite, Action<Stream> write)
    {
        ArgumentException.ThrowIfNullOrEmpty(filePath);
        OddFileName.RefuseAsTarget(filePath);
        string target = ResolveLinks(Path.GetFullPath(filePath));
        VerifyTarget(filePath, target, overWrite);
        string beside = $"{target}.{Guid.NewGuid():N}.part";
        try
        {
            using (FileStream stream = new(beside, FileMode.CreateNew, FileAccess.ReadWrite, FileShare.None, 1 << 16))
            {
                KeepMode(target, beside);
                write(stream);
            }

            File.Move(beside, target, overWrite);
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException)
        {
            File.Delete(beside);
            throw new ImageSaveException($"'{filePath}' could not be written: {e.Message}", e);
        }
        catch
        {
            File.Delete(beside);
            throw;
        }
    }

    private static void VerifyTarget(string filePath, string target, bool overWrite)
    {
        if (Directory.Exists(target))
        {
            throw new ImageSaveException($"'{filePath}' is a folder; name a file in it.");
        }

        string? folder = Path.GetDirectoryName(target);
        if (folder is not null && !Directory.Exists(folder))
        {
            throw new ImageSaveException($"'{filePath}' could not be written: the folder '{folder}' does not exist.");
        }

        if (!overWrite && File.Exists(target))
        {
            throw new ImageSaveException($"'{filePath}' exists already; pass overWrite = true to replace it.");
        }
    }

    // A link is kept and the file it leads to is replaced.
    private static string ResolveLinks(string path)
    {
        return File.Exists(path) ? File.ResolveLinkTarget(path, true)?.FullName ?? path : path;
    }

    private static void KeepMode(string target, string beside)
    {
        if (!OperatingSystem.IsWindows() && File.Exists(target))
        {
            File.SetUnixFileMode(beside, File.GetUnixFileMode(target));
        }
    }
}
