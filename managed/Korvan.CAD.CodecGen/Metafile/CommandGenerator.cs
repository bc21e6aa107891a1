using System.Text;
using Microsoft.CodeAnalysis;
using Microsoft.CodeAnalysis.Text;

namespace Korvan.CAD.CodecGen.Metafile;

/// <summary>
/// Writes the constructors, the exchange of parameters and the text form of metafile commands from their declarations,
/// the table of elements from all commands, and the keyword tables from enums.
/// </summary>
[Generator]
public sealed class CommandGenerator : IIncrementalGenerator
{
    private const string Namespace = "Korvan.CAD.FileFormats.Cgm.Commands.";

    /// <inheritdoc/>
    public void Initialize(IncrementalGeneratorInitializationContext context)
    {
        IncrementalValuesProvider<CommandUnit> commands = Units(context, "CgmCommandAttribute");
        IncrementalValuesProvider<CommandUnit> groups = Units(context, "CgmGroupAttribute");
        IncrementalValuesProvider<KeywordEntry> keywords = context.SyntaxProvider.ForAttributeWithMetadataName(
            Namespace + "CgmKeywordAttribute",
            static (_, _) => true,
            static (found, _) => KeywordEntry.From((IFieldSymbol)found.TargetSymbol, found.Attributes[0]));

        context.RegisterSourceOutput(commands, Add);
        context.RegisterSourceOutput(groups, Add);
        context.RegisterSourceOutput(commands.Collect(), static (output, all) =>
            Add(output, "Metafile.Elements.g.cs", ElementTableWriter.Write(all)));
        context.RegisterSourceOutput(keywords.Collect(), static (output, all) =>
            Add(output, "Metafile.Keywords.g.cs", KeywordTableWriter.Write(all)));
    }

    private static IncrementalValuesProvider<CommandUnit> Units(
        IncrementalGeneratorInitializationContext context, string attribute)
    {
        return context.SyntaxProvider.ForAttributeWithMetadataName(
            Namespace + attribute,
            static (_, _) => true,
            static (found, _) => CommandWriter.Write(new CommandClass((INamedTypeSymbol)found.TargetSymbol)));
    }

    private static void Add(SourceProductionContext output, CommandUnit unit) => Add(output, unit.HintName, unit.Text);

    private static void Add(SourceProductionContext output, string hintName, string text) =>
        output.AddSource(hintName, SourceText.From(text, Encoding.UTF8));
}
