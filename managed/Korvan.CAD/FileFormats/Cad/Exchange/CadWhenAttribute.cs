using System;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States that an object has a field only under a condition on other properties.</summary>
/// <param name="condition">The condition: the name of a boolean property, or an expression over properties, which are
/// carried before.</param>
[AttributeUsage(AttributeTargets.Property)]
internal sealed class CadWhenAttribute(string condition) : Attribute
{
    /// <summary>Gets the condition.</summary>
    internal string Condition { get; } = condition;
}
