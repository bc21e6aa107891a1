using System;

namespace Korvan.CAD.CodecGen.Metafile;

/// <summary>The generated text of one class and the element that it stands for, compared by value.</summary>
internal sealed class CommandUnit(string hintName, string text, string typeName, CommandElement? element)
    : IEquatable<CommandUnit>
{
    public string HintName { get; } = hintName;

    public string Text { get; } = text;

    /// <summary>The full name of the class.</summary>
    public string TypeName { get; } = typeName;

    /// <summary>The element; nothing for bases of commands and for groups of parameters.</summary>
    public CommandElement? Element { get; } = element;

    public bool Equals(CommandUnit? other) =>
        other is not null && HintName == other.HintName && Text == other.Text && Equals(Element, other.Element);

    public override bool Equals(object? obj) => Equals(obj as CommandUnit);

    public override int GetHashCode() => Text.GetHashCode();
}
