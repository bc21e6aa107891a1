using System;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

/// <summary>Room for calls into Python, which may call back: a stack that ends in one of them ends the
/// process.</summary>
internal static unsafe class CallbackStack
{
    private const nint RuntimeReserve = 128 * 1024;

    /// <exception cref="InsufficientExecutionStackException">Too little of the stack is left.</exception>
    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    internal static void Ensure()
    {
        if (!RuntimeHelpers.TryEnsureSufficientExecutionStack())
        {
            EnsureHalf();
        }
    }

    // What the runtime asks for is all that a thread with a small stack has: such a thread may use half of it.
    // Where the stack can't be told, its size reads as 0, and the call goes on.
    [MethodImpl(MethodImplOptions.NoInlining)]
    private static void EnsureHalf()
    {
        const int attributesSize = 64;
        byte* attributes = stackalloc byte[attributesSize];
        byte* lowest = null;
        nint size = 0;
        if (GetAttributes(Self(), attributes) == 0)
        {
            _ = GetStack(attributes, &lowest, &size);
            _ = DestroyAttributes(attributes);
        }
        if (attributes - lowest < size / 2 || size > 2 * RuntimeReserve)
        {
            throw new InsufficientExecutionStackException();
        }
    }

    [DllImport("libc", EntryPoint = "pthread_self")]
    private static extern nint Self();

    [DllImport("libc", EntryPoint = "pthread_getattr_np")]
    private static extern int GetAttributes(nint thread, byte* attributes);

    [DllImport("libc", EntryPoint = "pthread_attr_getstack")]
    private static extern int GetStack(byte* attributes, byte** lowest, nint* size);

    [DllImport("libc", EntryPoint = "pthread_attr_destroy")]
    private static extern int DestroyAttributes(byte* attributes);
}
