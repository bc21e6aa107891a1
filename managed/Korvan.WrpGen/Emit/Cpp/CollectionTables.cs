using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Emit.Cpp;

/// <summary>How a bound class that is a collection refers to the records that serve it.</summary>
internal static class CollectionTables
{
    /// <summary>The protocol's name in the engine; null for none.</summary>
    public static string? ProtocolOf(TypeModel type) => type.Protocol switch
    {
        CollectionProtocol.Iterable => "iterable",
        CollectionProtocol.Collection => "collection",
        CollectionProtocol.ReadOnlyCollection => "read_only_collection",
        CollectionProtocol.ReadOnlyList => "read_only_list",
        CollectionProtocol.List => "list",
        CollectionProtocol.Indexer => "indexer",
        _ => null,
    };

    /// <summary>The initializer of the type's own CollectionInfo; null where it has none.</summary>
    public static string? InfoOf(TypeModel type)
    {
        if (type.ProtocolElement is not { } element)
        {
            return null;
        }
        string ops = CppValues.ElementOps(element);
        string binding = CppValues.Binding(element) is { } found ? $" .element_type = {found}," : "";
        if (type.Protocol == CollectionProtocol.Indexer)
        {
            return $"{{.element = {ops},{binding} .list_host = &PyHost_cs_{type.Symbol}, {IndexerSlots(type)}}}";
        }
        string hash = TypeHash.Of(element.ManagedName);
        return $"{{.element = {ops},{binding} .iterator = &iter_{hash}, .iterable_host = &PyHost_gn_Iterable_{hash}" +
            $"{Host(type.Protocol, hash)}}}";
    }

    /// <summary>The framework's own record for collections without element type.</summary>
    public static string SharedInfoOf(TypeModel type) => type.Protocol switch
    {
        CollectionProtocol.List => "&any_list_info",
        CollectionProtocol.Collection => "&any_collection_info",
        _ => "&any_iterable_info",
    };

    /// <summary>The wrappers of collection interfaces without element type that a class implements.</summary>
    public static IReadOnlyList<string> UntypedInterfacesOf(TypeModel type) =>
        type.ProtocolElement is not null ? [] : type.Protocol switch
        {
            CollectionProtocol.List =>
                ["&wrpPye_tyds_IterableWrapper", "&wrpPye_tyds_IColWrapper", "&wrpPye_tyds_IListWrapper"],
            CollectionProtocol.Collection => ["&wrpPye_tyds_IterableWrapper", "&wrpPye_tyds_IColWrapper"],
            CollectionProtocol.Iterable => ["&wrpPye_tyds_IterableWrapper"],
            _ => [],
        };

    /// <summary>All wrappers of collection interfaces that a class implements.</summary>
    public static IEnumerable<string> InterfacesOf(BindingModel model, TypeModel type)
    {
        if (type.ProtocolElement is not { } element || type.Protocol == CollectionProtocol.Indexer)
        {
            return UntypedInterfacesOf(type);
        }
        ElementUse use = model.ElementOf(element);
        return Implemented(type.Protocol).Where(use.Has)
            .Select(kind => $"&{CppValues.WrapperPrefix(kind)}_{use.Hash}");
    }

    private static ValueKind[] Implemented(CollectionProtocol protocol) => protocol switch
    {
        CollectionProtocol.List => [ValueKind.IEnumerable, ValueKind.ICollection, ValueKind.IList],
        CollectionProtocol.Collection => [ValueKind.IEnumerable, ValueKind.ICollection],
        CollectionProtocol.ReadOnlyList =>
            [ValueKind.IEnumerable, ValueKind.IReadOnlyCollection, ValueKind.IReadOnlyList],
        CollectionProtocol.ReadOnlyCollection => [ValueKind.IEnumerable, ValueKind.IReadOnlyCollection],
        _ => [ValueKind.IEnumerable],
    };

    private static string Host(CollectionProtocol protocol, string hash) => protocol switch
    {
        CollectionProtocol.List => Hosts("ICol", "IList", hash),
        CollectionProtocol.Collection => Hosts("ICol", null, hash),
        CollectionProtocol.ReadOnlyList => Hosts("IRoCol", "IRoList", hash),
        CollectionProtocol.ReadOnlyCollection => Hosts("IRoCol", null, hash),
        _ => "",
    };

    private static string Hosts(string collection, string? list, string hash) =>
        $", .collection_host = &PyHost_gn_{collection}_{hash}" +
        (list is null ? "" : $", .list_host = &PyHost_gn_{list}_{hash}");

    private static string IndexerSlots(TypeModel type) =>
        $".indexer_slot = {type.SlotOf("btp_SqGetItem")}" +
        (type.Indexer!.CanWrite ? $", .indexer_set_slot = {type.SlotOf("btp_SqSetItem")}" : "");
}
