using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Emit.Stubs;

/// <summary>Type hints: what a parameter accepts and what a result is.</summary>
/// <param name="module">The module in which the hint stands.</param>
/// <param name="shadowed">Names that the class around the hint gives another meaning.</param>
internal sealed class PythonTypes(string module, IReadOnlySet<string> shadowed)
{
    /// <summary>The modules that hints of this module spoke of.</summary>
    public SortedSet<string> Imports { get; init; } = new(StringComparer.Ordinal);

    public string Parameter(ParameterModel parameter) => parameter.Passing == Passing.In
        ? Accepted(parameter.Value)
        : $"{Builtin("list")}[{Result(parameter.Value)}]";

    /// <summary>What a parameter or a setter takes.</summary>
    public string Accepted(ValueUse value) => Optional(value, value.Kind switch
    {
        ValueKind.Bytes => "collections.abc.Buffer",
        ValueKind.DateTime => "datetime.datetime | datetime.date | datetime.time",
        ValueKind.DateTimeOffset => "datetime.datetime | datetime.time",
        ValueKind.Nullable => $"{Accepted(value.Element!)} | None",
        ValueKind.Array or ValueKind.List or ValueKind.IList or ValueKind.IReadOnlyList =>
            value.Element!.Kind == ValueKind.String
                ? Support("TextSequence")
                : $"collections.abc.Sequence[{Accepted(value.Element!)}]",
        ValueKind.ICollection or ValueKind.IReadOnlyCollection =>
            $"collections.abc.Collection[{Accepted(value.Element!)}]",
        ValueKind.AnyList or >= ValueKind.AnyArray => "collections.abc.Sequence[typing.Any]",
        ValueKind.AnyCollection => "collections.abc.Collection[typing.Any]",
        ValueKind.IEnumerable => $"collections.abc.Iterable[{Accepted(value.Element!)}]",
        ValueKind.IEnumerator => $"collections.abc.Iterator[{Accepted(value.Element!)}]",
        ValueKind.Interface => Implementers(value.Bound!),
        _ => Plain(value),
    });

    /// <summary>What a result or a getter gives.</summary>
    public string Result(ValueUse value) => Optional(value, value.Kind switch
    {
        ValueKind.Void => "None",
        ValueKind.Bytes => Builtin("bytearray"),
        ValueKind.DateTime or ValueKind.DateTimeOffset => "datetime.datetime",
        ValueKind.Nullable => $"{Result(value.Element!)} | None",
        ValueKind.Array => View("ArrayView", value),
        ValueKind.List or ValueKind.IList => View("ListView", value),
        ValueKind.IReadOnlyList => View("ReadOnlyListView", value),
        ValueKind.ICollection => View("CollectionView", value),
        ValueKind.IReadOnlyCollection => View("ReadOnlyCollectionView", value),
        ValueKind.AnyList or ValueKind.AnyArrayList or ValueKind.AnyCollectionBase => Support("ListView[typing.Any]"),
        ValueKind.AnyCollection or ValueKind.AnyReadOnlyCollectionBase =>
            Support("ReadOnlyCollectionView[typing.Any]"),
        ValueKind.AnyArray => Support("ArrayView[typing.Any]"),
        _ => Plain(value),
    });

    /// <summary>A class of the support module.</summary>
    public string Support(string name)
    {
        string root = string.Join('.', module.Split('.').Take(2));
        Imports.Add(root + "._typing");
        return $"{root}._typing.{name}";
    }

    /// <summary>A bound type, by its simple name in its own module.</summary>
    public string Name(TypeModel type)
    {
        if (type.Module == module)
        {
            return type.QualifiedName;
        }
        if (type.Module.Split('.').Any(PythonName.IsKeyword))
        {
            return "typing.Any";
        }
        Imports.Add(type.Module);
        return type.PythonName;
    }

    /// <summary>The base that all classes have which a parameter of an interface takes.</summary>
    public string Implementers(TypeModel type)
    {
        string name = Name(type);
        return name == "typing.Any" ? name : name[..^type.Name.Length] + ImplementersName(type);
    }

    public static string ImplementersName(TypeModel type) => "_Implements" + type.Name;

    /// <summary>The arguments of a view: what an item comes as, and what may become one where that is more.</summary>
    public string Item(ValueUse element)
    {
        string result = Result(element);
        string accepted = Accepted(element);
        return accepted == result ? result : $"{result}, {accepted}";
    }

    /// <summary>A builtin, also where a member of that name hides it.</summary>
    public string Builtin(string name) => shadowed.Contains(name) ? $"builtins.{name}" : name;

    private string Plain(ValueUse value) => value.Kind switch
    {
        ValueKind.Bool => Builtin("bool"),
        ValueKind.Single or ValueKind.Double => Builtin("float"),
        ValueKind.Char or ValueKind.String => Builtin("str"),
        ValueKind.Object => "typing.Any",
        ValueKind.Stream => "typing.BinaryIO",
        ValueKind.TimeSpan => "datetime.timedelta",
        ValueKind.Guid => "uuid.UUID",
        ValueKind.Decimal => "decimal.Decimal",
        ValueKind.DrawingColor => Drawing("Color"),
        ValueKind.DrawingRectangle => Drawing("RectangleF"),
        ValueKind.Version => $"{Builtin("tuple")}[{Builtin("int")}, ...]",
        ValueKind.IEnumerable => $"collections.abc.Iterable[{Result(value.Element!)}]",
        ValueKind.AnyEnumerable => "collections.abc.Iterable[typing.Any]",
        ValueKind.IEnumerator => $"collections.abc.Iterator[{Result(value.Element!)}]",
        ValueKind.AnyEnumerator => "collections.abc.Iterator[typing.Any]",
        ValueKind.AnyDisposable => "contextlib.AbstractContextManager[typing.Any]",
        ValueKind.Enum or ValueKind.Class or ValueKind.Struct or ValueKind.Interface => Name(value.Bound!),
        _ => Builtin("int"),
    };

    private string Drawing(string name)
    {
        Imports.Add("korvan.pydrawing");
        return "korvan.pydrawing." + name;
    }

    private string View(string view, ValueUse value) => Support($"{view}[{Item(value.Element!)}]");

    private static string Optional(ValueUse value, string hint) =>
        value.IsOptional && value.Kind is not (ValueKind.Void or ValueKind.Object) && !value.IsValueType &&
        value.Kind != ValueKind.Nullable
            ? $"{hint} | None"
            : hint;
}
