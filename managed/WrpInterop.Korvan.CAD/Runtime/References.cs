using System.Runtime.CompilerServices;

namespace Korvan.WrpGen.Interop;

/// <summary>Results whose Python type is chosen by the object's exact type.</summary>
public static unsafe class References
{
    /// <summary>An argument of interface type: an object, or a box of its own of a struct.</summary>
    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    public static T? Read<T>(VariantArg* argument) where T : class => (T?)Target(argument);

    /// <summary>The object of a record of kind 0 or 1, or a copy of the struct.</summary>
    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    internal static object? Target(VariantArg* argument)
    {
        object? target = Handles.Target(argument->Value);
        return (ReferenceKind)argument->Kind == ReferenceKind.Struct ? RuntimeHelpers.GetObjectValue(target) : target;
    }

    /// <summary>A result of interface type.</summary>
    public static void Write(object? value, PyObjectOutArg* result)
    {
        result->Handle = Handles.New(value is System.ValueType ? RuntimeHelpers.GetObjectValue(value) : value);
        result->TypeKey = value is null ? 0 : Handles.TypeKey(value);
    }

    /// <summary>A result of a concrete collection class, which may be of a derived one.</summary>
    public static void WriteExact<T>(T? value, PyCollectionArg* result) where T : class
    {
        if (TryWriteHome(value, result))
        {
            return;
        }
        result->Kind = (int)(value!.GetType() == typeof(T) ? CollectionKind.Plain : CollectionKind.Exact);
        result->Handle = Handles.New(value);
        result->TypeKey = Handles.TypeKey(value);
    }

    /// <summary>A result of a collection interface or of <see cref="System.IO.Stream"/>.</summary>
    public static void WriteAny(object? value, PyCollectionArg* result)
    {
        if (TryWriteHome(value, result))
        {
            return;
        }
        result->Kind = (int)(value is System.ValueType ? CollectionKind.Exact : CollectionKind.Plain);
        result->Handle = Handles.New(value);
        result->TypeKey = Handles.TypeKey(value!);
    }

    // None, or a Python object that came in and goes home as itself.
    private static bool TryWriteHome(object? value, PyCollectionArg* result)
    {
        *result = default;
        if (value is not IPyAdapter adapter)
        {
            return value is null;
        }
        result->Kind = (int)CollectionKind.Python;
        result->Handle = adapter.PyObject;
        return true;
    }
}
