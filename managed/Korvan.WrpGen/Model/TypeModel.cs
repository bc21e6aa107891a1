using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Model;

public enum BoundKind
{
    Class,
    StaticClass,
    Struct,
    Interface,
    Enum,
}

/// <summary>Which collection protocol of Python a class serves by its interfaces.</summary>
public enum CollectionProtocol
{
    None,
    Iterable,
    Collection,
    ReadOnlyCollection,
    ReadOnlyList,
    List,
    Indexer,
}

/// <summary>A bound type with everything that the emitters say of it.</summary>
public sealed class TypeModel
{
    /// <summary>The simple managed name.</summary>
    public required string Name { get; init; }

    public required string Namespace { get; init; }

    /// <summary>The full managed name, with a plus before a nested type's.</summary>
    public required string ManagedName { get; init; }

    public required string CSharpName { get; init; }

    public required BoundKind Kind { get; init; }

    public required string Module { get; init; }

    /// <summary>The name in its module: a nested type follows its outer one.</summary>
    public required string QualifiedName { get; init; }

    public TypeModel? Outer { get; set; }

    public TypeModel? Base { get; set; }

    public bool IsAbstract { get; init; }

    /// <summary>Whether results declared as this class appear as the class that the object is of.</summary>
    public bool ShowsMostDerived { get; init; }

    public DocText Doc { get; set; } = DocText.None;

    public List<MethodModel> Constructors { get; } = [];

    public List<MethodModel> Methods { get; } = [];

    public List<PropertyModel> Properties { get; } = [];

    public List<PropertyModel> StaticProperties { get; } = [];

    public List<InterfaceUse> Interfaces { get; } = [];

    public IndexerModel? Indexer { get; set; }

    public CollectionProtocol Protocol { get; set; }

    /// <summary>The element of the protocol; null for items that cross as variants.</summary>
    public ValueUse? ProtocolElement { get; set; }

    /// <summary>What a walk gives, where the protocol is one without an element type.</summary>
    public ValueUse? WalkedItem { get; set; }

    /// <summary>Serves a protocol without an element type, which classes derived from it have.</summary>
    public bool LeavesItemOpen { get; set; }

    public bool IsDisposable { get; set; }

    /// <summary>Types that explicit or implicit conversions of this type lead to.</summary>
    public List<string> Conversions { get; } = [];

    public ValueUse? Underlying { get; set; }

    public bool IsIntegerEnum { get; set; }

    public List<EnumMemberModel> EnumMembers { get; } = [];

    public string PythonName => $"{Module}.{QualifiedName}";

    public string PythonHash => field ??= TypeHash.Of(PythonName);

    public string WrapperNamespace => RootMap.WrapperNamespace(Namespace);

    public string WrapperClass => field ??= RootMap.WrapperClass(Name, TypeHash.Of(ManagedName));

    /// <summary>The name part of native symbols.</summary>
    public string Symbol => $"{PythonHash}_{Name}";

    /// <summary>The delegates in the order of binding.</summary>
    public IReadOnlyList<string> Delegates => field ??= [.. ListDelegates()];

    public int SlotOf(string name) => Slots[name];

    private Dictionary<string, int> Slots => field ??=
        Delegates.Select((name, slot) => (name, slot)).ToDictionary(pair => pair.name, pair => pair.slot);

    private IEnumerable<string> ListDelegates() =>
    [
        .. Constructors.Select(c => c.Delegate),
        .. OrderedMethods.Select(m => m.Delegate),
        .. Accessors(Properties),
        .. Accessors(StaticProperties),
        .. IndexerDelegates(),
        .. CastDelegates(),
    ];

    /// <summary>The methods with each name's overloads together.</summary>
    public IEnumerable<MethodModel> OrderedMethods =>
        Methods.GroupBy(m => m.ManagedName).SelectMany(group => group.OrderBy(m => m.Number));

    private static IEnumerable<string> Accessors(IEnumerable<PropertyModel> properties) =>
        properties.SelectMany<PropertyModel, string>(p => p.CanWrite ? [p.Getter, p.Setter] : [p.Getter]);

    private IEnumerable<string> IndexerDelegates() => Indexer switch
    {
        null => [],
        { CanWrite: true } => ["btp_SqGetItem", "btp_SqSetItem"],
        _ => ["btp_SqGetItem"],
    };

    private IEnumerable<string> CastDelegates() => Kind switch
    {
        BoundKind.StaticClass => ["btp_TypeOf"],
        BoundKind.Interface => ["btp_TypeOf", "btp_CastTo", "btp_CastAs", "btp_IsAssignable"],
        BoundKind.Enum =>
        [
            "btp_TypeOf", "btp_CastTo", "btp_ReInterpretObj", "btp_AsUniEnum", "btp_CastAs", "btp_IsAssignable",
            "btp_GetType",
        ],
        _ when Conversions.Count > 0 =>
        [
            "btp_TypeOf", "btp_CastTo", "btp_CastFrom", "btp_ReInterpretObj", "btp_CastAs", "btp_IsAssignable",
        ],
        _ => ["btp_TypeOf", "btp_CastTo", "btp_ReInterpretObj", "btp_CastAs", "btp_IsAssignable"],
    };
}
