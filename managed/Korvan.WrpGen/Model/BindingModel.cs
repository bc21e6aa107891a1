using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Model;

/// <summary>The kinds of typed collection wrappers, one for each declared collection type.</summary>
public sealed record ElementUse(ValueUse Element, IReadOnlyList<ValueKind> Kinds)
{
    public string Hash => field ??= TypeHash.Of(Element.ManagedName);

    public bool Has(ValueKind kind) => Kinds.Contains(kind);
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

    public ElementUse ElementOf(ValueUse element) =>
        Elements.First(use => use.Element.ManagedName == element.ManagedName);

    private static IEnumerable<ModuleModel> Walk(ModuleModel module) =>
        module.Children.SelectMany(Walk).Prepend(module);
}
