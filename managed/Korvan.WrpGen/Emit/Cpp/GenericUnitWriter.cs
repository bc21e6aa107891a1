using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit.Cpp;

/// <summary>Writes the wrappers of typed collections: hosts and bindings of every element type.</summary>
internal sealed class GenericUnitWriter(BindingModel model, CodeWriter writer)
{
    /// <summary>Every typed callback table, by position.</summary>
    public const string AllCallbacks = "m_all_py_generic_callbacks";

    private sealed record Wrapper(
        string Prefix, string Name, string What, GenericHost Host, string Protocol, string Hosts, bool IsConcrete);

    private static readonly Wrapper IteratorWrapper = new(
        "iter", "_IterWrapper", "IEnumerator", GenericHost.Iter, "iterator",
        ".iterator_host = &PyHost_gn_Iter_{0}", false);

    private static readonly Dictionary<ValueKind, Wrapper> Wrappers = new()
    {
        [ValueKind.Array] = new("array", "_ArrayWrapper", "Array", GenericHost.Array, "array",
            ".list_host = &PyHost_gn_Array_{0}", true),
        [ValueKind.List] = new("list", "_ListWrapper", "List", GenericHost.List, "list",
            ".list_host = &PyHost_gn_List_{0}", true),
        [ValueKind.IEnumerable] = new("iterable", "_IterableWrapper", "IEnumerable", GenericHost.Iterable, "iterable",
            "", false),
        [ValueKind.ICollection] = new("icol", "_IColWrapper", "List", GenericHost.ICol, "collection",
            ".collection_host = &PyHost_gn_ICol_{0}", false),
        [ValueKind.IList] = new("ilist", "_IListWrapper", "List", GenericHost.IList, "list",
            ".collection_host = &PyHost_gn_ICol_{0}, .list_host = &PyHost_gn_IList_{0}", false),
        [ValueKind.IReadOnlyCollection] = new("irocol", "_IReadOnlyColWrapper", "List", GenericHost.IRoCol,
            "read_only_collection", ".collection_host = &PyHost_gn_IRoCol_{0}", false),
        [ValueKind.IReadOnlyList] = new("irolist", "_IReadOnlyListWrapper", "List", GenericHost.IRoList,
            "read_only_list", ".collection_host = &PyHost_gn_IRoCol_{0}, .list_host = &PyHost_gn_IRoList_{0}", false),
    };

    /// <summary>The symbols of an element's wrappers.</summary>
    public static IEnumerable<string> Symbols(ElementUse use) =>
        WrappersOf(use).Select(wrapper => $"{wrapper.Prefix}_{use.Hash}");

    public void Write(ElementUse use)
    {
        writer.Line($"// collections of {use.Element.ManagedName}");
        foreach (GenericHost host in GenericHost.For(use))
        {
            HostWriter.Write(writer, $"PyHost_gn_{host.Kind}_{use.Hash}",
                $"Korvan.WrpGen.Generic.{host.ClassPrefix}_{use.Hash}", host.Delegates);
        }
        foreach (Wrapper wrapper in WrappersOf(use))
        {
            WriteWrapper(use, wrapper, CppValues.ElementOps(use.Element));
        }
        writer.Line();
    }

    /// <summary>Writes the callback tables of every element that Python collections bring in.</summary>
    public void WriteCallbacks()
    {
        foreach ((CallbackTable table, ElementUse use) in model.Callbacks.Ordered)
        {
            writer.Line($"static constexpr {TableType(table, use)} {TableName(table, use)};");
        }
        writer.Line($"const void* const {AllCallbacks}[] = {{");
        writer.Indented(() =>
        {
            foreach ((CallbackTable table, ElementUse use) in model.Callbacks.Ordered)
            {
                writer.Line($"&{TableName(table, use)},");
            }
            writer.Line("nullptr");
        });
        writer.Line("};");
    }

    private static string TableName(CallbackTable table, ElementUse use) => table switch
    {
        CallbackTable.List => $"m_pygn_pylist_{use.Hash}_callbacks",
        CallbackTable.Iterator => $"m_pygn_pyiter_{use.Hash}_callbacks",
        _ => $"m_pygn_pyseq_{use.Hash}_callbacks",
    };

    private static string TableType(CallbackTable table, ElementUse use)
    {
        string argument = CppValues.Argument(use.Element);
        string type = CppValues.Binding(use.Element) ?? "nullptr";
        bool writes = table != CallbackTable.Iterator && use.ListUse != PyListUse.Read;
        string name = table switch
        {
            CallbackTable.List => "PyList",
            CallbackTable.Iterator => "PyIter",
            _ => "PySeq",
        };
        return writes
            ? $"{name}{use.ListUse}Table<{argument}, {CppValues.Result(use.Element)}, {type}>"
            : $"{name}Table<{argument}, {type}>";
    }

    private static IEnumerable<Wrapper> WrappersOf(ElementUse use) =>
        use.Kinds.Where(kind => kind != ValueKind.IEnumerator).Select(kind => Wrappers[kind]).Prepend(IteratorWrapper);

    private void WriteWrapper(ElementUse use, Wrapper wrapper, string ops)
    {
        string symbol = $"{wrapper.Prefix}_{use.Hash}";
        string binding = CppValues.Binding(use.Element) is { } found ? $" .element_type = {found}," : "";
        string walk = wrapper == IteratorWrapper
            ? ""
            : $" .iterator = &iter_{use.Hash}, .iterable_host = &PyHost_gn_Iterable_{use.Hash},";
        string dispose = wrapper == IteratorWrapper ? "KORVAN_ENTER_EXIT, " : "";
        writer.Line($"static PyMethodDef methods_{symbol}[] = {{{dispose}KORVAN_WRAPPER_METHODS({symbol}), {{}}}};");
        writer.Line($"static ClassBinding* const interfaces_{symbol}[] = " +
            $"{CppValues.PointerList(Interfaces(use, wrapper))};");
        // An iterator names its own host behind the members that it leaves out.
        string hosts = string.Format(wrapper.Hosts, use.Hash);
        writer.Line($"static const CollectionInfo collection_{symbol} = {{.element = {ops},{binding}{walk} {hosts}}};");
        writer.Line($"constinit ClassBinding {symbol} = {{");
        writer.Indented(() =>
        {
            writer.Line($".name = \"{model.Root.Module}._wrpgen._generic.{wrapper.Name}_{use.Hash}\",");
            writer.Line($".short_name = \"{wrapper.Name}_{use.Hash}\",");
            writer.Line($".what = \"{wrapper.What}\",");
            writer.Line($".kind = ClassKind::{(wrapper.IsConcrete ? "object" : "interface_")},");
            writer.Line($".host = &PyHost_gn_{wrapper.Host.Kind}_{use.Hash},");
            writer.Line($".first_cast_slot = {wrapper.Host.Operations.Count},");
            if (wrapper.Host == GenericHost.Array)
            {
                writer.Line(".base = &wrpPye_tyds_ArrayWrapper,");
            }
            writer.Line($".methods = methods_{symbol},");
            writer.Line($".additional_interfaces = interfaces_{symbol},");
            writer.Line($".implicit_interfaces = interfaces_{symbol},");
            writer.Line($".protocol = Protocol::{wrapper.Protocol},");
            writer.Line($".collection = &collection_{symbol},");
        });
        writer.Line("};");
    }

    // Lists and arrays are all that a list can be; the interfaces are what they extend.
    private static IEnumerable<string> Interfaces(ElementUse use, Wrapper wrapper)
    {
        ValueKind[] typed = wrapper.Prefix switch
        {
            "array" or "list" =>
            [
                ValueKind.IEnumerable, ValueKind.ICollection, ValueKind.IList, ValueKind.IReadOnlyCollection,
                ValueKind.IReadOnlyList,
            ],
            "ilist" => [ValueKind.IEnumerable, ValueKind.ICollection],
            "irolist" => [ValueKind.IEnumerable, ValueKind.IReadOnlyCollection],
            "icol" or "irocol" => [ValueKind.IEnumerable],
            _ => [],
        };
        IEnumerable<string> untyped = wrapper.Prefix switch
        {
            "iter" => ["&wrpPye_tyds_IDisposableWrapper", "&wrpPye_tyds_IterWrapper"],
            "array" or "list" =>
                ["&wrpPye_tyds_IterableWrapper", "&wrpPye_tyds_IColWrapper", "&wrpPye_tyds_IListWrapper"],
            _ => ["&wrpPye_tyds_IterableWrapper"],
        };
        return untyped.Concat(typed.Where(use.Has).Select(kind => $"&{Wrappers[kind].Prefix}_{use.Hash}"));
    }
}
