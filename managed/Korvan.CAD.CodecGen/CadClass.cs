using System.Collections.Generic;
using System.Linq;
using Microsoft.CodeAnalysis;

namespace Korvan.CAD.CodecGen;

/// <summary>A class whose properties have group codes.</summary>
internal sealed class CadClass
{
    private const string ClassAttribute = "CadObjectAttribute";

    private CadClass(INamedTypeSymbol type)
    {
        Name = type.Name;
        Namespace = type.ContainingNamespace.ToDisplayString();
        IsAbstract = type.IsAbstract;
        Included = [.. IncludedIn(type)];
        Properties = [.. Fields(type), .. Included];
        AttributeData? attribute = Attribute(type);
        HasClassAttribute = attribute is not null;
        DxfName = attribute?.ConstructorArguments[0].Value as string ?? "";
        Subclass = Named(attribute, "Subclass") as string;
        HandWritten = Named(attribute, "HandWritten") is true;
        Kind = Root(type);
        Parts = [.. PartsOf(type).Select(part => part.Name)];
    }

    public string Name { get; }

    public string Namespace { get; }

    public bool IsAbstract { get; }

    public IReadOnlyList<CadProperty> Properties { get; }

    /// <summary>Those of another class that this class has as well.</summary>
    public IReadOnlyList<CadProperty> Included { get; }

    public bool HasClassAttribute { get; }

    /// <summary>The name in files.</summary>
    public string DxfName { get; }

    /// <summary>The marker before the codes of the class.</summary>
    public string? Subclass { get; }

    public bool HandWritten { get; }

    /// <summary>Entities, objects or tables: the name of the root class; empty for a part of an object.</summary>
    public string Kind { get; }

    /// <summary>Base classes without a marker of their own: their codes stand among those of this class.</summary>
    public IReadOnlyList<string> Parts { get; }

    public bool HasCodec => HasClassAttribute || Properties.Count > 0;

    /// <summary>Whether the class is a part of objects, which has neither a type name nor subclasses.</summary>
    public bool IsPartOfObject => Kind.Length == 0;

    /// <summary>Whether the codes of the class are written among those of the classes that derive from it.</summary>
    public bool IsPart => !HasClassAttribute && IsAbstract;

    public static CadClass From(INamedTypeSymbol type) => new(type);

    private static IEnumerable<CadProperty> Fields(INamedTypeSymbol type)
    {
        return type.GetMembers().OfType<IPropertySymbol>().Select(CadProperty.From)
            .Where(property => property is not null).Select(property => property!);
    }

    private static IEnumerable<CadProperty> IncludedIn(INamedTypeSymbol type)
    {
        AttributeData? includes = type.GetAttributes().FirstOrDefault(attribute =>
            attribute.AttributeClass?.Name == "CadFieldsOfAttribute");
        return includes?.ConstructorArguments[0].Value is INamedTypeSymbol source ? Fields(source) : [];
    }

    private static IEnumerable<INamedTypeSymbol> PartsOf(INamedTypeSymbol type)
    {
        INamedTypeSymbol? current = type.BaseType;
        while (current is { IsAbstract: true } && Attribute(current) is null && !IsRoot(current))
        {
            if (Fields(current).Concat(IncludedIn(current)).Any())
            {
                yield return current;
            }

            current = current.BaseType;
        }
    }

    private static string Root(INamedTypeSymbol type)
    {
        for (INamedTypeSymbol? current = type; current is not null; current = current.BaseType)
        {
            if (IsRoot(current))
            {
                return current.Name;
            }
        }

        return "";
    }

    private static bool IsRoot(INamedTypeSymbol type)
    {
        return type.Name is "CadEntityBase" or "CadObjectBase" or "CadSymbolTableGroupCodes";
    }

    private static AttributeData? Attribute(INamedTypeSymbol type)
    {
        return type.GetAttributes().FirstOrDefault(attribute => attribute.AttributeClass?.Name == ClassAttribute);
    }

    private static object? Named(AttributeData? attribute, string name)
    {
        return attribute?.NamedArguments.Where(argument => argument.Key == name)
            .Select(argument => argument.Value.Value).FirstOrDefault();
    }
}
