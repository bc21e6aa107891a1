using System;
using System.Diagnostics.CodeAnalysis;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// Handles keep managed objects alive for Python. Each crossing makes a new one, its Python wrapper
/// owns it, and <see cref="Free"/> ends it. A struct's handle holds the box of one copy.
/// </summary>
/// <remarks>
/// A handle's lowest bit is set. Records are aligned, so a delegate that is called with a handle at
/// one site and with a record's address at another can tell the two apart.
/// </remarks>
public static unsafe class Handles
{
    private const nint Mark = 1;

    // As many as a loop over wrappers keeps in turn; more would only be memory set aside.
    private const int MostSpare = 1024;

    // All handles are made and freed under the interpreter lock: plain counting is exact.
    private static long s_live;

    // The runtime takes five times as long to make and end a handle as to give one another target.
    private static readonly nint[] s_spare = new nint[MostSpare];
    private static int s_spareCount;

    /// <summary>How many handles are in Python's hands.</summary>
    public static long LiveCount => s_live;

    public static nint New(object? target)
    {
        if (target is null)
        {
            return 0;
        }
        s_live++;
        return NewOf(target);
    }

    /// <summary>A handle of a copy, so that no two Python objects share one struct.</summary>
    public static nint NewBox<T>(T value) where T : struct
    {
        s_live++;
        return NewOf(value);
    }

    public static void Free(nint handle)
    {
        if (handle == 0)
        {
            return;
        }
        s_live--;
        GCHandle ended = GCHandle.FromIntPtr(handle - Mark);
        if (s_spareCount == MostSpare)
        {
            ended.Free();
            return;
        }
        ended.Target = null;
        s_spare[s_spareCount++] = handle;
    }

    /// <summary>The object behind a handle; null for none.</summary>
    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    public static object? Target(nint handle) =>
        handle == 0 ? null : GCHandle.FromIntPtr(handle - Mark).Target;

    /// <summary>An argument of reference type.</summary>
    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    public static T? Object<T>(nint handle) where T : class => (T?)Target(handle);

    /// <summary>The instance that a member is called on.</summary>
    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    public static T Self<T>(nint handle) where T : class
    {
        if (handle == 0)
        {
            ThrowNoInstance(typeof(T));
        }
        return (T)GCHandle.FromIntPtr(handle - Mark).Target!;
    }

    /// <summary>The struct that a member is called on: its box itself, so that changes stay.</summary>
    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    public static ref T SelfStruct<T>(nint handle) where T : struct
    {
        if (handle == 0)
        {
            ThrowNoInstance(typeof(T));
        }
        return ref Unsafe.Unbox<T>(GCHandle.FromIntPtr(handle - Mark).Target!);
    }

    /// <summary>An argument of struct type: a copy of the value in the box.</summary>
    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    public static T Struct<T>(VariantArg* argument) where T : struct
    {
        if (argument->Value == 0)
        {
            ThrowNoInstance(typeof(T));
        }
        return (T)GCHandle.FromIntPtr(argument->Value - Mark).Target!;
    }

    /// <summary>The object behind a record of kind 0 or 1, or behind a bare handle.</summary>
    public static object? TargetOfEither(nint handleOrRecord) =>
        (handleOrRecord & Mark) != 0 || handleOrRecord == 0
            ? Target(handleOrRecord)
            : Target(((VariantArg*)handleOrRecord)->Value);

    /// <summary>Identity of the exact type of an object, the same for the life of the process.</summary>
    public static long TypeKey(object target) => target.GetType().TypeHandle.Value;

    private static nint NewOf(object target)
    {
        if (s_spareCount == 0)
        {
            return GCHandle.ToIntPtr(GCHandle.Alloc(target)) | Mark;
        }
        nint handle = s_spare[--s_spareCount];
        GCHandle spare = GCHandle.FromIntPtr(handle - Mark);
        spare.Target = target;
        return handle;
    }

    [DoesNotReturn]
    private static void ThrowNoInstance(Type type) =>
        throw new InvalidOperationException($"The {type.Name} object was never constructed.");
}
