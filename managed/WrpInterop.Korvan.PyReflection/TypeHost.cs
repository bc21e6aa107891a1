using System;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

/// <summary>What a managed type tells of itself.</summary>
public static unsafe class TypeHost
{
    [UnmanagedCallersOnly]
    public static nint get_FullName(nint handle) => Text(handle, type => type.FullName ?? type.ToString());

    [UnmanagedCallersOnly]
    public static nint get_Name(nint handle) => Text(handle, type => type.Name);

    [UnmanagedCallersOnly]
    public static nint get_Namespace(nint handle) => Text(handle, type => type.Namespace);

    [UnmanagedCallersOnly]
    public static byte get_IsEnum(nint handle) => Trait(handle, type => type.IsEnum);

    [UnmanagedCallersOnly]
    public static byte get_IsClass(nint handle) => Trait(handle, type => type.IsClass);

    [UnmanagedCallersOnly]
    public static byte get_IsInterface(nint handle) => Trait(handle, type => type.IsInterface);

    [UnmanagedCallersOnly]
    public static byte get_IsValueType(nint handle) => Trait(handle, type => type.IsValueType);

    [UnmanagedCallersOnly]
    public static byte get_IsAbstract(nint handle) => Trait(handle, type => type.IsAbstract);

    /// <summary>A handle of the type that this one derives from; 0 where there is none.</summary>
    [UnmanagedCallersOnly]
    public static nint get_BaseType(nint handle)
    {
        try
        {
            return Handles.New(Handles.Self<Type>(handle).BaseType);
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    private static nint Text(nint handle, Func<Type, string?> read)
    {
        try
        {
            return PyText.Write(read(Handles.Self<Type>(handle)));
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    private static byte Trait(nint handle, Predicate<Type> has)
    {
        try
        {
            return has(Handles.Self<Type>(handle)) ? (byte)1 : (byte)0;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }
}
