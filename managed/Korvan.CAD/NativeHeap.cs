using System;
using System.Runtime.InteropServices;

namespace Korvan.CAD;

/// <summary>The memory that shared libraries take from the allocator of the C library.</summary>
internal static partial class NativeHeap
{
    /// <summary>Gives pages that hold nothing back to the system. The allocator keeps them for the thread that used
    /// them, and the next page may be painted by another one.</summary>
    internal static void Trim()
    {
        try
        {
            _ = TrimAll(0);
        }
        catch (EntryPointNotFoundException)
        {
            // Not all C libraries have the function, and nothing depends on it.
        }
    }

    [LibraryImport("libc", EntryPoint = "malloc_trim")]
    private static partial int TrimAll(nuint kept);
}
