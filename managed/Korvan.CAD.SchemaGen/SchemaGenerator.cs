using System.IO;
using System.Text;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Microsoft.CodeAnalysis;
using Microsoft.CodeAnalysis.Text;

namespace Korvan.CAD.SchemaGen;

/// <summary>Writes the classes of each table that is among the additional files: one source for the entities of an
/// edition, one for its types.</summary>
[Generator]
public sealed class SchemaGenerator : IIncrementalGenerator
{
    private const string Extension = ".table";

    /// <inheritdoc/>
    public void Initialize(IncrementalGeneratorInitializationContext context)
    {
        IncrementalValuesProvider<AdditionalText> tables =
            context.AdditionalTextsProvider.Where(static file => file.Path.EndsWith(Extension));
        context.RegisterSourceOutput(tables, static (output, file) => Write(output, file));
    }

    private static void Write(SourceProductionContext output, AdditionalText file)
    {
        string text = file.GetText(output.CancellationToken)?.ToString() ?? string.Empty;
        SchemaTable table = SchemaTable.Read(new StringReader(text));
        Edition edition = new Edition(table);
        output.AddSource($"{table.Name}.Entities.g.cs", Source(EntityWriter.Write(edition)));
        output.AddSource($"{table.Name}.Types.g.cs", Source(TypeWriter.Write(edition)));
    }

    private static SourceText Source(string text) => SourceText.From(text, Encoding.UTF8);
}
