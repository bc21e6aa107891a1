using System;
using System.Runtime.CompilerServices;
using Korvan.WrpGen.Interop;

namespace Korvan.WrpGen.Generic;

/// <summary>
/// How one element type crosses: <typeparamref name="TIn"/> is what a delegate receives (a value,
/// a handle, or the address of a record), <typeparamref name="TOut"/> what it hands over.
/// </summary>
public interface ICodec<T, TIn, TOut>
    where TIn : unmanaged
    where TOut : unmanaged
{
    static abstract T Read(TIn value);

    static abstract TOut Write(T value);
}

/// <summary>Numbers, which cross as they are.</summary>
public readonly struct ValueCodec<T> : ICodec<T, T, T> where T : unmanaged
{
    public static T Read(T value) => value;

    public static T Write(T value) => value;
}

public readonly struct BoolCodec : ICodec<bool, byte, byte>
{
    public static bool Read(byte value) => value != 0;

    public static byte Write(bool value) => value ? (byte)1 : (byte)0;
}

public readonly struct CharCodec : ICodec<char, ushort, ushort>
{
    public static char Read(ushort value) => (char)value;

    public static ushort Write(char value) => value;
}

public readonly struct EnumCodec<TEnum, TValue> : ICodec<TEnum, TValue, TValue>
    where TEnum : struct, Enum
    where TValue : unmanaged
{
    public static TEnum Read(TValue value) => Unsafe.BitCast<TValue, TEnum>(value);

    public static TValue Write(TEnum value) => Unsafe.BitCast<TEnum, TValue>(value);
}

/// <summary>In: a <see cref="PyStringArg"/>'s address. Out: a finished Python object.</summary>
public readonly unsafe struct StringCodec : ICodec<string?, nint, nint>
{
    public static string? Read(nint value) => PyText.Read((PyStringArg*)value);

    public static nint Write(string? value) => PyText.Write(value);
}

/// <summary>In: a <see cref="PyBytesArg"/>'s address. Out: a finished Python object.</summary>
public readonly unsafe struct BytesCodec : ICodec<byte[]?, nint, nint>
{
    public static byte[]? Read(nint value) => PyValues.ReadBytes((PyBytesArg*)value);

    public static nint Write(byte[]? value) => PyValues.WriteBytes(value);
}

/// <summary>In: a dynamic <see cref="VariantArg"/>'s address. Out: a finished Python object.</summary>
public readonly unsafe struct ObjectCodec : ICodec<object?, nint, nint>, IScopedCodec<object?>
{
    public static object? Read(nint value) => ScopedCodec.Keep<object?, ObjectCodec>(value);

    object? IScopedCodec<object?>.Read(VariantArg* value, ref PyScope scope) => scope.Any(value);

    public static nint Write(object? value) => PyWriter.Write(value);
}

/// <summary>Handles both ways.</summary>
public readonly struct ClassCodec<T> : ICodec<T?, nint, nint> where T : class
{
    public static T? Read(nint value) => Handles.Object<T>(value);

    public static nint Write(T? value) => Handles.New(value);
}

/// <summary>In: a <see cref="VariantArg"/>'s address. Out: a handle of a new box.</summary>
public readonly unsafe struct StructCodec<T> : ICodec<T, nint, nint> where T : struct
{
    public static T Read(nint value) => Handles.Struct<T>((VariantArg*)value);

    public static nint Write(T value) => Handles.NewBox(value);
}

/// <summary>In: a <see cref="VariantArg"/>'s address. Out: handle and type key.</summary>
public readonly unsafe struct InterfaceCodec<T> : ICodec<T?, nint, PyObjectOutArg> where T : class
{
    public static T? Read(nint value) => References.Read<T>((VariantArg*)value);

    public static PyObjectOutArg Write(T? value)
    {
        PyObjectOutArg result;
        References.Write(value, &result);
        return result;
    }
}

public readonly unsafe struct DateTimeCodec : ICodec<DateTime, long, PyDateTimeOut>
{
    public static DateTime Read(long value) => PyValues.ReadDateTime(value);

    public static PyDateTimeOut Write(DateTime value)
    {
        PyDateTimeOut result;
        PyValues.WriteDateTime(value, &result);
        return result;
    }
}

/// <summary>In: the address of two words. Out: the two words.</summary>
public readonly unsafe struct DateTimeOffsetCodec : ICodec<DateTimeOffset, nint, PyDateTimeOut>
{
    public static DateTimeOffset Read(nint value) => PyValues.ReadDateTimeOffset((PyDateTimeOut*)value);

    public static PyDateTimeOut Write(DateTimeOffset value)
    {
        PyDateTimeOut result;
        PyValues.WriteDateTimeOffset(value, &result);
        return result;
    }
}

/// <summary>In: the address of four words. Out: the four words.</summary>
public readonly unsafe struct DecimalCodec : ICodec<decimal, nint, PyDecimalArg>
{
    public static decimal Read(nint value) => PyValues.ReadDecimal((PyDecimalArg*)value);

    public static PyDecimalArg Write(decimal value)
    {
        PyDecimalArg result;
        PyValues.WriteDecimal(value, &result);
        return result;
    }
}

/// <summary>Records both ways.</summary>
public readonly unsafe struct VersionCodec : ICodec<Version?, nint, PySysVersionArg>
{
    public static Version? Read(nint value) => PyValues.ReadVersion((PySysVersionArg*)value);

    public static PySysVersionArg Write(Version? value)
    {
        PySysVersionArg result;
        PyValues.WriteVersion(value, &result);
        return result;
    }
}

public readonly struct TimeSpanCodec : ICodec<TimeSpan, long, long>
{
    public static TimeSpan Read(long value) => new(value);

    public static long Write(TimeSpan value) => value.Ticks;
}

/// <summary>In: the address of 16 bytes. Out: the bytes.</summary>
public readonly unsafe struct GuidCodec : ICodec<Guid, nint, Guid>
{
    public static Guid Read(nint value) => PyValues.ReadGuid((byte*)value);

    public static Guid Write(Guid value) => value;
}
