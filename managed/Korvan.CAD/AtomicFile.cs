using System;
using System.Globalization;
using System.IO;
using System.Net.Sockets;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Microsoft.Win32.SafeHandles;

namespace Korvan.CAD;

/// <summary>
/// Files that appear complete or not at all: they are written without a name, or under a temporary name in the same
/// folder, then moved into place. What is not a regular file is never replaced: complete output is written into it.
/// </summary>
internal static class AtomicFile
{
    private const string PartSuffix = ".part";
    private const int BufferSize = 1 << 16;

    private static readonly string[] DescriptorFolders = ["/dev/fd/", "/proc/self/fd/"];

    /// <summary>Writes a file.</summary>
    /// <param name="filePath">Its path.</param>
    /// <param name="overWrite">Whether an existing file may be replaced.</param>
    /// <param name="write">Writes the content.</param>
    /// <param name="avoidName">Whether the file has no name until it is complete, if the file system supports
    /// that.</param>
    internal static void Write(string filePath, bool overWrite, Action<Stream> write, bool avoidName = true)
    {
        Verify.NotEmpty(filePath);
        UndecodableFileName.RefuseAsTarget(filePath);
        string target = Path.GetFullPath(filePath);
        PosixFile.Kind kind = PosixFile.KindOf(target);
        if (kind == PosixFile.Kind.Folder)
        {
            throw new ImageSaveException($"'{filePath}' is a folder; name a file in it.");
        }

        if (DescriptorOf(target) is { } descriptor)
        {
            WriteInto(filePath, write, data => PosixFile.Write(descriptor, data));
        }
        else if (kind is not (PosixFile.Kind.Absent or PosixFile.Kind.Regular))
        {
            WriteInto(filePath, write, data => WriteSpecial(target, kind, data));
        }
        else
        {
            string file = ResolveLinks(target);
            VerifyPlace(filePath, file, overWrite);
            WriteWhole(PartFile.Open(file, filePath, avoidName), overWrite, write);
        }
    }

    private static void VerifyPlace(string filePath, string target, bool overWrite)
    {
        string? folder = Path.GetDirectoryName(target);
        if (folder is not null && !Directory.Exists(folder))
        {
            throw new ImageSaveException($"'{filePath}' could not be written: the folder '{folder}' does not exist.");
        }

        if (!overWrite && File.Exists(target))
        {
            throw ExistsAlready(filePath);
        }
    }

    // The output is complete before its first byte is written to where it cannot be undone.
    private static void WriteInto(string filePath, Action<Stream> write, SpanAction put)
    {
        using MemoryStream output = new();
        write(output);
        try
        {
            put(output.GetBuffer().AsSpan(0, (int)output.Length));
        }
        catch (Exception e) when (IsOfTarget(e) || e is SocketException)
        {
            throw NotWritten(filePath, e.Message);
        }
    }

    private static void WriteSpecial(string target, PosixFile.Kind kind, ReadOnlySpan<byte> data)
    {
        if (kind == PosixFile.Kind.Socket)
        {
            using var socket = new Socket(AddressFamily.Unix, SocketType.Stream, ProtocolType.Unspecified);
            socket.Connect(new UnixDomainSocketEndPoint(target));
            using var connection = new NetworkStream(socket);
            connection.Write(data);
            return;
        }

        using SafeFileHandle file = PosixFile.OpenToWrite(target);
        PosixFile.Write((int)file.DangerousGetHandle(), data);
    }

    private static void WriteWhole(PartFile part, bool overWrite, Action<Stream> write)
    {
        try
        {
            using (part.Stream)
            {
                KeepMode(part.Target, part.Stream.SafeFileHandle);
                write(part.Stream);
                part.Stream.Flush();
                part.Name(overWrite);
            }

            part.MoveIntoPlace(overWrite);
        }
        catch (Exception e) when (IsOfTarget(e))
        {
            part.Remove();
            throw NotWritten(part.Shown, part.WithoutName(e.Message));
        }
        catch
        {
            part.Remove();
            throw;
        }
    }

    // Standard streams and open files get the output at their current position.
    private static int? DescriptorOf(string path)
    {
        for (int links = 0; links < 8; links++)
        {
            foreach (string folder in DescriptorFolders)
            {
                if (path.StartsWith(folder, StringComparison.Ordinal)
                    && int.TryParse(
                        path.AsSpan(folder.Length), NumberStyles.None, CultureInfo.InvariantCulture, out int number))
                {
                    return number;
                }
            }

            string? next = new FileInfo(path).LinkTarget;
            if (next is null)
            {
                return null;
            }

            path = Path.GetFullPath(next, Path.GetDirectoryName(path)!);
        }

        return null;
    }

    // A link is kept, and its target is replaced.
    private static string ResolveLinks(string path)
    {
        return new FileInfo(path).LinkTarget is null ? path : File.ResolveLinkTarget(path, true)!.FullName;
    }

    private static void KeepMode(string target, SafeFileHandle part)
    {
        if (!OperatingSystem.IsWindows() && File.Exists(target))
        {
            File.SetUnixFileMode(part, File.GetUnixFileMode(target));
        }
    }

    private static bool IsOfTarget(Exception e) => e is IOException or UnauthorizedAccessException;

    // The reason is part of the message: an inner exception would repeat it.
    private static ImageSaveException NotWritten(string filePath, string why) =>
        new($"'{filePath}' could not be written: {why}");

    private static ImageSaveException ExistsAlready(string filePath) =>
        new($"'{filePath}' exists already; pass over_write=True to replace it.");

    private delegate void SpanAction(ReadOnlySpan<byte> data);

    /// <summary>A file that is being written.</summary>
    private sealed class PartFile
    {
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
            catch (Exception e) when (IsOfTarget(e))
            {
                throw NotWritten(shown, e.Message.Replace(name, shown, StringComparison.Ordinal));
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
                throw ExistsAlready(Shown);
            }

            string name = NewName(Target);
            PosixFile.TryName(Stream.SafeFileHandle, name);
            _name = name;
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

        private static string NewName(string target) => $"{target}.{Guid.NewGuid():N}{PartSuffix}";

        // Files that a terminated process has left. A file that is being written is locked.
        private static void RemoveForgotten(string target)
        {
            const int uniqueLength = 32;
            string folder = Path.GetDirectoryName(target)!;
            string start = Path.GetFileName(target) + ".";
            foreach (string path in Directory.EnumerateFiles(folder, "*" + PartSuffix))
            {
                string name = Path.GetFileName(path);
                if (name.Length != start.Length + uniqueLength + PartSuffix.Length
                    || !name.StartsWith(start, StringComparison.Ordinal)
                    || !Guid.TryParseExact(name.AsSpan(start.Length, uniqueLength), "N", out _))
                {
                    continue;
                }

                try
                {
                    using var unused = new FileStream(path, FileMode.Open, FileAccess.ReadWrite, FileShare.None, 1,
                        FileOptions.DeleteOnClose);
                }
                catch (Exception e) when (IsOfTarget(e))
                {
                    // Another process is writing it.
                }
            }
        }
    }
}
