using System;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States another name that files have for a class; it is written back.</summary>
/// <param name="name">The name that follows group code 0.</param>
/// <param name="subclass">The marker of the last subclass under this name; empty for that of the class.</param>
[AttributeUsage(AttributeTargets.Class, Inherited = false)]
internal sealed class CadAliasAttribute(string name, string subclass = "") : Attribute
{
    /// <summary>Gets the name.</summary>
    internal string Name { get; } = name;

    /// <summary>Gets the marker.</summary>
    internal string Subclass { get; } = subclass;
}
