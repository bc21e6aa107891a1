using System;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// The bodies behind the cast delegates. A cast answers 1 when done, 0 when the value is of another
/// type, -1 with an error pending; what gives a type or a view answers 1 or, with an error, 0.
/// </summary>
public static unsafe class Casts
{
    public static int TypeOf(Type type, nint* result)
    {
        try
        {
            *result = Handles.New(type);
            return Status.CastDone;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    /// <summary>Hands over an object that was found to be of the wanted type, or a null.</summary>
    /// <remarks>The question itself stands in the generated code, where the type is a constant.</remarks>
    public static int Deliver(object? target, nint* result)
    {
        try
        {
            *result = Handles.New(target);
            return Status.CastDone;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    /// <summary>To a class or an interface of the framework. A null casts to null.</summary>
    public static int ToReference<T>(VariantArg* value, nint* result) where T : class =>
        Handles.Target(value->Value) is var target && target is null or T
            ? Deliver(target, result) : Status.CastNo;

    /// <summary>As a class or an interface of the framework; a null is none.</summary>
    public static int AsReference<T>(nint handleOrRecord, nint* result) where T : class =>
        Handles.TargetOfEither(handleOrRecord) is T target ? Deliver(target, result) : Status.CastNo;

    public static int ToStruct<T>(VariantArg* value, nint* result) where T : struct
    {
        try
        {
            if (Handles.Target(value->Value) is not T target)
            {
                return Status.CastNo;
            }
            *result = Handles.NewBox(target);
            return Status.CastDone;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    /// <summary>To an enum of which a box is given.</summary>
    public static int ToEnum<TEnum, TValue>(nint handleOrRecord, TValue* result)
        where TEnum : struct, Enum
        where TValue : unmanaged
    {
        try
        {
            if (Handles.TargetOfEither(handleOrRecord) is not TEnum target)
            {
                return Status.CastNo;
            }
            *result = System.Runtime.CompilerServices.Unsafe.BitCast<TEnum, TValue>(target);
            return Status.CastDone;
        }
        catch (Exception e)
        {
            return Boundary.Failed(e);
        }
    }

    /// <summary>Views a plain object as a class.</summary>
    public static int ReinterpretReference<T>(nint handle, nint* result) where T : class
    {
        try
        {
            *result = Handles.New(Handles.Object<T>(handle));
            return Status.CastDone;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    public static int ReinterpretStruct<T>(nint handle, nint* result) where T : struct
    {
        try
        {
            *result = Handles.NewBox((T)Handles.Self<object>(handle));
            return Status.CastDone;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    public static int ReinterpretEnum<TEnum, TValue>(nint handle, TValue* result)
        where TEnum : struct, Enum
        where TValue : unmanaged
    {
        try
        {
            var target = (TEnum)Handles.Self<object>(handle);
            *result = System.Runtime.CompilerServices.Unsafe.BitCast<TEnum, TValue>(target);
            return Status.CastDone;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    /// <summary>Takes a handle or a record's address: delegates of the same name are called with both.</summary>
    public static int IsAssignable<T>(nint handleOrRecord)
    {
        try
        {
            return Handles.TargetOfEither(handleOrRecord) is T ? 1 : 0;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    /// <summary>An enum value as a boxed enum.</summary>
    public static int BoxEnum<TEnum>(TEnum value, nint* result) where TEnum : struct, Enum
    {
        try
        {
            *result = Handles.NewBox(value);
            return Status.CastDone;
        }
        catch (Exception e)
        {
            Boundary.Fail(e);
            return 0;
        }
    }

    /// <summary>Hands over what an explicit conversion made, if there is one to the type asked for.</summary>
    public static int Converted(object? value, nint* result)
    {
        *result = Handles.New(value);
        return value is null ? Status.CastNo : Status.CastDone;
    }
}
