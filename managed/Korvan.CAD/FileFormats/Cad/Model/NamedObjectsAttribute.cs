using System;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>States that a class is a list or dictionary of objects that are found by name; its members are generated.
/// </summary>
/// <param name="item">The class of the objects.</param>
/// <param name="what">What one object is called in messages and documentation.</param>
[AttributeUsage(AttributeTargets.Class)]
internal sealed class NamedObjectsAttribute(Type item, string what) : Attribute
{
    /// <summary>Gets the class of the objects.</summary>
    internal Type Item { get; } = item;

    /// <summary>Gets what one object is called.</summary>
    internal string What { get; } = what;
}
