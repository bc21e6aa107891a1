using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;
using System.Text.RegularExpressions;
using Korvan.WrpGen.Naming;

namespace Korvan.CAD.Tests.Options;

/// <summary>A writable member, with its path from the root object.</summary>
internal sealed class OptionMember
{
    private readonly PropertyInfo[] _way;

    private OptionMember(Type root, PropertyInfo[] way)
    {
        Root = root;
        _way = way;
    }

    internal Type Root { get; }

    internal string Path => string.Join('.', _way.Select(static step => step.Name));

    internal string HolderPath => string.Join('.', _way.SkipLast(1).Select(static step => step.Name));

    internal PropertyInfo Property => _way[^1];

    /// <summary>All writable members of a class, including those of nested objects.</summary>
    internal static IEnumerable<OptionMember> Of(Type root) => Walk(root, root, []);

    /// <summary>Returns the object that has the member, and creates it if necessary.</summary>
    internal object Holder(object root)
    {
        foreach (PropertyInfo step in _way.SkipLast(1))
        {
            object? next = step.GetValue(root);
            if (next is null)
            {
                next = OptionValues.New(step.PropertyType);
                step.SetValue(root, next);
            }

            root = next;
        }

        return root;
    }

    internal void Set(object root, object? value) =>
        Property.SetValue(Holder(root), value, BindingFlags.DoNotWrapExceptions, null, null, null);

    /// <summary>Returns whether a message names the member, or the object that has it.</summary>
    internal bool IsNamedBy(string message) =>
        _way.Any(step => Regex.IsMatch(message, $@"\b{PythonName.Lower(step.Name)}\b(?!\.\w)"));

    public override string ToString() => $"{Root.Name}.{Path}";

    private static IEnumerable<OptionMember> Walk(Type root, Type type, PropertyInfo[] way)
    {
        foreach (PropertyInfo property in type.GetProperties(BindingFlags.Public | BindingFlags.Instance))
        {
            PropertyInfo[] further = [.. way, property];
            bool settable = property.SetMethod is { IsPublic: true };
            if (OptionValues.IsGroup(property.PropertyType))
            {
                foreach (OptionMember inner in Walk(root, OptionValues.Concrete(property.PropertyType), further))
                {
                    yield return inner;
                }
            }
            else if (settable && property.GetIndexParameters().Length == 0)
            {
                yield return new OptionMember(root, further);
            }
        }
    }
}
