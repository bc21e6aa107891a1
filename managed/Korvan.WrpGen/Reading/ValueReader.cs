using System;
using System.Collections.Generic;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Reading;

/// <summary>Finds the kind of a managed type, or the reason why none carries it.</summary>
internal sealed class ValueReader(IReadOnlyDictionary<string, TypeModel> bound)
{
    private static readonly Dictionary<string, ValueKind> KnownKinds = new()
    {
        ["System.Void"] = ValueKind.Void,
        ["System.Boolean"] = ValueKind.Bool,
        ["System.SByte"] = ValueKind.SByte,
        ["System.Byte"] = ValueKind.Byte,
        ["System.Int16"] = ValueKind.Int16,
        ["System.UInt16"] = ValueKind.UInt16,
        ["System.Int32"] = ValueKind.Int32,
        ["System.UInt32"] = ValueKind.UInt32,
        ["System.Int64"] = ValueKind.Int64,
        ["System.UInt64"] = ValueKind.UInt64,
        ["System.Single"] = ValueKind.Single,
        ["System.Double"] = ValueKind.Double,
        ["System.Char"] = ValueKind.Char,
        ["System.String"] = ValueKind.String,
        ["System.Object"] = ValueKind.Object,
        ["System.IO.Stream"] = ValueKind.Stream,
        ["System.DateTime"] = ValueKind.DateTime,
        ["System.DateTimeOffset"] = ValueKind.DateTimeOffset,
        ["System.TimeSpan"] = ValueKind.TimeSpan,
        ["System.Guid"] = ValueKind.Guid,
        ["System.Decimal"] = ValueKind.Decimal,
        ["System.Version"] = ValueKind.Version,
        ["System.Drawing.Color"] = ValueKind.DrawingColor,
        ["System.Drawing.RectangleF"] = ValueKind.DrawingRectangle,
        ["System.IDisposable"] = ValueKind.AnyDisposable,
        ["System.Collections.IEnumerator"] = ValueKind.AnyEnumerator,
        ["System.Collections.IEnumerable"] = ValueKind.AnyEnumerable,
        ["System.Collections.ICollection"] = ValueKind.AnyCollection,
        ["System.Collections.IList"] = ValueKind.AnyList,
        ["System.Array"] = ValueKind.AnyArray,
        ["System.Collections.ArrayList"] = ValueKind.AnyArrayList,
        ["System.Collections.CollectionBase"] = ValueKind.AnyCollectionBase,
        ["System.Collections.ReadOnlyCollectionBase"] = ValueKind.AnyReadOnlyCollectionBase,
    };

    private static readonly Dictionary<string, ValueKind> GenericKinds = new()
    {
        ["System.Nullable`1"] = ValueKind.Nullable,
        ["System.Collections.Generic.List`1"] = ValueKind.List,
        ["System.Collections.Generic.IEnumerable`1"] = ValueKind.IEnumerable,
        ["System.Collections.Generic.ICollection`1"] = ValueKind.ICollection,
        ["System.Collections.Generic.IList`1"] = ValueKind.IList,
        ["System.Collections.Generic.IReadOnlyCollection`1"] = ValueKind.IReadOnlyCollection,
        ["System.Collections.Generic.IReadOnlyList`1"] = ValueKind.IReadOnlyList,
        ["System.Collections.Generic.IEnumerator`1"] = ValueKind.IEnumerator,
    };

    /// <summary>Null with a reason when the type can't be carried.</summary>
    public ValueUse? Read(Type type, bool isOptional, out string reason)
    {
        reason = "";
        if (type.IsArray)
        {
            return ReadArray(type, isOptional, out reason);
        }
        if (type.IsPointer || type.IsByRefLike || type.IsGenericParameter || type.IsFunctionPointer)
        {
            reason = $"{type.Name} is no type of values that Python can hold";
            return null;
        }
        if (type.IsConstructedGenericType)
        {
            return ReadGeneric(type, isOptional, out reason);
        }
        if (KnownKinds.TryGetValue(type.FullName ?? "", out ValueKind kind))
        {
            return Use(kind, type) with { IsOptional = isOptional };
        }
        if (bound.TryGetValue(type.FullName ?? "", out TypeModel? model))
        {
            return ReadBound(type, model, isOptional, out reason);
        }
        reason = $"{type.FullName ?? type.Name} is not bound";
        return null;
    }

    /// <summary>Elements of typed collections have one form each way. Those that are collections have element types
    /// themselves, down to a depth at which nothing real is left.</summary>
    public ValueUse? ReadElement(Type type, out string reason)
    {
        if (Read(type, isOptional: false, out reason) is not { } element)
        {
            return null;
        }
        if (element.Kind is not (ValueKind.Nullable or ValueKind.IEnumerator or ValueKind.DrawingColor
            or ValueKind.DrawingRectangle) && !element.IsUntypedCollection)
        {
            return element;
        }
        reason = $"{type.ManagedName()} is no element type that a collection wrapper carries";
        return null;
    }

    private ValueUse? ReadArray(Type type, bool isOptional, out string reason)
    {
        reason = "";
        Type elementType = type.GetElementType()!;
        if (!type.IsSZArray)
        {
            reason = $"{type.Name} has more than one dimension";
            return null;
        }
        if (elementType.FullName == "System.Byte")
        {
            return Use(ValueKind.Bytes, type) with { IsOptional = isOptional };
        }
        ValueUse? element = ReadElement(elementType, out reason);
        return element is null ? null : Use(ValueKind.Array, type) with { Element = element, IsOptional = isOptional };
    }

    private ValueUse? ReadGeneric(Type type, bool isOptional, out string reason)
    {
        reason = "";
        if (!GenericKinds.TryGetValue(type.GetGenericTypeDefinition().FullName!, out ValueKind kind))
        {
            reason = $"{type.ManagedName()} is not bound";
            return null;
        }
        Type argument = type.GetGenericArguments()[0];
        ValueUse? element = kind == ValueKind.Nullable
            ? Read(argument, isOptional: false, out reason)
            : ReadElement(argument, out reason);
        return element is null ? null : Use(kind, type) with { Element = element, IsOptional = isOptional };
    }

    private static ValueUse? ReadBound(Type type, TypeModel model, bool isOptional, out string reason)
    {
        reason = model.Kind == BoundKind.StaticClass ? $"{type.FullName} has no instances" : "";
        ValueKind kind = model.Kind switch
        {
            BoundKind.Struct => ValueKind.Struct,
            BoundKind.Interface => ValueKind.Interface,
            BoundKind.Enum => ValueKind.Enum,
            _ => ValueKind.Class,
        };
        return reason.Length > 0 ? null : Use(kind, type) with
        {
            Bound = model,
            IsOptional = isOptional,
            IsMostDerived = kind == ValueKind.Class && model.ShowsMostDerived,
        };
    }

    private static ValueUse Use(ValueKind kind, Type type) => new(kind, type.ManagedName(), type.CSharpName());
}
