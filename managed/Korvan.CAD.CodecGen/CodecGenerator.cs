using System.Linq;
using System.Text;
using Microsoft.CodeAnalysis;
using Microsoft.CodeAnalysis.CSharp;
using Microsoft.CodeAnalysis.CSharp.Syntax;
using Microsoft.CodeAnalysis.Text;

namespace Korvan.CAD.CodecGen;

/// <summary>
/// Writes the exchange of fields from the attributes on properties, so that nothing is looked up by reflection when a
/// drawing is loaded.
/// </summary>
[Generator]
public sealed class CodecGenerator : IIncrementalGenerator
{
    /// <inheritdoc/>
    public void Initialize(IncrementalGeneratorInitializationContext context)
    {
        IncrementalValuesProvider<CodecUnit> units = context.SyntaxProvider
            .CreateSyntaxProvider(
                static (node, _) => IsCandidate(node),
                static (syntax, _) => Describe(syntax))
            .Where(static unit => unit is not null)
            .Select(static (unit, _) => unit!);
        context.RegisterSourceOutput(units, static (output, unit) =>
            output.AddSource(unit.HintName, SourceText.From(unit.Text, Encoding.UTF8)));
        context.RegisterSourceOutput(units.Collect(), static (output, all) =>
            output.AddSource("ObjectTypes.g.cs", SourceText.From(TypeTable.Write(all), Encoding.UTF8)));
    }

    private static bool IsCandidate(SyntaxNode node)
    {
        return node is ClassDeclarationSyntax declaration
            && declaration.Modifiers.Any(SyntaxKind.PartialKeyword)
            && (declaration.AttributeLists.Count > 0
                || declaration.Members.Any(
                    member => member is PropertyDeclarationSyntax { AttributeLists.Count: > 0 }));
    }

    private static CodecUnit? Describe(GeneratorSyntaxContext syntax)
    {
        if (syntax.SemanticModel.GetDeclaredSymbol(syntax.Node) is not INamedTypeSymbol type)
        {
            return null;
        }

        CadClass model = CadClass.From(type);
        bool first = type.DeclaringSyntaxReferences.Select(reference => reference.GetSyntax())
            .FirstOrDefault(IsCandidate) == syntax.Node;
        return model.HasCodec && first ? CodecWriter.Write(model) : null;
    }
}
