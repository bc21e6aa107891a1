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

    private static readonly string[] DescriptorFolders = ["/dev/fd/", "/proc/self/fd/"];

    /// <summary>Writes a file.</summary>
    /// <param name="filePath">Its path.</param>
    /// <param name="overWrite">Whether an existing file may be replaced.</param>
    /// <param name="write">Writes the content.</param>
    /// <param name="avoidName">Whether the file has no name until it is complete, if the file system supports
    /// that.</param>
    /// <param name="timeout">How long the reader of a pipe may take, in milliseconds; 0 for no limit.</param>
    internal static void Write(
        string filePath, bool overWrite, Action<Stream> write, bool avoidName = true, int timeout = 0)
    {
        Verify.NotEmpty(filePath);
        UndecodableFileName.RefuseAsTarget(filePath);
        if (filePath.Contains('\0', StringComparison.Ordinal))
        {
            throw NotWritten(filePath, "a NUL is part of no file's name.");
        }

        string target = Path.GetFullPath(filePath);
        PosixFile.Kind kind = PosixFile.KindOf(target);
        if (kind == PosixFile.Kind.Folder)
        {
            throw new ImageSaveException($"'{filePath}' is a folder; name a file in it.");
        }

        if (DescriptorOf(target) is { } descriptor)
        {
            WriteInto(filePath, timeout, write, data => PosixFile.Write(descriptor, data));
        }
        else if (kind is not (PosixFile.Kind.Absent or PosixFile.Kind.Regular))
        {
            WriteInto(filePath, timeout, write, data => WriteSpecial(target, kind, data));
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
    private static void WriteInto(string filePath, int timeout, Action<Stream> write, SpanAction put)
    {
        using MemoryStream output = new();
        write(output);
        using Budget budget = Budget.Begin(null, timeout);
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
                PosixFile.KeepOwnerAndMode(part.Target, part.Stream.SafeFileHandle);
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
        try
        {
            return new FileInfo(path).LinkTarget is null ? path : File.ResolveLinkTarget(path, true)!.FullName;
        }
        catch (IOException e)
        {
            throw NotWritten(path, e.Message);
        }
    }

    internal static bool IsOfTarget(Exception e) => e is IOException or UnauthorizedAccessException;

    // The reason is part of the message: an inner exception would repeat it.
    internal static ImageSaveException NotWritten(string filePath, string why) =>
        new($"'{filePath}' could not be written: {why}");

    internal static ImageSaveException ExistsAlready(string filePath) =>
        new($"'{filePath}' exists already; pass over_write=True to replace it.");

    private delegate void SpanAction(ReadOnlySpan<byte> data);
}
