using System;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States that a class has the fields of another one that it does not derive from; they are generated after
/// its own.</summary>
/// <param name="source">The other class.</param>
[AttributeUsage(AttributeTargets.Class)]
internal sealed class CadFieldsOfAttribute(Type source) : Attribute
{
    /// <summary>Gets the other class.</summary>
    internal Type Source { get; } = source;
}
