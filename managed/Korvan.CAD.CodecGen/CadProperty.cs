using System.Linq;
using Microsoft.CodeAnalysis;
using Microsoft.CodeAnalysis.CSharp.Syntax;

namespace Korvan.CAD.CodecGen;

/// <summary>A property with a group code.</summary>
internal sealed class CadProperty
{
    private CadProperty(IPropertySymbol symbol, AttributeData attribute)
    {
        Name = symbol.Name;
        Kind = attribute.AttributeClass!.Name.Replace("Attribute", "");
        Code = (int)attribute.ConstructorArguments[0].Value!;
        Optional = attribute.NamedArguments.Any(argument => argument.Key == "Optional" && argument.Value.Value is true);
        Since = attribute.NamedArguments.Where(argument => argument.Key == "Since")
            .Select(argument => (int)argument.Value.Value!).FirstOrDefault();
        TypeName = symbol.Type.ToDisplayString(SymbolDisplayFormat.FullyQualifiedFormat);
        IsEnum = symbol.Type.TypeKind == TypeKind.Enum;
        Initial = symbol.DeclaringSyntaxReferences.Select(reference => reference.GetSyntax())
            .OfType<PropertyDeclarationSyntax>().FirstOrDefault()?.Initializer?.Value.ToString();
    }

    public string Name { get; }

    /// <summary>The attribute, as in <c>Cad3DPoint</c>.</summary>
    public string Kind { get; }

    public int Code { get; }

    public bool Optional { get; }

    public int Since { get; }

    public string TypeName { get; }

    public bool IsEnum { get; }

    /// <summary>The text of the initial value.</summary>
    public string? Initial { get; }

    public bool IsPoint => Kind is "Cad2DPoint" or "Cad3DPoint";

    public static CadProperty? From(IPropertySymbol symbol)
    {
        AttributeData? attribute = symbol.GetAttributes().FirstOrDefault(candidate =>
            candidate.AttributeClass?.BaseType?.Name == "CadPropertyAttribute");
        return attribute is null ? null : new CadProperty(symbol, attribute);
    }
}
