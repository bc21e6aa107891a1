using System;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States that a property and those after it follow another subclass marker than those before.</summary>
/// <param name="name">The marker, group code 100.</param>
[AttributeUsage(AttributeTargets.Property)]
internal sealed class CadSubclassAttribute(string name) : Attribute
{
    /// <summary>Gets the marker.</summary>
    internal string Name { get; } = name;
}
