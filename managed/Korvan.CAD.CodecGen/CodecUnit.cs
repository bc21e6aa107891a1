using System;

namespace Korvan.CAD.CodecGen;

/// <summary>The generated text of one class, compared by value so that unchanged classes are not written again.
/// </summary>
internal sealed class CodecUnit(
    string hintName, string text, string typeName, string dxfName, string kind, string alias)
    : IEquatable<CodecUnit>
{
    public string HintName { get; } = hintName;

    public string Text { get; } = text;

    /// <summary>The full name of the class.</summary>
    public string TypeName { get; } = typeName;

    /// <summary>The name in files, or empty where the class cannot be made from a file by its name alone.</summary>
    public string DxfName { get; } = dxfName;

    /// <summary>The root class, which states where such objects are: entities, objects or tables.</summary>
    public string Kind { get; } = kind;

    /// <summary>Another name in files; empty for none.</summary>
    public string Alias { get; } = alias;

    public bool Equals(CodecUnit? other) => other is not null && HintName == other.HintName && Text == other.Text;

    public override bool Equals(object? obj) => Equals(obj as CodecUnit);

    public override int GetHashCode() => Text.GetHashCode();
}
