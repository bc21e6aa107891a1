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

/// <summary>States the Python enum class of an enum.</summary>
[AttributeUsage(AttributeTargets.Enum)]
internal sealed class PythonEnumAttribute(EnumKind kind) : Attribute
{
    public EnumKind Kind { get; } = kind;
}
