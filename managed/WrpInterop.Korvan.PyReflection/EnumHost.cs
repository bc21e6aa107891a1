using System;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

/// <summary>What a boxed value of a managed enum tells of itself.</summary>
public static unsafe class EnumHost
{
    private const int IsSigned = 1;

    /// <summary>The declared name of the value; None where it has none.</summary>
    [UnmanagedCallersOnly]
    public static nint get_Name(nint handle)
    {
        try
        {
            var value = Handles.Self<Enum>(handle);
            return PyText.Write(Enum.GetName(value.GetType(), value));
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    /// <summary>The integer of the value, extended to 64 bits. 1 when it is to be read as signed.</summary>
    [UnmanagedCallersOnly]
    public static int get_Value(nint handle, ulong* bits)
    {
        try
        {
            var value = (IConvertible)Handles.Self<Enum>(handle);
            if (value.GetTypeCode() is TypeCode.UInt64)
            {
                *bits = value.ToUInt64(null);
                return 0;
            }
            *bits = (ulong)value.ToInt64(null);
            return IsSigned;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }
}
