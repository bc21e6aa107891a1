using System;
using System.Collections.Generic;
using System.Diagnostics.CodeAnalysis;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// Handles keep managed objects alive for Python. Each crossing makes a new one, its Python wrapper
/// owns it, and <see cref="Free"/> ends it. A struct's handle holds the box of one copy.
/// </summary>
/// <remarks>
/// A handle is the address of a reference in a pinned array, which is one load to follow and one store to give
/// another target; the runtime's own handles cost several times that. As an address it means the same in each
/// assembly of the process, whichever made it. Its lowest bit is set: records are aligned, so a delegate that is
/// called with a handle at one site and with a record's address at another can tell the two apart.
/// </remarks>
public static unsafe class Handles
{
    private const nint Mark = 1;
    private const int ChunkSize = 1024;

    // All handles are made and freed under the interpreter lock: plain counting is exact.
    private static long _live;

    // The references live in arrays that stay for good; those not in use are on a stack, the last one freed on top.
    private static List<object?[]>? _chunks;
    private static nint* _spare;
    private static nint* _spareTop;
    private static nint* _spareEnd;

    /// <summary>How many handles are in Python's hands.</summary>
    public static long LiveCount => _live;

    public static nint New(object? target)
    {
        if (target is null)
        {
            return 0;
        }
        _live++;
        return NewOf(target);
    }

    /// <summary>A handle of a copy, so that no two Python objects share one struct.</summary>
    public static nint NewBox<T>(T value) where T : struct
    {
        _live++;
        return NewOf(value);
    }

    public static void Free(nint handle)
    {
        if (handle == 0)
        {
            return;
        }
        _live--;
        Unsafe.AsRef<object?>((void*)(handle - Mark)) = null;
        if (_spareTop == _spareEnd)
        {
            EnlargeSpare();
        }
        *_spareTop++ = handle;
    }

    /// <summary>The object behind a handle; null for none.</summary>
    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    public static object? Target(nint handle) =>
        handle == 0 ? null : Unsafe.AsRef<object?>((void*)(handle - Mark));

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
        return (T)Unsafe.AsRef<object?>((void*)(handle - Mark))!;
    }

    /// <summary>The struct that a member is called on: its box itself, so that changes stay.</summary>
    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    public static ref T SelfStruct<T>(nint handle) where T : struct
    {
        if (handle == 0)
        {
            ThrowNoInstance(typeof(T));
        }
        return ref Unsafe.Unbox<T>(Unsafe.AsRef<object?>((void*)(handle - Mark))!);
    }

    /// <summary>An argument of struct type: a copy of the value in the box.</summary>
    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    public static T Struct<T>(VariantArg* argument) where T : struct
    {
        if (argument->Value == 0)
        {
            ThrowNoInstance(typeof(T));
        }
        return (T)Unsafe.AsRef<object?>((void*)(argument->Value - Mark))!;
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
        if (_spareTop == _spare)
        {
            AddChunk();
        }
        nint handle = *--_spareTop;
        Unsafe.AsRef<object?>((void*)(handle - Mark)) = target;
        return handle;
    }

    private static void AddChunk()
    {
        object?[] chunk = GC.AllocateArray<object?>(ChunkSize, pinned: true);
        (_chunks ??= []).Add(chunk);
        while (_spareEnd - _spareTop < ChunkSize)
        {
            EnlargeSpare();
        }
        var first = (nint)Unsafe.AsPointer(ref chunk[0]);
        for (int at = ChunkSize - 1; at >= 0; at--)
        {
            *_spareTop++ = (first + at * sizeof(nint)) | Mark;
        }
    }

    // A handle may be freed in another assembly than the one that made it, so the stack may outgrow the chunks.
    private static void EnlargeSpare()
    {
        nint count = (nint)(_spareTop - _spare);
        nint capacity = nint.Max(ChunkSize, 2 * (nint)(_spareEnd - _spare));
        _spare = (nint*)NativeMemory.Realloc(_spare, (nuint)(capacity * sizeof(nint)));
        _spareTop = _spare + count;
        _spareEnd = _spare + capacity;
    }

    /// <summary>Stands where there is no instance to call a member on.</summary>
    public static object Missing<T>()
    {
        ThrowNoInstance(typeof(T));
        return null;
    }

    [DoesNotReturn]
    private static void ThrowNoInstance(Type type) =>
        throw new InvalidOperationException($"The {type.Name} object was never constructed.");
}
