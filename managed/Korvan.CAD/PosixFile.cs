using System;
using System.IO;
using System.Runtime.InteropServices;
using System.Threading;
using Microsoft.Win32.SafeHandles;

namespace Korvan.CAD;

/// <summary>System calls for files that .NET lacks: kinds of files, files without a name, writing to an open
/// descriptor. Failures raise an <see cref="IOException"/> with the message of the system.</summary>
internal static unsafe partial class PosixFile
{
    private const int CurrentFolder = -100; // AT_FDCWD
    private const int FollowLink = 0x400; // AT_SYMLINK_FOLLOW
    private const int WriteOnly = 1;
    private const int ReadWrite = 2;
    private const int NonBlocking = 0x800; // O_NONBLOCK
    private const int EmptyPath = 0x1000; // AT_EMPTY_PATH
    private const int NoTerminal = 0x100; // O_NOCTTY
    private const int CloseOnExec = 0x80000;
    private const int Unnamed = 0x410000; // O_TMPFILE
    private const int Interrupted = 4; // EINTR
    private const int NoReader = 6; // ENXIO
    private const int WouldBlock = 11; // EAGAIN
    private const int WaitInterval = 10; // milliseconds
    private const int MaxWaitForReader = 10_000;
    private const uint ReadableByAll = 0x1B6; // 0666, less the process's mask

    // struct statx begins in the same way on all architectures.
    private const int StatusLength = 256;
    private const int ModeOffset = 28;
    private const uint KindRequested = 1; // STATX_TYPE
    private const int KindMask = 0xF000;
    private const uint OwnerRequested = 0x1B; // STATX_TYPE | STATX_MODE | STATX_UID | STATX_GID
    private const int OwnerOffset = 20;
    private const uint PermissionMask = 0x1FF; // without setuid, setgid and sticky bit

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
        return TryEncode(path) is { } name && StatX(CurrentFolder, name, 0, KindRequested, status) == 0
            ? (Kind)(*(ushort*)(status + ModeOffset) & KindMask)
            : Kind.Absent;
    }

    /// <summary>Opens an unnamed file, which disappears if the process ends; null if the file system has no such
    /// files.</summary>
    internal static SafeFileHandle? OpenUnnamed(string folder)
    {
        int file = Open(folder, Unnamed | ReadWrite | CloseOnExec, ReadableByAll);
        return file < 0 ? null : new SafeFileHandle(file, true);
    }

    /// <summary>Assigns a name to an unnamed file if the name is free.</summary>
    /// <returns>Whether the name was free.</returns>
    internal static bool TryName(SafeFileHandle file, string path)
    {
        const int exists = 17;
        string source = DescriptorPath(file);
        if (LinkAt(CurrentFolder, source, CurrentFolder, path, FollowLink) == 0)
        {
            return true;
        }

        int error = Marshal.GetLastPInvokeError();
        return error == exists ? false : throw Failure(error);
    }

    /// <summary>Whether the system supports <see cref="TryName"/>.</summary>
    internal static bool CanName(SafeFileHandle file) => KindOf(DescriptorPath(file)) == Kind.Regular;

    /// <summary>Gives a new file the permissions of the file that it is to replace, and its owner where the process may
    /// do that. It never takes on the rights of its owner when it is run.</summary>
    internal static void KeepOwnerAndMode(string replaced, SafeFileHandle file)
    {
        byte* status = stackalloc byte[StatusLength];
        if (TryEncode(replaced) is not { } name || StatX(CurrentFolder, name, 0, OwnerRequested, status) != 0)
        {
            return;
        }

        int descriptor = (int)file.DangerousGetHandle();
        uint owner = *(uint*)(status + OwnerOffset);
        uint group = *(uint*)(status + OwnerOffset + sizeof(uint));
        if (ChangeOwner(descriptor, owner, group) != 0)
        {
            _ = ChangeOwner(descriptor, uint.MaxValue, group); // a member of the group may do that
        }

        _ = ChangeMode(descriptor, *(ushort*)(status + ModeOffset) & PermissionMask);
    }

    /// <summary>Locks a file until it is closed; whoever holds the lock is writing the file.</summary>
    internal static void Lock(SafeFileHandle file)
    {
        const int exclusively = 2, orNot = 4; // LOCK_EX, LOCK_NB
        _ = Lock((int)file.DangerousGetHandle(), exclusively | orNot);
    }

    /// <summary>Opens an existing file for writing: a device, or a FIFO as soon as it has a reader. That is waited for
    /// a while, in which the call can be ended.</summary>
    internal static SafeFileHandle OpenToWrite(string path)
    {
        long end = Environment.TickCount64 + MaxWaitForReader;
        while (true)
        {
            int file = Open(path, WriteOnly | NonBlocking | NoTerminal | CloseOnExec, 0);
            if (file >= 0)
            {
                return new SafeFileHandle(file, true);
            }

            int error = Marshal.GetLastPInvokeError();
            if (error is not (NoReader or Interrupted) || KindOf(path) != Kind.Fifo)
            {
                throw Failure(error);
            }

            if (Environment.TickCount64 > end)
            {
                throw new IOException($"nobody has opened the FIFO to read it for {MaxWaitForReader / 1000} seconds");
            }

            WaitForReader();
        }
    }

    /// <summary>Opens an existing regular file for reading. Nothing else is opened: a FIFO would wait for a writer, a
    /// device has no end, and files of the system state what is none of the caller's business.</summary>
    internal static SafeFileHandle OpenRegular(string path)
    {
        int file = OpenEncoded(UndecodableFileName.Encode(path), NonBlocking | NoTerminal | CloseOnExec, 0);
        if (file < 0)
        {
            throw Failure(Marshal.GetLastPInvokeError());
        }

        var handle = new SafeFileHandle(file, true);
        byte* status = stackalloc byte[StatusLength];
        bool isRegular = StatX(file, [0], EmptyPath, KindRequested, status) == 0
            && (Kind)(*(ushort*)(status + ModeOffset) & KindMask) == Kind.Regular;
        if (!isRegular || IsOfSystem(file))
        {
            handle.Dispose();
            throw new IOException("it is not a regular file, but a device, a pipe or a file of the system; open it in "
                + "Python and pass the stream");
        }

        return handle;
    }

    /// <summary>Returns where an open file is, without links.</summary>
    internal static string PathOf(SafeFileHandle file) => File.ResolveLinkTarget(DescriptorPath(file), false)!.FullName;

    /// <summary>Returns a path without links.</summary>
    internal static string RealPath(string path)
    {
        byte* resolved = RealPath(path, null);
        if (resolved == null)
        {
            throw Failure(Marshal.GetLastPInvokeError());
        }

        string result = Marshal.PtrToStringUTF8((nint)resolved)!;
        NativeMemory.Free(resolved);
        return result;
    }

    // Files of /proc and /sys have no length and no end that could be relied on.
    private static bool IsOfSystem(int file)
    {
        const long processes = 0x9FA0;
        const long devices = 0x62656572;
        byte* status = stackalloc byte[StatusLength];
        return StatFs(file, status) == 0 && *(long*)status is processes or devices;
    }

    /// <summary>Writes at the position of the descriptor, and advances it.</summary>
    internal static void Write(int descriptor, ReadOnlySpan<byte> data)
    {
        fixed (byte* start = data)
        {
            for (nint written = 0; written < data.Length;)
            {
                nint count = Write(descriptor, start + written, data.Length - written);
                if (count >= 0)
                {
                    written += count;
                    continue;
                }

                int error = Marshal.GetLastPInvokeError();
                if (error is not (Interrupted or WouldBlock))
                {
                    throw Failure(error);
                }

                WaitForReader();
            }
        }
    }

    /// <summary>Makes a file of a length, whose every byte has its room on the disk.</summary>
    internal static void Reserve(SafeFileHandle file, long length)
    {
        const long piece = 64L << 20;
        for (long start = 0; start < length; start += piece)
        {
            Budget.Check();
            int error;
            do
            {
                error = Allocate((int)file.DangerousGetHandle(), start, Math.Min(piece, length - start));
            }
            while (error == Interrupted);

            if (error != 0)
            {
                throw Failure(error);
            }
        }
    }

    /// <summary>Takes the pages of a mapped file out of the memory of the process; they come back when they are
    /// used.</summary>
    internal static void LeaveMemory(byte* start, long length)
    {
        const int notNeeded = 4; // MADV_DONTNEED
        _ = Advise(start, (nuint)length, notNeeded);
    }

    private static void WaitForReader()
    {
        Budget.Current?.Poll();
        Thread.Sleep(WaitInterval);
    }

    private static byte[]? TryEncode(string path)
    {
        try
        {
            return UndecodableFileName.Encode(path);
        }
        catch (IOException)
        {
            return null; // no file has such a name
        }
    }

    private static string DescriptorPath(SafeFileHandle file) => $"/proc/self/fd/{file.DangerousGetHandle()}";

    private static IOException Failure(int error) => new(Marshal.GetPInvokeErrorMessage(error));

    [LibraryImport("libc", EntryPoint = "statx")]
    private static partial int StatX(int folder, byte[] path, int flags, uint mask, byte* status);

    [LibraryImport("libc", EntryPoint = "open", StringMarshalling = StringMarshalling.Utf8, SetLastError = true)]
    private static partial int Open(string path, int flags, uint mode);

    [LibraryImport("libc", EntryPoint = "open", SetLastError = true)]
    private static partial int OpenEncoded(byte[] path, int flags, uint mode);

    [LibraryImport("libc", EntryPoint = "fstatfs")]
    private static partial int StatFs(int file, byte* status);

    [LibraryImport("libc", EntryPoint = "realpath", StringMarshalling = StringMarshalling.Utf8, SetLastError = true)]
    private static partial byte* RealPath(string path, byte* buffer);

    [LibraryImport("libc", EntryPoint = "linkat", StringMarshalling = StringMarshalling.Utf8, SetLastError = true)]
    private static partial int LinkAt(int fromFolder, string from, int toFolder, string to, int flags);

    [LibraryImport("libc", EntryPoint = "fchown")]
    private static partial int ChangeOwner(int descriptor, uint owner, uint group);

    [LibraryImport("libc", EntryPoint = "fchmod")]
    private static partial int ChangeMode(int descriptor, uint mode);

    [LibraryImport("libc", EntryPoint = "flock")]
    private static partial int Lock(int descriptor, int operation);

    [LibraryImport("libc", EntryPoint = "posix_fallocate")]
    private static partial int Allocate(int descriptor, long start, long length);

    [LibraryImport("libc", EntryPoint = "madvise")]
    private static partial int Advise(byte* start, nuint length, int advice);

    [LibraryImport("libc", EntryPoint = "write", SetLastError = true)]
    private static partial nint Write(int descriptor, byte* data, nint count);
}
