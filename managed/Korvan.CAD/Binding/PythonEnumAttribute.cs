using System;

namespace Korvan.CAD.Binding;

/// <summary>How an enum appears in Python.</summary>
internal enum EnumKind
{
    /// <summary>One value at a time: an <c>IntEnum</c>.</summary>
    Integer,

    /// <summary>Values that are combined with <c>|</c>: an <c>IntFlag</c>.</summary>
    Flag,
}

/// <summary>States what the values of an enum alone do not tell: which Python enum class carries it.</summary>
[AttributeUsage(AttributeTargets.Enum)]
internal sealed class PythonEnumAttribute(EnumKind kind) : Attribute
{
    public EnumKind Kind { get; } = kind;
}
