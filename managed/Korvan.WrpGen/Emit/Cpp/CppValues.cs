using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Emit.Cpp;

/// <summary>The table of policies: which template of the engine carries each kind of value.</summary>
internal static class CppValues
{
    /// <summary>The policy of a parameter.</summary>
    public static string Argument(ParameterModel parameter) => parameter.Passing switch
    {
        Passing.Ref => $"arg::by_ref<{Argument(parameter.Value)}, {Result(parameter.Value)}>",
        Passing.Out => $"arg::out<{Argument(parameter.Value)}, {Result(parameter.Value)}>",
        _ => Argument(parameter.Value),
    };

    /// <summary>The policy of an argument.</summary>
    public static string Argument(ValueUse value) => value.Kind == ValueKind.Nullable
        ? $"arg::nullable<{Argument(value.Element!)}>"
        : "arg::" + ArgumentName(value);

    /// <summary>The policy of a result.</summary>
    public static string Result(ValueUse value) => value.Kind == ValueKind.Nullable
        ? $"ret::nullable<{Result(value.Element!)}>"
        : "ret::" + ResultName(value);

    /// <summary>The binding that a converter of the value reads; null for none.</summary>
    public static string? Binding(ValueUse value) => value.Kind switch
    {
        ValueKind.Nullable => Binding(value.Element!),
        ValueKind.Enum => $"&enum_{value.Bound!.Symbol}",
        ValueKind.Class or ValueKind.Struct or ValueKind.Interface => $"&class_{value.Bound!.Symbol}",
        _ when value.IsTypedCollection => $"&{WrapperPrefix(value.Kind)}_{TypeHash.Of(value.Element!.ManagedName)}",
        _ => null,
    };

    /// <summary>Both ways of an element of a typed collection.</summary>
    public static string ElementOps(ValueUse element) => $"&element_ops<{Argument(element)}, {Result(element)}>";

    public static string WrapperPrefix(ValueKind kind) => kind switch
    {
        ValueKind.Array => "array",
        ValueKind.List => "list",
        ValueKind.IEnumerable => "iterable",
        ValueKind.ICollection => "icol",
        ValueKind.IList => "ilist",
        ValueKind.IReadOnlyCollection => "irocol",
        ValueKind.IEnumerator => "iter",
        _ => "irolist",
    };

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
        ValueKind.Class when value.IsMostDerived => "most_derived",
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
        ValueKind.DrawingColor => "drawing_color",
        ValueKind.DrawingRectangle => "drawing_rectangle",
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
