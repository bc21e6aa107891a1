using System;
using System.Collections;
using System.Runtime.CompilerServices;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// Makes a finished Python object of any managed value: a new reference, or 0 with a Python error
/// pending.
/// </summary>
public static unsafe class PyWriter
{
    public static nint Write(object? value) => value switch
    {
        null => PyObjects.None(),
        string text => PyText.Write(text),
        IPyAdapter adapter => Home(adapter),
        byte[] bytes => PyValues.WriteBytes(bytes),
        ValueType => WriteValue(value),
        Array => PyCollectionApi.WrapArray(Handles.New(value)),
        ArrayList => PyCollectionApi.WrapArrayList(Handles.New(value)),
        IList => WriteList(value),
        _ => Wrap(value),
    };

    private static nint WriteValue(object value) => Type.GetTypeCode(value.GetType()) switch
    {
        TypeCode.Boolean => WriteBool((bool)value),
        TypeCode.Char => WriteInt(13, (char)value),
        TypeCode.SByte or TypeCode.Int16 or TypeCode.Int32 or TypeCode.Byte or TypeCode.UInt16 =>
            WriteInt(2, Convert.ToInt32(value)),
        TypeCode.UInt32 => ((delegate* unmanaged<uint, nint>)PyTables.Write[3])(Convert.ToUInt32(value)),
        TypeCode.Int64 => WriteLong(4, Convert.ToInt64(value)),
        TypeCode.UInt64 => ((delegate* unmanaged<ulong, nint>)PyTables.Write[5])(Convert.ToUInt64(value)),
        TypeCode.Single or TypeCode.Double =>
            ((delegate* unmanaged<double, nint>)PyTables.Write[6])(Convert.ToDouble(value)),
        TypeCode.Decimal => WriteDecimal((decimal)value),
        TypeCode.DateTime => WriteDateTime((DateTime)value),
        _ => WriteStruct(value),
    };

    private static nint WriteStruct(object value) => value switch
    {
        TimeSpan span => WriteLong(10, span.Ticks),
        Guid guid => WriteGuid(guid),
        DateTimeOffset time => WriteDateTimeOffset(time),
        _ => Wrap(RuntimeHelpers.GetObjectValue(value)!),
    };

    private static nint WriteBool(bool value) => WriteInt(1, value ? 1 : 0);

    private static nint WriteDecimal(decimal value)
    {
        PyDecimalArg words;
        PyValues.WriteDecimal(value, &words);
        return WriteRecord(7, &words);
    }

    private static nint WriteDateTime(DateTime value)
    {
        PyDateTimeOut time;
        PyValues.WriteDateTime(value, &time);
        return WriteRecord(8, &time);
    }

    private static nint WriteDateTimeOffset(DateTimeOffset value)
    {
        PyDateTimeOut time;
        PyValues.WriteDateTimeOffset(value, &time);
        return WriteRecord(9, &time);
    }

    private static nint WriteGuid(Guid value)
    {
        byte* bytes = stackalloc byte[16];
        PyValues.WriteGuid(value, bytes);
        return WriteRecord(12, bytes);
    }

    private static nint WriteInt(int slot, int value) =>
        ((delegate* unmanaged<int, nint>)PyTables.Write[slot])(value);

    private static nint WriteLong(int slot, long value) =>
        ((delegate* unmanaged<long, nint>)PyTables.Write[slot])(value);

    private static nint WriteRecord(int slot, void* value) =>
        ((delegate* unmanaged<void*, nint>)PyTables.Write[slot])(value);

    // By its exact type; a type that Python doesn't know is a Python TypeError.
    private static nint Wrap(object value) =>
        ((delegate* unmanaged<nint, long, nint>)PyTables.Write[0])(Handles.New(value), Handles.TypeKey(value));

    // A bound list class keeps its class; any other list is wrapped as a list.
    private static nint WriteList(object value)
    {
        nint result = 0;
        int status = ((delegate* unmanaged<nint, long, nint*, int>)PyTables.TypedObject[0])(
            Handles.New(value), Handles.TypeKey(value), &result);
        return status == 0 ? PyCollectionApi.WrapList(Handles.New(value)) : result;
    }

    private static nint Home(IPyAdapter adapter)
    {
        nint value = adapter.PyObject;
        PyObjects.IncRef(value);
        return value;
    }
}
