using System;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// Reads the dynamic use of <see cref="VariantArg"/>: any Python value for a parameter of the
/// universal object type, or an item of a Python collection.
/// </summary>
public static unsafe class Variants
{
    /// <summary>The value. Python lists and tuples come as adapters that <paramref name="scope"/> owns.</summary>
    public static object? Read(VariantArg* variant, ref PyScope scope) => (VariantKind)variant->Kind switch
    {
        VariantKind.List => scope.Adopt(new PyList(scope.Hold(variant->Value))),
        VariantKind.Tuple => scope.Adopt(new PySequence(scope.Hold(variant->Value))),
        _ => ReadValue(variant),
    };

    /// <summary>The value of an item, which may leave its place in the Python collection.</summary>
    internal static object? ReadItem(VariantArg* variant, PyReference collection)
    {
        PyScope scope = PyScope.ItemOf(collection);
        return Read(variant, ref scope);
    }

    /// <summary>Whether the reading of a value may run Python code, so that the value has to be held.</summary>
    internal static bool MayRunPython(VariantArg* variant) =>
        (VariantKind)variant->Kind is VariantKind.Buffer or (>= VariantKind.Decimal and <= VariantKind.Uuid);

    private static object? ReadValue(VariantArg* variant)
    {
        nint value = variant->Value;
        return (VariantKind)variant->Kind switch
        {
            VariantKind.None => null,
            VariantKind.Object => Handles.Target(value),
            VariantKind.Struct => System.Runtime.CompilerServices.RuntimeHelpers.GetObjectValue(
                Handles.Target(value)),
            VariantKind.String => ReadString(value),
            VariantKind.Buffer => ReadBuffer(value),
            VariantKind.Bool => PyRead.Bool(value) != 0,
            VariantKind.Int => ReadInteger(value),
            VariantKind.Float => ReadDouble(value),
            _ => ReadOther((VariantKind)variant->Kind, value),
        };
    }

    private static object ReadOther(VariantKind kind, nint value) => kind switch
    {
        VariantKind.Decimal => ReadDecimal(value, isTuple: false),
        VariantKind.DecimalTuple => ReadDecimal(value, isTuple: true),
        VariantKind.DateTime => ReadDateTime(value),
        VariantKind.Date => ReadDate(value),
        VariantKind.Time => ReadTime(value),
        VariantKind.TimeDelta => ReadTimeDelta(value),
        VariantKind.Uuid => ReadGuid(value),
        _ => throw new ArgumentException($"Unknown kind {(int)kind} of a value from Python."),
    };

    private static string ReadString(nint value)
    {
        PyStringArg text;
        Check(PyRead.String(value, &text));
        return PyText.Read(&text)!;
    }

    private static byte[] ReadBuffer(nint value)
    {
        byte* record = stackalloc byte[(int)PyBufferApi.RecordSize()];
        PyBufferApi.Clear(record);
        PyBytesArg bytes = default;
        int status = PyBufferApi.Acquire(value, record, &bytes);
        try
        {
            Check(status);
            return PyValues.ReadBytes(&bytes)!;
        }
        finally
        {
            if (bytes.Acquired != 0)
            {
                PyBufferApi.Release(record);
            }
        }
    }

    private static object ReadInteger(nint value)
    {
        ulong number;
        int width = PyRead.Long(value, &number);
        switch (width)
        {
            case 1:
                return (int)number;
            case 2:
                return (long)number;
            case 3:
                return number;
            default:
                Boundary.ThrowPythonError();
                return null;
        }
    }

    private static double ReadDouble(nint value)
    {
        double number;
        Check(PyRead.Double(value, &number));
        return number;
    }

    private static decimal ReadDecimal(nint value, bool isTuple)
    {
        PyDecimalArg words;
        Check(isTuple ? PyRead.DecimalTuple(value, &words) : PyRead.Decimal(value, &words));
        return PyValues.ReadDecimal(&words);
    }

    private static object ReadDateTime(nint value)
    {
        PyDateTimeOut time;
        int status = PyRead.DateTime(value, &time);
        Check(status);
        return TimeOf(status, &time);
    }

    private static object ReadTime(nint value)
    {
        PyDateTimeOut time;
        int status = PyRead.Time(value, &time);
        Check(status);
        return TimeOf(status, &time);
    }

    private static object TimeOf(int status, PyDateTimeOut* time)
    {
        const int withOffset = 2;
        if (status == withOffset)
        {
            return PyValues.ReadDateTimeOffset(time);
        }
        return PyValues.ReadDateTime(time->Ticks);
    }

    private static DateTime ReadDate(nint value)
    {
        long ticks;
        Check(PyRead.Date(value, &ticks));
        return PyValues.ReadDateTime(ticks);
    }

    private static TimeSpan ReadTimeDelta(nint value)
    {
        long ticks;
        Check(PyRead.TimeDelta(value, &ticks));
        return new TimeSpan(ticks);
    }

    private static Guid ReadGuid(nint value)
    {
        byte* bytes = stackalloc byte[16];
        PyRead.Guid(value, bytes);
        PyItemAccess.ThrowIfPending();
        return PyValues.ReadGuid(bytes);
    }

    private static void Check(int status)
    {
        if (status == 0)
        {
            Boundary.ThrowPythonError();
        }
    }
}
