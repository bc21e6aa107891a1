using System;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States a fixed string at the end of a part.</summary>
/// <param name="code">The group code.</param>
/// <param name="text">The string.</param>
[AttributeUsage(AttributeTargets.Class, AllowMultiple = true, Inherited = false)]
internal sealed class CadEndAttribute(int code, string text) : Attribute
{
    /// <summary>Gets the group code.</summary>
    internal int Code { get; } = code;

    /// <summary>Gets the string.</summary>
    internal string Text { get; } = text;
}
