using System;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

/// <summary>What every managed object and struct can do, whatever its class.</summary>
public static unsafe class ObjectHost
{
    private const int HasText = 1;

    [UnmanagedCallersOnly]
    public static int ToStringOfObj(nint handle, nint* text) => ToText(handle, text);

    [UnmanagedCallersOnly]
    public static int ToStringOfStc(nint handle, nint* text) => ToText(handle, text);

    [UnmanagedCallersOnly]
    public static int GetHashOfObj(nint handle) => Hash(handle);

    [UnmanagedCallersOnly]
    public static int GetHashOfStc(nint handle) => Hash(handle);

    [UnmanagedCallersOnly]
    public static byte IsEqualsOfObj(nint handle, VariantArg* other) => AreEqual(handle, other);

    [UnmanagedCallersOnly]
    public static byte IsEqualsOfStc(nint handle, VariantArg* other) => AreEqual(handle, other);

    [UnmanagedCallersOnly]
    public static int IsTypeOf(nint handle, VariantArg* type)
    {
        try
        {
            return Handles.Object<Type>(type->Value)!.IsInstanceOfType(Handles.Target(handle)) ? 1 : 0;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    [UnmanagedCallersOnly]
    public static int GetTypeName(VariantArg* value, nint* text)
    {
        try
        {
            *text = PyText.Write(Handles.Target(value->Value)?.GetType().FullName);
            return HasText;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    [UnmanagedCallersOnly]
    public static int GetObjType(nint handle, nint* type) => TypeOf(handle, type);

    [UnmanagedCallersOnly]
    public static int GetStcType(nint handle, nint* type) => TypeOf(handle, type);

    [UnmanagedCallersOnly]
    public static void Dispose(nint handle)
    {
        try
        {
            Handles.Self<IDisposable>(handle).Dispose();
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
        }
    }

    private static int ToText(nint handle, nint* text)
    {
        try
        {
            string? value = Handles.Target(handle)?.ToString();
            if (value is null)
            {
                return 0;
            }
            *text = PyText.Write(value);
            return *text == 0 ? 0 : HasText;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    private static int Hash(nint handle)
    {
        try
        {
            return Handles.Self<object>(handle).GetHashCode();
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    private static byte AreEqual(nint handle, VariantArg* other)
    {
        try
        {
            return Handles.Self<object>(handle).Equals(Handles.Target(other->Value)) ? (byte)1 : (byte)0;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    private static int TypeOf(nint handle, nint* type)
    {
        try
        {
            *type = Handles.New(Handles.Self<object>(handle).GetType());
            return 1;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }
}
