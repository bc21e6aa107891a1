using System;
using System.Collections.Generic;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Emit.CSharp;

/// <summary>
/// The table of native signatures: what a delegate takes and gives for each kind of value, and the
/// expressions that make managed values of the one and native ones of the other.
/// </summary>
internal static class CSharpValues
{
    private const string Word = "nint";

    /// <summary>The native parameters of an argument.</summary>
    public static IEnumerable<string> Arguments(ValueUse value, string name) => value.Kind == ValueKind.Nullable
        ? [$"int {name}_has", .. Arguments(value.Element!, name)]
        : [$"{ArgumentType(value)} {name}"];

    /// <summary>A managed value of those native parameters.</summary>
    public static string Read(ValueUse value, string name) => value.Kind switch
    {
        ValueKind.Bool => $"{name} != 0",
        ValueKind.Char => $"(char){name}",
        ValueKind.Enum => $"({value.CSharpName}){name}",
        ValueKind.String => $"PyText.Read({name})",
        ValueKind.Bytes => $"PyValues.ReadBytes({name})",
        // A cast to a constant type: a generic method would look its type up.
        ValueKind.Class => $"(({value.CSharpName})Handles.Target({name}))",
        ValueKind.Struct => $"Handles.Struct<{value.CSharpName}>({name})",
        ValueKind.Interface => $"References.Read<{value.CSharpName}>({name})",
        ValueKind.Object => $"scope.Any({name})",
        ValueKind.Stream => value.IsKept ? $"scope.KeptStream({name})" : $"scope.Stream({name})",
        ValueKind.DateTime => $"PyValues.ReadDateTime({name})",
        ValueKind.DateTimeOffset => $"PyValues.ReadDateTimeOffset({name})",
        ValueKind.TimeSpan => $"new global::System.TimeSpan({name})",
        ValueKind.Guid => $"PyValues.ReadGuid({name})",
        ValueKind.Decimal => $"PyValues.ReadDecimal({name})",
        ValueKind.Version => $"PyValues.ReadVersion({name})",
        ValueKind.DrawingColor => $"PyValues.ReadColor({name})",
        ValueKind.Nullable => $"{name}_has != 0 ? ({value.CSharpName}){Operand(value.Element!, name)} : null",
        ValueKind.AnyEnumerable => $"scope.AnyIterable({name})",
        _ when value.IsUntypedCollection => $"scope.{value.Kind}({name})",
        _ when value.IsTypedCollection => $"scope.{ScopeMethod(value.Kind)}({name}, " +
            $"global::Korvan.WrpGen.Generic.{ElementClass(value.Element!)}.Element)",
        _ => name,
    };

    /// <summary>As <see cref="Read"/>, where null is rejected under the name that Python knows the place by.</summary>
    public static string ReadGiven(ValueUse value, string name, string place) =>
        value.IsReference && !value.IsOptional
            ? $"({Read(value, name)} ?? throw Required.Missing(\"{place}\"))"
            : Read(value, name);

    /// <summary>Whether an argument may bring a Python object that an adapter has to stand for.</summary>
    public static bool NeedsScope(ValueUse value) =>
        value.Kind is ValueKind.Object or ValueKind.Stream || value.IsTypedCollection || value.IsUntypedCollection;

    /// <summary>What a delegate returns for a result; void where a record is filled instead.</summary>
    public static string ReturnType(ValueUse value) => value.Kind switch
    {
        ValueKind.Void => "void",
        ValueKind.Nullable when RecordType(value.Element!) is null => ReturnType(value.Element!),
        _ when RecordType(value) is not null || value.Kind == ValueKind.Nullable => "void",
        _ => NativeType(value),
    };

    /// <summary>The parameters behind all others through which a result leaves.</summary>
    public static IEnumerable<string> Results(ValueUse value)
    {
        if (value.Kind != ValueKind.Nullable)
        {
            return RecordType(value) is { } record ? [$"{record}* result"] : [];
        }
        return RecordType(value.Element!) is { } inner ? ["int* has_value", $"{inner}* result"] : ["int* has_value"];
    }

    /// <summary>The statements that hand a managed value over; the last may return.</summary>
    public static IEnumerable<string> Deliver(ValueUse value, string expression) => value.Kind switch
    {
        ValueKind.Void => [$"{expression};"],
        ValueKind.Nullable => DeliverNullable(value, expression),
        _ when RecordType(value) is not null => [$"{Store(value, expression, "result")};"],
        _ => [$"return {Write(value, expression)};"],
    };

    /// <summary>A native word of a managed value.</summary>
    public static string Write(ValueUse value, string expression) => value.Kind switch
    {
        ValueKind.Bool => $"{expression} ? (byte)1 : (byte)0",
        ValueKind.Char => $"(ushort)({expression})",
        ValueKind.Enum => $"({NativeType(value)})({expression})",
        ValueKind.String => $"PyText.Write({expression})",
        ValueKind.Bytes => $"PyValues.WriteBytes({expression})",
        ValueKind.Object => $"PyWriter.Write({expression})",
        ValueKind.Class or ValueKind.Array => $"Handles.New({expression})",
        ValueKind.Struct => $"Handles.NewBox({expression})",
        ValueKind.TimeSpan => $"({expression}).Ticks",
        _ => expression,
    };

    /// <summary>The record that a result fills; null for results that are one native word.</summary>
    public static string? RecordType(ValueUse value) => value.Kind switch
    {
        ValueKind.Interface => "PyObjectOutArg",
        ValueKind.Class when value.IsMostDerived => "PyCollectionArg",
        ValueKind.DateTime or ValueKind.DateTimeOffset => "PyDateTimeOut",
        ValueKind.Guid => "global::System.Guid",
        ValueKind.Decimal => "PyDecimalArg",
        ValueKind.Version => "PySysVersionArg",
        ValueKind.DrawingColor => "ShlColorObject",
        ValueKind.DrawingRectangle => "ShlRectangleFObject",
        ValueKind.Array => null,
        ValueKind.Stream => "PyCollectionArg",
        _ => value.IsTypedCollection || value.IsUntypedCollection ? "PyCollectionArg" : null,
    };

    /// <summary>The native type of a value that is one word.</summary>
    public static string NativeType(ValueUse value) => value.Kind switch
    {
        ValueKind.Bool or ValueKind.Byte => "byte",
        ValueKind.SByte => "sbyte",
        ValueKind.Int16 => "short",
        ValueKind.UInt16 or ValueKind.Char => "ushort",
        ValueKind.Int32 => "int",
        ValueKind.UInt32 => "uint",
        ValueKind.Int64 or ValueKind.TimeSpan or ValueKind.DateTime => "long",
        ValueKind.UInt64 => "ulong",
        ValueKind.Single => "float",
        ValueKind.Double => "double",
        ValueKind.Enum => NativeType(value.Bound!.Underlying!),
        _ => Word,
    };

    private static string ArgumentType(ValueUse value) => value.Kind switch
    {
        ValueKind.String => "PyStringArg*",
        ValueKind.Bytes => "PyBytesArg*",
        ValueKind.Struct or ValueKind.Interface => "VariantArg*",
        ValueKind.DateTimeOffset => "PyDateTimeOut*",
        ValueKind.Guid => "byte*",
        ValueKind.Decimal => "PyDecimalArg*",
        ValueKind.Version => "PySysVersionArg*",
        ValueKind.DrawingColor => "ShlColorObject*",
        _ => NeedsScope(value) ? "VariantArg*" : NativeType(value),
    };

    private static string Store(ValueUse value, string expression, string target) => value.Kind switch
    {
        ValueKind.DateTime => $"PyValues.WriteDateTime({expression}, {target})",
        ValueKind.DateTimeOffset => $"PyValues.WriteDateTimeOffset({expression}, {target})",
        ValueKind.Guid => $"PyValues.WriteGuid({expression}, {target})",
        ValueKind.Decimal => $"PyValues.WriteDecimal({expression}, {target})",
        ValueKind.Version => $"PyValues.WriteVersion({expression}, {target})",
        ValueKind.DrawingColor => $"PyValues.WriteColor({expression}, {target})",
        ValueKind.DrawingRectangle => $"PyValues.WriteRectangle({expression}, {target})",
        ValueKind.Interface => $"References.Write({expression}, {target})",
        ValueKind.Class or ValueKind.List or >= ValueKind.AnyArray => $"References.WriteExact({expression}, {target})",
        _ => $"References.WriteAny({expression}, {target})",
    };

    // The flag is always written; what follows it only when there is a value.
    private static IEnumerable<string> DeliverNullable(ValueUse value, string expression)
    {
        ValueUse inner = value.Element!;
        yield return $"var value = {expression};";
        yield return "*has_value = value.HasValue ? 1 : 0;";
        yield return RecordType(inner) is null
            ? $"return value.HasValue ? {Operand(Write(inner, "value.Value"))} : default;"
            : $"if (value.HasValue) {{ {Store(inner, "value.Value", "result")}; }}";
    }

    private static string Operand(ValueUse value, string name) => Operand(Read(value, name));

    private static string Operand(string expression) =>
        expression.Contains(' ') ? $"({expression})" : expression;

    /// <summary>The class that says how Python's collections of an element are read.</summary>
    public static string ElementClass(ValueUse element) => $"PyElement_{TypeHash.Of(element.ManagedName)}";

    private static string ScopeMethod(ValueKind kind) => kind switch
    {
        ValueKind.Array => "ArrayOf",
        ValueKind.List => "ListOf",
        ValueKind.IEnumerable => "Iterable",
        ValueKind.ICollection => "Collection",
        ValueKind.IList => "ItemList",
        ValueKind.IReadOnlyCollection => "ReadOnlyCollection",
        ValueKind.IReadOnlyList => "ReadOnlyList",
        ValueKind.IEnumerator => "Iterator",
        _ => throw new ArgumentOutOfRangeException(nameof(kind)),
    };
}
