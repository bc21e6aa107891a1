using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit;

/// <summary>The kinds of managed classes behind typed collections, and their delegates in order.</summary>
/// <param name="Kind">Its name among the hosts.</param>
/// <param name="ClassPrefix">The managed class, but for the element's hash.</param>
public sealed record GenericHost(string Kind, string ClassPrefix, IReadOnlyList<string> Operations, bool IsConcrete)
{
    private static readonly string[] InterfaceCasts =
        ["btp_TypeOf", "btp_CastTo", "btp_CastAs", "btp_IsAssignable"];

    private static readonly string[] ConcreteCasts =
        ["btp_TypeOf", "btp_CastTo", "btp_ReInterpretObj", "btp_CastAs", "btp_IsAssignable"];

    public static GenericHost Iter { get; } = new("Iter", "SiApiEnumerator", ["MoveNext"], false);

    public static GenericHost Iterable { get; } = new("Iterable", "SiApiEnumerable", ["GetEnumerator"], false);

    public static GenericHost List { get; } = new("List", "SiApiList",
    [
        "SqLength", "Add", "Remove", "Clear", "SqContains", "SqGetItem", "SqGetItemNoCheck", "SqSetItem",
        "SqSetItemNoChek", "Insert", "RemoveAt", "Pop", "SqInplaceConcat", "SqInplaceRepeat", "MpSetItems",
        "MpRemoveItems", "Reverse", "Sort", "IndexBy", "CountOf", "EnsureCapacity",
    ], true);

    public static GenericHost Array { get; } = new("Array", "SiApiArray",
    [
        "SqLength", "SqContains", "SqGetItem", "SqGetItemNoCheck", "SqSetItem", "SqSetItemNoChek", "MpSetItems",
        "Reverse", "Sort", "IndexBy", "CountOf",
    ], true);

    public static GenericHost ICol { get; } = new("ICol", "SiApiCntCollection",
    [
        "SqLength", "Add", "Remove", "Clear", "SqInplaceConcat", "SqInplaceRepeat", "SqContains", "CountOf",
    ], false);

    public static GenericHost IList { get; } = new("IList", "SiApiCntList",
    [
        "SqGetItem", "SqGetItemNoCheck", "SqSetItem", "SqSetItemNoChek", "Insert", "RemoveAt", "Pop",
        "SqInplaceConcat", "SqInplaceRepeat", "MpSetItems", "MpRemoveItems", "Reverse", "Sort", "IndexBy", "CountOf",
    ], false);

    public static GenericHost IRoCol { get; } = new("IRoCol", "SiApiCntReadOnlyCollection",
        ["SqLength", "SqContains", "CountOf"], false);

    public static GenericHost IRoList { get; } = new("IRoList", "SiApiCntReadOnlyList",
        ["SqGetItem", "SqGetItemNoCheck", "SqContains", "IndexBy", "CountOf"], false);

    public IEnumerable<string> Delegates => Operations.Concat(IsConcrete ? ConcreteCasts : InterfaceCasts);

    /// <summary>The hosts that the declared kinds of one element need, constituents included.</summary>
    public static IReadOnlyList<GenericHost> For(ElementUse element) =>
        [.. Needed(element).Distinct()];

    private static IEnumerable<GenericHost> Needed(ElementUse element)
    {
        yield return Iter;
        yield return Iterable;
        foreach (ValueKind kind in element.Kinds)
        {
            foreach (GenericHost host in Of(kind))
            {
                yield return host;
            }
        }
    }

    private static IEnumerable<GenericHost> Of(ValueKind kind) => kind switch
    {
        ValueKind.List => [List],
        ValueKind.Array => [Array],
        ValueKind.ICollection => [ICol],
        ValueKind.IList => [ICol, IList],
        ValueKind.IReadOnlyCollection => [IRoCol],
        ValueKind.IReadOnlyList => [IRoCol, IRoList],
        _ => [],
    };
}
