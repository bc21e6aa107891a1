using System.Collections.Generic;
using System.Linq;
using Microsoft.CodeAnalysis;

namespace Korvan.CAD.CodecGen;

/// <summary>A class whose properties have group codes.</summary>
internal sealed class CadClass
{
    private const string ClassAttribute = "CadObjectAttribute";

    private readonly INamedTypeSymbol _type;

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
        IsSequence = Has(type, "CadSequenceAttribute");
        IsSequenceBase = !(type.BaseType is { } parent && Has(parent, "CadSequenceAttribute"));
        Leading = [.. Texts(type, "CadMarkersAttribute", "Leading")];
        Trailing = [.. Texts(type, "CadMarkersAttribute", "Trailing")];
        AttributeData? alias = type.GetAttributes().FirstOrDefault(candidate =>
            candidate.AttributeClass?.Name == "CadAliasAttribute");
        Alias = alias?.ConstructorArguments[0].Value as string ?? "";
        AliasSubclass = alias?.ConstructorArguments[1].Value as string ?? "";
        Labels = [.. CadLabel.On(type, "CadLabelAttribute")];
        Ends = [.. CadLabel.On(type, "CadEndAttribute")];
        Parts = [.. PartsOf(type).Select(part => part.Name)];
        _type = type;
        AttributeData? bits = type.GetAttributes().FirstOrDefault(candidate =>
            candidate.AttributeClass?.Name == "CadBitsAttribute");
        Bits = bits is null ? null
            : [.. bits.ConstructorArguments[0].Values.Select(item => new BitItem((string)item.Value!))];
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

    /// <summary>Base classes without a marker of their own: their codes are among those of this class.</summary>
    public IReadOnlyList<string> Parts { get; }

    /// <summary>Whether files have the fields in declared order only, so that group codes may repeat.</summary>
    public bool IsSequence { get; }

    /// <summary>Whether no class that this one derives from is a sequence.</summary>
    public bool IsSequenceBase { get; }

    /// <summary>Another name in files; empty for none.</summary>
    public string Alias { get; }

    /// <summary>The last marker under the other name; empty where it is that of the class.</summary>
    public string AliasSubclass { get; }

    /// <summary>Markers without fields before the fields of the class.</summary>
    public IReadOnlyList<string> Leading { get; }

    /// <summary>Markers without fields after the fields of the class.</summary>
    public IReadOnlyList<string> Trailing { get; }

    /// <summary>Fixed strings that begin a part.</summary>
    public IReadOnlyList<CadLabel> Labels { get; }

    /// <summary>Fixed strings that end a part.</summary>
    public IReadOnlyList<CadLabel> Ends { get; }

    /// <summary>The fields in drawing databases; null for a class that states none.</summary>
    public IReadOnlyList<BitItem>? Bits { get; }

    public bool HasCodec => HasClassAttribute || IsSequence || Properties.Count > 0 || Bits is not null;

    /// <summary>Whether the class is a part of objects, which has neither a type name nor subclasses.</summary>
    public bool IsPartOfObject => Kind.Length == 0;

    /// <summary>Whether the codes of the class are written among those of the classes that derive from it.</summary>
    public bool IsPart => !HasClassAttribute && IsAbstract;

    public static CadClass From(INamedTypeSymbol type) => new(type);

    /// <summary>Finds a property of the class, of its base classes or of its parts.</summary>
    /// <param name="path">The name, after those of the parts and periods.</param>
    /// <returns>The type, and what the attributes of the property say; null for none.</returns>
    public (ITypeSymbol? Type, CadProperty? Property) Find(string path)
    {
        ITypeSymbol? at = _type;
        CadProperty? property = null;
        foreach (string name in path.Split('.'))
        {
            IPropertySymbol? found = Member(at, name) ?? (at is INamedTypeSymbol owner
                ? IncludedIn(owner).FirstOrDefault(included => included.Name == name)?.Symbol : null);
            at = found?.Type;
            property = found is null ? null : CadProperty.From(found);
        }

        return (at, property);
    }

    private static IPropertySymbol? Member(ITypeSymbol? type, string name)
    {
        for (ITypeSymbol? current = type; current is not null; current = current.BaseType)
        {
            if (current.GetMembers(name).OfType<IPropertySymbol>().FirstOrDefault() is { } found)
            {
                return found;
            }
        }

        return null;
    }

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
        return type.Name is "CadEntityBase" or "CadObjectBase" or "CadBaseAcds" or "CadSymbolTableGroupCodes";
    }

    private static AttributeData? Attribute(INamedTypeSymbol type)
    {
        return type.GetAttributes().FirstOrDefault(attribute => attribute.AttributeClass?.Name == ClassAttribute);
    }

    private static bool Has(INamedTypeSymbol type, string attribute)
    {
        return type.GetAttributes().Any(candidate => candidate.AttributeClass?.Name == attribute);
    }

    private static IEnumerable<string> Texts(INamedTypeSymbol type, string attribute, string name)
    {
        return type.GetAttributes().Where(candidate => candidate.AttributeClass?.Name == attribute)
            .Select(candidate => Named(candidate, name)).OfType<string>();
    }

    private static object? Named(AttributeData? attribute, string name)
    {
        return attribute?.NamedArguments.Where(argument => argument.Key == name)
            .Select(argument => argument.Value.Value).FirstOrDefault();
    }
}
