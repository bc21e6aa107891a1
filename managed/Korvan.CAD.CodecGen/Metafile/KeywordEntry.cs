using System;
using Microsoft.CodeAnalysis;

namespace Korvan.CAD.CodecGen.Metafile;

/// <summary>A member of an enum with its keyword in clear text.</summary>
internal sealed class KeywordEntry : IEquatable<KeywordEntry>
{
    private KeywordEntry(string table, int value, string keyword)
    {
        TableName = table;
        Value = value;
        Keyword = keyword;
    }

    public string TableName { get; }

    public int Value { get; }

    public string Keyword { get; }

    public static KeywordEntry From(IFieldSymbol member, AttributeData attribute) =>
        new(
            NameOf(member.ContainingType), (int)member.ConstantValue!,
            (string)attribute.ConstructorArguments[0].Value!);

    /// <summary>The table of the keywords of an enum.</summary>
    public static string Table(ITypeSymbol type) =>
        $"global::Korvan.CAD.FileFormats.Cgm.Commands.EnumKeywords.{NameOf((INamedTypeSymbol)type)}";

    public bool Equals(KeywordEntry? other) =>
        other is not null && TableName == other.TableName && Value == other.Value && Keyword == other.Keyword;

    public override bool Equals(object? obj) => Equals(obj as KeywordEntry);

    public override int GetHashCode() => (TableName.GetHashCode() * 31) + Value;

    private static string NameOf(INamedTypeSymbol type) =>
        type.ContainingType is null ? type.Name : $"{type.ContainingType.Name}{type.Name}";
}
