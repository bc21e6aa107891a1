using System.Collections.Generic;
using System.Linq;
using System.Text;
using Microsoft.CodeAnalysis;
using Microsoft.CodeAnalysis.CSharp;
using Microsoft.CodeAnalysis.CSharp.Syntax;

namespace Korvan.CAD.CodecGen;

/// <summary>The declaration of a property that a class has from another one, with its documentation.</summary>
internal static class PropertyText
{
    public static string Declaration(CadProperty property)
    {
        StringBuilder text = new();
        foreach (string line in Documentation(property.Symbol))
        {
            text.AppendLine($"    {line}");
        }

        string set = property.Symbol.SetMethod is null ? "" : " set;";
        string initial = property.Initial is null ? "" : $" = {property.Initial};";
        string access = SyntaxFacts.GetText(property.Symbol.DeclaredAccessibility);
        text.AppendLine($"    {access} {property.TypeName} {property.Name} {{ get;{set} }}{initial}");
        return text.ToString();
    }

    private static IEnumerable<string> Documentation(IPropertySymbol symbol)
    {
        SyntaxNode? node = symbol.DeclaringSyntaxReferences.Select(reference => reference.GetSyntax())
            .OfType<PropertyDeclarationSyntax>().FirstOrDefault();
        return node is null ? []
            : node.GetLeadingTrivia().ToFullString().Split('\n').Select(line => line.Trim())
                .Where(line => line.StartsWith("///", System.StringComparison.Ordinal));
    }
}
