using System;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

/// <summary>What the process takes of the machine's memory.</summary>
internal static unsafe class ProcessMemory
{
    private static bool _knowsNoFree;

    /// <summary>Bytes that are resident, without what the allocator has ready; 0 where the system does not
    /// tell.</summary>
    internal static long Used() => Resident() - Free();

    // What was freed stays with the allocator and serves again: the size of the process alone tells of its peak.
    private static long Free()
    {
        if (_knowsNoFree)
        {
            return 0;
        }
        try
        {
            return MallocInfo().FreeBytes;
        }
        catch (EntryPointNotFoundException)
        {
            _knowsNoFree = true;
            return 0;
        }
    }

    private static long Resident()
    {
        // Opened anew each time: what a process opened tells of that process, and not of one forked from it.
        int file;
        fixed (byte* path = "/proc/self/statm\0"u8)
        {
            file = Open(path, 0);
        }
        if (file < 0)
        {
            return 0;
        }
        const int size = 64;
        byte* text = stackalloc byte[size];
        nint length = Read(file, text, size);
        _ = Close(file);
        return PagesOf(new ReadOnlySpan<byte>(text, (int)nint.Max(length, 0))) * Environment.SystemPageSize;
    }

    // "<pages of all> <pages that are resident> ...".
    private static long PagesOf(ReadOnlySpan<byte> text)
    {
        ReadOnlySpan<byte> rest = text[(text.IndexOf((byte)' ') + 1)..];
        return System.Buffers.Text.Utf8Parser.TryParse(rest, out long pages, out _) ? pages : 0;
    }

    // struct mallinfo2 of malloc.h.
    [StructLayout(LayoutKind.Explicit, Size = 10 * sizeof(long))]
    private struct MallocUse
    {
        [FieldOffset(8 * sizeof(long))]
        internal long FreeBytes;
    }

    [DllImport("libc", EntryPoint = "mallinfo2")]
    private static extern MallocUse MallocInfo();

    [DllImport("libc", EntryPoint = "open")]
    private static extern int Open(byte* path, int flags);

    [DllImport("libc", EntryPoint = "read")]
    private static extern nint Read(int file, byte* buffer, nint count);

    [DllImport("libc", EntryPoint = "close")]
    private static extern int Close(int file);
}
