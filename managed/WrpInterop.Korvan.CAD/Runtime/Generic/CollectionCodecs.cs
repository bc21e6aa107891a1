using System.Collections.Generic;
using System.IO;
using Korvan.WrpGen.Interop;

namespace Korvan.WrpGen.Generic;

/// <summary>
/// Elements that may be Python objects themselves: what is read of one keeps it, unless the scope says otherwise.
/// </summary>
internal unsafe interface IScopedCodec<T>
{
    T Read(VariantArg* value, ref PyScope scope);
}

internal static unsafe class ScopedCodec
{
    /// <summary>Reads an element that is put into a managed collection.</summary>
    internal static T Keep<T, TCodec>(nint value) where TCodec : struct, IScopedCodec<T>
    {
        PyScope kept = PyScope.Keeping();
        return default(TCodec).Read((VariantArg*)value, ref kept);
    }
}

// Elements whose Python type is chosen by the object, and collections and streams as elements. In: a VariantArg's
// address, of which a Python object is kept.

/// <summary>In: a handle. Out: a handle with its exact type.</summary>
public readonly struct DerivedCodec<T> : ICodec<T?, nint, PyCollectionArg> where T : class
{
    public static T? Read(nint value) => Handles.Object<T>(value);

    public static PyCollectionArg Write(T? value) => Collections.Exact(value);
}

/// <summary>Out: a handle.</summary>
public readonly unsafe struct ArrayCodec<T, TSource> : ICodec<T[]?, nint, nint>, IScopedCodec<T[]?>
    where TSource : IElementSource<T>
{
    public static T[]? Read(nint value) => ScopedCodec.Keep<T[]?, ArrayCodec<T, TSource>>(value);

    T[]? IScopedCodec<T[]?>.Read(VariantArg* value, ref PyScope scope) =>
        scope.ArrayOf(value, TSource.Element);

    public static nint Write(T[]? value) => Handles.New(value);
}

public readonly unsafe struct ListCodec<T, TSource> : ICodec<List<T>?, nint, PyCollectionArg>, IScopedCodec<List<T>?>
    where TSource : IElementSource<T>
{
    public static List<T>? Read(nint value) => ScopedCodec.Keep<List<T>?, ListCodec<T, TSource>>(value);

    List<T>? IScopedCodec<List<T>?>.Read(VariantArg* value, ref PyScope scope) =>
        scope.ListOf(value, TSource.Element);

    public static PyCollectionArg Write(List<T>? value) => Collections.Exact(value);
}

public readonly unsafe struct IEnumerableCodec<T, TSource>
    : ICodec<IEnumerable<T>?, nint, PyCollectionArg>, IScopedCodec<IEnumerable<T>?>
    where TSource : IElementSource<T>
{
    public static IEnumerable<T>? Read(nint value) =>
        ScopedCodec.Keep<IEnumerable<T>?, IEnumerableCodec<T, TSource>>(value);

    IEnumerable<T>? IScopedCodec<IEnumerable<T>?>.Read(VariantArg* value, ref PyScope scope) =>
        scope.Iterable(value, TSource.Element);

    public static PyCollectionArg Write(IEnumerable<T>? value) => Collections.Any(value);
}

public readonly unsafe struct ICollectionCodec<T, TSource>
    : ICodec<ICollection<T>?, nint, PyCollectionArg>, IScopedCodec<ICollection<T>?>
    where TSource : IElementSource<T>
{
    public static ICollection<T>? Read(nint value) =>
        ScopedCodec.Keep<ICollection<T>?, ICollectionCodec<T, TSource>>(value);

    ICollection<T>? IScopedCodec<ICollection<T>?>.Read(VariantArg* value, ref PyScope scope) =>
        scope.Collection(value, TSource.Element);

    public static PyCollectionArg Write(ICollection<T>? value) => Collections.Any(value);
}

public readonly unsafe struct IListCodec<T, TSource>
    : ICodec<IList<T>?, nint, PyCollectionArg>, IScopedCodec<IList<T>?>
    where TSource : IElementSource<T>
{
    public static IList<T>? Read(nint value) => ScopedCodec.Keep<IList<T>?, IListCodec<T, TSource>>(value);

    IList<T>? IScopedCodec<IList<T>?>.Read(VariantArg* value, ref PyScope scope) =>
        scope.ItemList(value, TSource.Element);

    public static PyCollectionArg Write(IList<T>? value) => Collections.Any(value);
}

public readonly unsafe struct IReadOnlyCollectionCodec<T, TSource>
    : ICodec<IReadOnlyCollection<T>?, nint, PyCollectionArg>, IScopedCodec<IReadOnlyCollection<T>?>
    where TSource : IElementSource<T>
{
    public static IReadOnlyCollection<T>? Read(nint value) =>
        ScopedCodec.Keep<IReadOnlyCollection<T>?, IReadOnlyCollectionCodec<T, TSource>>(value);

    IReadOnlyCollection<T>? IScopedCodec<IReadOnlyCollection<T>?>.Read(VariantArg* value, ref PyScope scope) =>
        scope.ReadOnlyCollection(value, TSource.Element);

    public static PyCollectionArg Write(IReadOnlyCollection<T>? value) => Collections.Any(value);
}

public readonly unsafe struct IReadOnlyListCodec<T, TSource>
    : ICodec<IReadOnlyList<T>?, nint, PyCollectionArg>, IScopedCodec<IReadOnlyList<T>?>
    where TSource : IElementSource<T>
{
    public static IReadOnlyList<T>? Read(nint value) =>
        ScopedCodec.Keep<IReadOnlyList<T>?, IReadOnlyListCodec<T, TSource>>(value);

    IReadOnlyList<T>? IScopedCodec<IReadOnlyList<T>?>.Read(VariantArg* value, ref PyScope scope) =>
        scope.ReadOnlyList(value, TSource.Element);

    public static PyCollectionArg Write(IReadOnlyList<T>? value) => Collections.Any(value);
}

public readonly unsafe struct StreamCodec : ICodec<Stream?, nint, PyCollectionArg>, IScopedCodec<Stream?>
{
    public static Stream? Read(nint value) => ScopedCodec.Keep<Stream?, StreamCodec>(value);

    Stream? IScopedCodec<Stream?>.Read(VariantArg* value, ref PyScope scope) =>
        scope.Stream(value);

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
