using System.Collections.Generic;
using System.Linq;
using Microsoft.CodeAnalysis;
using Microsoft.CodeAnalysis.CSharp;
using Microsoft.CodeAnalysis.CSharp.Syntax;

namespace Korvan.CAD.CodecGen;

/// <summary>A property with a group code.</summary>
internal sealed class CadProperty
{
    private CadProperty(IPropertySymbol symbol, AttributeData attribute)
    {
        Name = symbol.Name;
        Kind = attribute.AttributeClass!.Name.Replace("Attribute", "");
        Code = attribute.ConstructorArguments.Select(argument => argument.Value).OfType<int>().FirstOrDefault();
        Optional = attribute.NamedArguments.Any(argument => argument.Key == "Optional" && argument.Value.Value is true);
        Since = attribute.NamedArguments.Where(argument => argument.Key == "Since")
            .Select(argument => (int)argument.Value.Value!).FirstOrDefault();
        TypeName = symbol.Type.ToDisplayString(SymbolDisplayFormat.FullyQualifiedFormat)
            + (symbol.NullableAnnotation == NullableAnnotation.Annotated ? "?" : "");
        When = symbol.GetAttributes().FirstOrDefault(one => one.AttributeClass?.Name == "CadWhenAttribute")
            ?.ConstructorArguments[0].Value as string ?? "";
        IsEnum = symbol.Type.TypeKind == TypeKind.Enum;
        ElementType = (symbol.Type as INamedTypeSymbol)?.TypeArguments.FirstOrDefault()?.Name ?? "";
        Count = attribute.NamedArguments.Where(argument => argument.Key == "Count")
            .Select(argument => (int)argument.Value.Value!).FirstOrDefault();
        SecondCode = Kind == "CadSize" ? (int)attribute.ConstructorArguments[1].Value! : 0;
        Max = attribute.NamedArguments.Where(argument => argument.Key == "Max")
            .Select(argument => (int)argument.Value.Value!).FirstOrDefault();
        Subclass = symbol.GetAttributes().FirstOrDefault(one => one.AttributeClass?.Name == "CadSubclassAttribute")
            ?.ConstructorArguments[0].Value as string;
        Labels = [.. CadLabel.On(symbol, "CadLabelAttribute")];
        Table = Kind == "CadName" ? $"global::{attribute.ConstructorArguments[1].ToCSharpString()}" : "";
        Symbol = symbol;
        Initial = symbol.DeclaringSyntaxReferences.Select(reference => reference.GetSyntax())
            .OfType<PropertyDeclarationSyntax>().FirstOrDefault()?.Initializer?.Value.ToString();
    }

    public IPropertySymbol Symbol { get; }

    public string Name { get; }

    /// <summary>The attribute, as in <c>Cad3DPoint</c>.</summary>
    public string Kind { get; }

    public int Code { get; }

    /// <summary>The group code of the height of a size.</summary>
    public int SecondCode { get; }

    public bool Optional { get; }

    public int Since { get; }

    public string TypeName { get; }

    public bool IsEnum { get; }

    /// <summary>The type of the items of a list, as in <c>Double</c>.</summary>
    public string ElementType { get; }

    /// <summary>The group code of the number of items of a list; 0 where the format states none.</summary>
    public int Count { get; }

    /// <summary>The largest number of items of a list without a count; 0 for any number.</summary>
    public int Max { get; }

    /// <summary>The marker of the subclass that begins with this property; null within a subclass.</summary>
    public string? Subclass { get; }

    /// <summary>Fixed strings before the property.</summary>
    public IReadOnlyList<CadLabel> Labels { get; }

    /// <summary>The condition under which the object has the property, as source text; empty for always.</summary>
    public string When { get; }

    /// <summary>The symbol table that a name refers to, as source text.</summary>
    public string Table { get; }

    /// <summary>The text of the initial value.</summary>
    public string? Initial { get; }

    public bool IsPoint => Kind is "Cad2DPoint" or "Cad3DPoint";

    public bool IsList => Kind == "CadList";

    /// <summary>Whether the property is a list of parts, each of several fields.</summary>
    public bool IsRepeated => Kind == "CadRepeated";

    /// <summary>Whether the property is a part with fields of its own.</summary>
    public bool IsPart => Kind == "CadPart";

    /// <summary>How many group codes one value takes: the coordinates of a point, otherwise one.</summary>
    public int Axes => (IsList ? ElementType : Kind) switch
    {
        "Cad3DPoint" => 3,
        "Cad2DPoint" => 2,
        _ => 1,
    };

    /// <summary>What a handle means to its object, which the range of its group code states.</summary>
    public string HandleRole => Code switch
    {
        >= 330 and < 340 => "SoftPointer",
        >= 350 and < 360 => "SoftOwner",
        >= 360 and < 370 => "HardOwner",
        _ => "HardPointer",
    };

    public static CadProperty? From(IPropertySymbol symbol)
    {
        AttributeData? attribute = symbol.GetAttributes().FirstOrDefault(candidate =>
            Bases(candidate.AttributeClass).Any(type => type.Name == "CadPropertyAttribute"));
        return attribute is null ? null : new CadProperty(symbol, attribute);
    }

    private static IEnumerable<INamedTypeSymbol> Bases(INamedTypeSymbol? type)
    {
        for (INamedTypeSymbol? current = type?.BaseType; current is not null; current = current.BaseType)
        {
            yield return current;
        }
    }
}
