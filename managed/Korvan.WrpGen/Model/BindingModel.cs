using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Model;

/// <summary>An element type of typed collections.</summary>
/// <param name="Kinds">The kinds of wrappers, one for each declared collection type.</param>
/// <param name="Inputs">Those as which members take a collection, maybe a Python one.</param>
public sealed record ElementUse(
    ValueUse Element, IReadOnlyList<ValueKind> Kinds, IReadOnlyList<ValueKind> Inputs)
{
    public string Hash => field ??= TypeHash.Of(Element.ManagedName);

    public bool Has(ValueKind kind) => Kinds.Contains(kind);

    /// <summary>How managed code may change a Python list that it was given.</summary>
    public PyListUse ListUse => Inputs.Contains(ValueKind.IList) ? PyListUse.Edit
        : Inputs.Contains(ValueKind.ICollection) ? PyListUse.Collection
        : PyListUse.Read;

    /// <summary>Python lists and sequences come in; a buffer can't lie in a record that is only read.</summary>
    public bool ReadsLists => Element.Kind != ValueKind.Bytes &&
        Inputs.Any(kind => kind is not (ValueKind.IEnumerable or ValueKind.IEnumerator));

    /// <summary>Python iterables come in.</summary>
    public bool ReadsIterators => Element.Kind != ValueKind.Bytes && Inputs.Any(kind =>
        kind is ValueKind.IEnumerable or ValueKind.IEnumerator or ValueKind.ICollection
            or ValueKind.IReadOnlyCollection);
}

/// <summary>Which slots the tables of an element have behind the reading one.</summary>
public enum PyListUse
{
    Read,
    Collection,
    Edit,
}

/// <summary>A Python namespace module.</summary>
public sealed record ModuleModel(string Name, string Namespace)
{
    public List<TypeModel> Types { get; } = [];

    public List<ModuleModel> Children { get; } = [];

    public string ShortName => Name[(Name.LastIndexOf('.') + 1)..];
}

/// <summary>A member or type that is not bound, and why.</summary>
public sealed record LeftOut(string Member, string Reason);

/// <summary>Everything that the emitters write from.</summary>
public sealed class BindingModel
{
    public required RootMap Root { get; init; }

    public required string InteropAssembly { get; init; }

    /// <summary>Sorted by managed name.</summary>
    public required IReadOnlyList<TypeModel> Types { get; init; }

    public required ModuleModel RootModule { get; init; }

    public required IReadOnlyList<ElementUse> Elements { get; init; }

    public required IReadOnlyList<LeftOut> LeftOut { get; init; }

    /// <summary>Every module, parents first.</summary>
    public IEnumerable<ModuleModel> Modules => Walk(RootModule);

    /// <summary>Where the callback tables of each element stand.</summary>
    public CallbackPositions Callbacks => field ??= new CallbackPositions(Elements);

    public ElementUse ElementOf(ValueUse element) =>
        Elements.First(use => use.Element.ManagedName == element.ManagedName);

    private static IEnumerable<ModuleModel> Walk(ModuleModel module) =>
        module.Children.SelectMany(Walk).Prepend(module);
}
