using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Reading;

/// <summary>The element list: every element type with the kinds of wrappers that signatures ask for.</summary>
internal static class ElementCollector
{
    public static IReadOnlyList<ElementUse> Collect(IEnumerable<TypeModel> types)
    {
        var elements = new SortedDictionary<string, (ValueUse Element, SortedSet<ValueKind> Kinds)>(
            StringComparer.Ordinal);
        foreach (TypeModel type in types)
        {
            foreach (ValueUse value in ValuesOf(type))
            {
                Add(value);
            }
            if (type.ProtocolElement is { } element && type.Protocol != CollectionProtocol.Indexer)
            {
                AddKind(element, KindOf(type.Protocol));
            }
        }
        return [.. elements.Values.Select(pair => new ElementUse(pair.Element, [.. pair.Kinds]))];

        void Add(ValueUse value)
        {
            if (value.IsTypedCollection)
            {
                AddKind(value.Element!, value.Kind);
                Add(value.Element!);
            }
        }

        void AddKind(ValueUse element, ValueKind kind)
        {
            if (!elements.TryGetValue(element.ManagedName, out var entry))
            {
                entry = elements[element.ManagedName] = (element with { IsOptional = false }, []);
            }
            entry.Kinds.Add(kind);
        }
    }

    private static IEnumerable<ValueUse> ValuesOf(TypeModel type) =>
    [
        .. type.Constructors.Concat(type.Methods).SelectMany(method => method.Parameters.Select(p => p.Value)),
        .. type.Methods.Select(method => method.Result),
        .. type.Properties.Concat(type.StaticProperties).Select(property => property.Value),
    ];

    private static ValueKind KindOf(CollectionProtocol protocol) => protocol switch
    {
        CollectionProtocol.List => ValueKind.IList,
        CollectionProtocol.Collection => ValueKind.ICollection,
        CollectionProtocol.ReadOnlyList => ValueKind.IReadOnlyList,
        CollectionProtocol.ReadOnlyCollection => ValueKind.IReadOnlyCollection,
        _ => ValueKind.IEnumerable,
    };
}
