using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Emit.Cpp;

/// <summary>The table of policies: which template of the engine carries each kind of value.</summary>
internal static class CppValues
{
    // Policies that the engine has by name but not by body yet. A member that needs one is left out of
    // the native tables; its delegate stands and waits.
    private static readonly HashSet<string> s_missing =
    [
        "ret::stream",
    ];

    /// <summary>The policy of a parameter; null while the engine lacks it.</summary>
    public static string? Argument(ParameterModel parameter) => parameter.Passing switch
    {
        Passing.Ref => Pair("arg::by_ref", parameter.Value),
        Passing.Out => Pair("arg::out", parameter.Value),
        _ => Argument(parameter.Value),
    };

    /// <summary>The policy of an argument; null while the engine lacks it.</summary>
    public static string? Argument(ValueUse value) => Known(value.Kind == ValueKind.Nullable
        ? Wrap("arg::nullable", Argument(value.Element!))
        : HasWrapper(value) ? "arg::" + ArgumentName(value) : null);

    /// <summary>The policy of a result; null while the engine lacks it.</summary>
    public static string? Result(ValueUse value) => Known(value.Kind == ValueKind.Nullable
        ? Wrap("ret::nullable", Result(value.Element!))
        : HasWrapper(value) ? "ret::" + ResultName(value) : null);

    /// <summary>The binding that a converter of the value reads; null for none.</summary>
    public static string? Binding(ValueUse value) => value.Kind switch
    {
        ValueKind.Nullable => Binding(value.Element!),
        ValueKind.Enum => $"&enum_{value.Bound!.Symbol}",
        ValueKind.Class or ValueKind.Struct or ValueKind.Interface => $"&class_{value.Bound!.Symbol}",
        _ when value.IsTypedCollection => $"&{WrapperPrefix(value.Kind)}_{TypeHash.Of(value.Element!.ManagedName)}",
        _ => null,
    };

    /// <summary>Both ways of an element of a typed collection; null while the engine lacks one.</summary>
    public static string? ElementOps(ValueUse element)
    {
        // An item's result is one native word, or an interface's record of two; others have no form yet.
        bool isWord = CSharp.CSharpValues.RecordType(element) is null || element.Kind == ValueKind.Interface;
        return isWord && Argument(element) is { } argument && Result(element) is { } result
            ? $"&element_ops<{argument}, {result}>"
            : null;
    }

    public static string WrapperPrefix(ValueKind kind) => kind switch
    {
        ValueKind.Array => "array",
        ValueKind.List => "list",
        ValueKind.IEnumerable => "iterable",
        ValueKind.ICollection => "icol",
        ValueKind.IList => "ilist",
        ValueKind.IReadOnlyCollection => "irocol",
        _ => "irolist",
    };

    // A typed collection is wrapped by a type of its own, which there is if its element can be carried.
    private static bool HasWrapper(ValueUse value) =>
        !value.IsTypedCollection || ElementOps(value.Element!) is not null;

    private static string? Pair(string policy, ValueUse value) =>
        Known(policy) is not null && Argument(value) is { } argument && Result(value) is { } result
            ? $"{policy}<{argument}, {result}>"
            : null;

    private static string? Wrap(string policy, string? inner) => inner is null ? null : $"{policy}<{inner}>";

    private static string? Known(string? policy) =>
        policy is null || s_missing.Contains(policy) ? null : policy;

    private static string ArgumentName(ValueUse value) => value.Kind switch
    {
        ValueKind.String => "string",
        ValueKind.Bytes => "bytes",
        ValueKind.Class => "object",
        ValueKind.Struct => "structure",
        ValueKind.Object => "variant",
        _ when value.IsTypedCollection => WrapperPrefix(value.Kind),
        _ => SharedName(value),
    };

    private static string ResultName(ValueUse value) => value.Kind switch
    {
        ValueKind.Void => "none",
        ValueKind.String or ValueKind.Bytes or ValueKind.Object => "finished",
        ValueKind.Class or ValueKind.Struct => "object",
        ValueKind.Array => "array",
        ValueKind.List => "collection",
        _ when value.IsTypedCollection => "interface_collection",
        _ => SharedName(value),
    };

    private static string SharedName(ValueUse value) => value.Kind switch
    {
        ValueKind.Bool => "boolean",
        ValueKind.SByte => "int8",
        ValueKind.Byte => "uint8",
        ValueKind.Int16 => "int16",
        ValueKind.UInt16 => "uint16",
        ValueKind.Int32 => "int32",
        ValueKind.UInt32 => "uint32",
        ValueKind.Int64 => "int64",
        ValueKind.UInt64 => "uint64",
        ValueKind.Single => "float32",
        ValueKind.Double => "float64",
        ValueKind.Char => "char16",
        ValueKind.Enum => $"enumeration<{EnumType(value.Bound!)}>",
        ValueKind.Interface => "interface_",
        ValueKind.AnyEnumerable => "any_iterable",
        _ => value.Kind.ToString().Replace("Any", "any_").ToLowerInvariant(),
    };

    private static string EnumType(TypeModel type) => type.Underlying!.Kind switch
    {
        ValueKind.SByte => "signed char",
        ValueKind.Byte => "unsigned char",
        ValueKind.Int16 => "short",
        ValueKind.UInt16 => "unsigned short",
        ValueKind.UInt32 => "unsigned int",
        ValueKind.Int64 => "long",
        ValueKind.UInt64 => "unsigned long",
        _ => "int",
    };

    /// <summary>A list of pointers, ended by null.</summary>
    public static string PointerList(IEnumerable<string> pointers) =>
        "{" + string.Concat(pointers.Select(pointer => pointer + ", ")) + "nullptr}";
}
