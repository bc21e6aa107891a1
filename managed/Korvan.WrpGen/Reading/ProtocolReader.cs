using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Reading;

/// <summary>Finds the collection protocol that a class serves, typed before untyped, richest first.</summary>
internal static class ProtocolReader
{
    private const string Generic = "System.Collections.Generic.";

    private static readonly (string Interface, CollectionProtocol Protocol)[] TypedProtocols =
    [
        (Generic + "IList`1", CollectionProtocol.List),
        (Generic + "ICollection`1", CollectionProtocol.Collection),
        (Generic + "IReadOnlyList`1", CollectionProtocol.ReadOnlyList),
        (Generic + "IReadOnlyCollection`1", CollectionProtocol.ReadOnlyCollection),
        (Generic + "IEnumerable`1", CollectionProtocol.Iterable),
    ];

    private static readonly (string Interface, CollectionProtocol Protocol)[] UntypedProtocols =
    [
        ("System.Collections.IList", CollectionProtocol.List),
        ("System.Collections.ICollection", CollectionProtocol.Collection),
        ("System.Collections.IEnumerable", CollectionProtocol.Iterable),
    ];

    // What the engine gives a type of the protocol, so that a managed member of that name is not needed.
    private static readonly HashSet<string> ServedNames =
    [
        "append", "insert", "extend", "remove", "pop", "clear", "index", "count", "sort", "reverse", "copy",
        "contains", "length",
    ];

    // The framework's ICollection changes nothing, so a class over it keeps its own ways to.
    private static readonly HashSet<string> ServedUnlessDeclared = ["count", "copy", "contains", "length"];

    private static readonly HashSet<string> PlumbingNames =
    [
        "GetEnumerator", "CopyTo", "IsSynchronized", "SyncRoot", "IsReadOnly", "IsFixedSize",
    ];

    public static void Read(Type type, TypeModel model, ValueReader values)
    {
        foreach ((string name, CollectionProtocol protocol) in TypedProtocols)
        {
            foreach (Type one in type.GetInterfaces().Where(i => i.IsConstructedGenericType))
            {
                if (one.GetGenericTypeDefinition().FullName == name &&
                    values.ReadElement(one.GetGenericArguments()[0], out _) is { } element)
                {
                    model.Protocol = protocol;
                    model.ProtocolElement = element;
                    return;
                }
            }
        }
        model.Protocol = UntypedProtocols.FirstOrDefault(pair => type.HasInterface(pair.Interface)).Protocol;
        model.WalkedItem = WalkedItem(type, values);
    }

    // As a loop in C# finds it: by an enumerator of its own, whatever the interfaces are.
    private static ValueUse? WalkedItem(Type type, ValueReader values)
    {
        MethodInfo? walk = type.GetMethod("GetEnumerator", BindingFlags.Public | BindingFlags.Instance, []);
        PropertyInfo? current = walk?.ReturnType.GetProperty("Current");
        return current is null || current.PropertyType.FullName == "System.Object"
            ? null
            : values.ReadElement(current.PropertyType, out _);
    }

    /// <summary>Whether the protocol stands in for a managed member.</summary>
    public static bool Serves(TypeModel model, string managedName, string pythonName) =>
        model.Protocol is not (CollectionProtocol.None or CollectionProtocol.Indexer) &&
        (PlumbingNames.Contains(managedName) ||
         (model.Protocol != CollectionProtocol.Iterable && ServedBy(model).Contains(pythonName)));

    private static HashSet<string> ServedBy(TypeModel model) =>
        model.Protocol == CollectionProtocol.Collection && model.ProtocolElement is null
            ? ServedUnlessDeclared
            : ServedNames;
}
