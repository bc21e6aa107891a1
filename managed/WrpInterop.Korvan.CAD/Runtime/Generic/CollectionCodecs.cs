using System.Collections.Generic;
using System.IO;
using Korvan.WrpGen.Interop;

namespace Korvan.WrpGen.Generic;

// Elements whose Python type is chosen by the object, and collections and streams as elements. In: a VariantArg's address, of which a Python object is kept.

/// <summary>In: a handle. Out: a handle with its exact type.</summary>
public readonly struct DerivedCodec<T> : ICodec<T?, nint, PyCollectionArg> where T : class
{
    public static T? Read(nint value) => Handles.Object<T>(value);

    public static PyCollectionArg Write(T? value) => Collections.Exact(value);
}

/// <summary>Out: a handle.</summary>
public readonly unsafe struct ArrayCodec<T, TSource> : ICodec<T[]?, nint, nint>
    where TSource : IElementSource<T>
{
    public static T[]? Read(nint value)
    {
        PyScope kept = PyScope.Keeping();
        return kept.ArrayOf((VariantArg*)value, TSource.Element);
    }

    public static nint Write(T[]? value) => Handles.New(value);
}

public readonly unsafe struct ListCodec<T, TSource> : ICodec<List<T>?, nint, PyCollectionArg>
    where TSource : IElementSource<T>
{
    public static List<T>? Read(nint value)
    {
        PyScope kept = PyScope.Keeping();
        return kept.ListOf((VariantArg*)value, TSource.Element);
    }

    public static PyCollectionArg Write(List<T>? value) => Collections.Exact(value);
}

public readonly unsafe struct IEnumerableCodec<T, TSource> : ICodec<IEnumerable<T>?, nint, PyCollectionArg>
    where TSource : IElementSource<T>
{
    public static IEnumerable<T>? Read(nint value)
    {
        PyScope kept = PyScope.Keeping();
        return kept.Iterable((VariantArg*)value, TSource.Element);
    }

    public static PyCollectionArg Write(IEnumerable<T>? value) => Collections.Any(value);
}

public readonly unsafe struct ICollectionCodec<T, TSource> : ICodec<ICollection<T>?, nint, PyCollectionArg>
    where TSource : IElementSource<T>
{
    public static ICollection<T>? Read(nint value)
    {
        PyScope kept = PyScope.Keeping();
        return kept.Collection((VariantArg*)value, TSource.Element);
    }

    public static PyCollectionArg Write(ICollection<T>? value) => Collections.Any(value);
}

public readonly unsafe struct IListCodec<T, TSource> : ICodec<IList<T>?, nint, PyCollectionArg>
    where TSource : IElementSource<T>
{
    public static IList<T>? Read(nint value)
    {
        PyScope kept = PyScope.Keeping();
        return kept.ItemList((VariantArg*)value, TSource.Element);
    }

    public static PyCollectionArg Write(IList<T>? value) => Collections.Any(value);
}

public readonly unsafe struct IReadOnlyCollectionCodec<T, TSource> : ICodec<IReadOnlyCollection<T>?, nint, PyCollectionArg>
    where TSource : IElementSource<T>
{
    public static IReadOnlyCollection<T>? Read(nint value)
    {
        PyScope kept = PyScope.Keeping();
        return kept.ReadOnlyCollection((VariantArg*)value, TSource.Element);
    }

    public static PyCollectionArg Write(IReadOnlyCollection<T>? value) => Collections.Any(value);
}

public readonly unsafe struct IReadOnlyListCodec<T, TSource> : ICodec<IReadOnlyList<T>?, nint, PyCollectionArg>
    where TSource : IElementSource<T>
{
    public static IReadOnlyList<T>? Read(nint value)
    {
        PyScope kept = PyScope.Keeping();
        return kept.ReadOnlyList((VariantArg*)value, TSource.Element);
    }

    public static PyCollectionArg Write(IReadOnlyList<T>? value) => Collections.Any(value);
}

public readonly unsafe struct StreamCodec : ICodec<Stream?, nint, PyCollectionArg>
{
    public static Stream? Read(nint value)
    {
        PyScope kept = PyScope.Keeping();
        return kept.Stream((VariantArg*)value);
    }

    public static PyCollectionArg Write(Stream? value) => Collections.Any(value);
}

/// <summary>Records of collections by value.</summary>
internal static unsafe class Collections
{
    internal static PyCollectionArg Exact<T>(T? value) where T : class
    {
        PyCollectionArg result;
        References.WriteExact(value, &result);
        return result;
    }

    internal static PyCollectionArg Any(object? value)
    {
        PyCollectionArg result;
        References.WriteAny(value, &result);
        return result;
    }
}
