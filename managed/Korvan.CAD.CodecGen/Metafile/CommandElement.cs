using System;
using System.Linq;
using Microsoft.CodeAnalysis;

namespace Korvan.CAD.CodecGen.Metafile;

/// <summary>An element of the standard: its class, its number in the class, and its keyword in clear text.</summary>
internal sealed class CommandElement : IEquatable<CommandElement>
{
    private CommandElement(string className, int id, string keyword)
    {
        ClassName = className;
        Id = id;
        Keyword = keyword;
    }

    /// <summary>The member of <c>ClassCode</c>, which is also the name of the enum of its elements.</summary>
    public string ClassName { get; }

    public int Id { get; }

    public string Keyword { get; }

    /// <summary>Reads the attribute of a command: a member of an enum of elements, or a class and a number, and the
    /// keyword. Bases of commands state none.</summary>
    public static CommandElement? From(AttributeData attribute)
    {
        TypedConstant[] arguments = [.. attribute.ConstructorArguments];
        return arguments.Length switch
        {
            2 => new CommandElement(arguments[0].Type!.Name, (int)arguments[0].Value!, (string)arguments[1].Value!),
            3 => new CommandElement(MemberName(arguments[0]), (int)arguments[1].Value!, (string)arguments[2].Value!),
            _ => null,
        };
    }

    public bool Equals(CommandElement? other) =>
        other is not null && ClassName == other.ClassName && Id == other.Id && Keyword == other.Keyword;

    public override bool Equals(object? obj) => Equals(obj as CommandElement);

    public override int GetHashCode() => (ClassName.GetHashCode() * 31) + Id;

    private static string MemberName(TypedConstant value) =>
        value.Type!.GetMembers().OfType<IFieldSymbol>().First(field => Equals(field.ConstantValue, value.Value)).Name;
}
