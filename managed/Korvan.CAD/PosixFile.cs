using System;
using System.IO;
using System.Runtime.InteropServices;
using Microsoft.Win32.SafeHandles;

namespace Korvan.CAD;

/// <summary>What the system offers for files and .NET does not: kinds of files, files without a name, writing to a
/// descriptor that is open already. Failures are an <see cref="IOException"/> with the system's words.</summary>
internal static unsafe partial class PosixFile
{
    private const int CurrentFolder = -100; // AT_FDCWD
    private const int FollowLink = 0x400; // AT_SYMLINK_FOLLOW
    private const int WriteOnly = 1;
    private const int ReadWrite = 2;
    private const int NoTerminal = 0x100; // O_NOCTTY
    private const int CloseOnExec = 0x80000;
    private const int Unnamed = 0x410000; // O_TMPFILE
    private const int Interrupted = 4; // EINTR
    private const uint ReadableByAll = 0x1B6; // 0666, less the process's mask

    // struct statx: its beginning is the same on all architectures.
    private const int StatusLength = 256;
    private const int ModeOffset = 28;
    private const uint KindRequested = 1; // STATX_TYPE
    private const int KindMask = 0xF000;

    /// <summary>Gets the type of a file; symbolic links are followed.</summary>
    internal enum Kind
    {
        Absent = 0,
        Fifo = 0x1000,
        CharacterDevice = 0x2000,
        Folder = 0x4000,
        BlockDevice = 0x6000,
        Regular = 0x8000,
        Socket = 0xC000,
    }

    internal static Kind KindOf(string path)
    {
        byte* status = stackalloc byte[StatusLength];
        return StatX(CurrentFolder, path, 0, KindRequested, status) == 0
            ? (Kind)(*(ushort*)(status + ModeOffset) & KindMask)
            : Kind.Absent;
    }

    /// <summary>Opens a file that has no name yet, so that nothing is left of it when the process ends; null where the
    /// file system has none.</summary>
    internal static SafeFileHandle? OpenUnnamed(string folder)
    {
        int file = Open(folder, Unnamed | ReadWrite | CloseOnExec, ReadableByAll);
        return file < 0 ? null : new SafeFileHandle(file, true);
    }

    /// <summary>Gives a file without a name one that is free.</summary>
    /// <returns>Whether it was free.</returns>
    internal static bool TryName(SafeFileHandle file, string path)
    {
        const int Exists = 17;
        string source = DescriptorPath(file);
        if (LinkAt(CurrentFolder, source, CurrentFolder, path, FollowLink) == 0)
        {
            return true;
        }

        int error = Marshal.GetLastPInvokeError();
        return error == Exists ? false : throw Failure(error);
    }

    /// <summary>Whether <see cref="TryName"/> finds what it needs.</summary>
    internal static bool CanName(SafeFileHandle file) => KindOf(DescriptorPath(file)) == Kind.Regular;

    /// <summary>Opens what is there for writing: a device, or a FIFO when it gets a reader.</summary>
    internal static SafeFileHandle OpenToWrite(string path)
    {
        int file = Open(path, WriteOnly | NoTerminal | CloseOnExec, 0);
        return file < 0 ? throw Failure(Marshal.GetLastPInvokeError()) : new SafeFileHandle(file, true);
    }

    /// <summary>Writes at the descriptor's own place, which goes on by as much.</summary>
    internal static void Write(int descriptor, ReadOnlySpan<byte> data)
    {
        fixed (byte* start = data)
        {
            for (nint written = 0; written < data.Length;)
            {
                nint count = Write(descriptor, start + written, data.Length - written);
                if (count < 0 && Marshal.GetLastPInvokeError() is not Interrupted and int error)
                {
                    throw Failure(error);
                }

                written += Math.Max(count, 0);
            }
        }
    }

    private static string DescriptorPath(SafeFileHandle file) => $"/proc/self/fd/{file.DangerousGetHandle()}";

    private static IOException Failure(int error) => new(Marshal.GetPInvokeErrorMessage(error));

    [LibraryImport("libc", EntryPoint = "statx", StringMarshalling = StringMarshalling.Utf8)]
    private static partial int StatX(int folder, string path, int flags, uint mask, byte* status);

    [LibraryImport("libc", EntryPoint = "open", StringMarshalling = StringMarshalling.Utf8, SetLastError = true)]
    private static partial int Open(string path, int flags, uint mode);

    [LibraryImport("libc", EntryPoint = "linkat", StringMarshalling = StringMarshalling.Utf8, SetLastError = true)]
    private static partial int LinkAt(int fromFolder, string from, int toFolder, string to, int flags);

    [LibraryImport("libc", EntryPoint = "write", SetLastError = true)]
    private static partial nint Write(int descriptor, byte* data, nint count);
}
