using System;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States that an object has a field only while another of its properties says so.</summary>
/// <param name="property">The name of that property, which is boolean and is carried before.</param>
[AttributeUsage(AttributeTargets.Property)]
internal sealed class CadWhenAttribute(string property) : Attribute
{
    /// <summary>Gets the name of the property.</summary>
    internal string Property { get; } = property;
}
