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
        var elements = new SortedDictionary<string, Entry>(StringComparer.Ordinal);
        foreach (TypeModel type in types)
        {
            foreach (ValueUse value in ResultsOf(type))
            {
                Add(value, isInput: false);
            }
            foreach (ValueUse value in InputsOf(type))
            {
                Add(value, isInput: true);
            }
            if (type.ProtocolElement is { } element && type.Protocol != CollectionProtocol.Indexer)
            {
                EntryOf(element).Kinds.Add(KindOf(type.Protocol));
            }
        }
        return [.. elements.Values.Select(entry => new ElementUse(entry.Element, [.. entry.Kinds], [.. entry.Inputs]))];

        void Add(ValueUse value, bool isInput)
        {
            if (!value.IsTypedCollection)
            {
                return;
            }
            Entry entry = EntryOf(value.Element!);
            entry.Kinds.Add(value.Kind);
            if (isInput)
            {
                entry.Inputs.Add(value.Kind);
            }
            Add(value.Element!, isInput);
        }

        Entry EntryOf(ValueUse element)
        {
            if (!elements.TryGetValue(element.ManagedName, out Entry? entry))
            {
                entry = elements[element.ManagedName] = new Entry(element with { IsOptional = false });
            }
            return entry;
        }
    }

    private sealed record Entry(ValueUse Element)
    {
        public SortedSet<ValueKind> Kinds { get; } = [];

        public SortedSet<ValueKind> Inputs { get; } = [];
    }

    private static IEnumerable<ValueUse> ResultsOf(TypeModel type) =>
    [
        .. type.Methods.Select(method => method.Result),
        .. type.Properties.Concat(type.StaticProperties).Select(property => property.Value),
    ];

    private static IEnumerable<ValueUse> InputsOf(TypeModel type) =>
    [
        .. type.Constructors.Concat(type.Methods).SelectMany(method => method.Parameters.Select(p => p.Value)),
        .. type.Properties.Concat(type.StaticProperties)
            .Where(property => property.CanWrite).Select(property => property.Value),
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
