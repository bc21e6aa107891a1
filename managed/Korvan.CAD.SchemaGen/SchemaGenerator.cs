using System.IO;
using System.Text;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Microsoft.CodeAnalysis;
using Microsoft.CodeAnalysis.Text;

namespace Korvan.CAD.SchemaGen;

/// <summary>Writes the classes of each table among the additional files: one source file for the entities of a schema,
/// one for its types.</summary>
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
        SchemaVersion version = new SchemaVersion(table);
        output.AddSource($"{table.Name}.Entities.g.cs", Source(EntityWriter.Write(version)));
        output.AddSource($"{table.Name}.Types.g.cs", Source(TypeWriter.Write(version)));
    }

    private static SourceText Source(string text) => SourceText.From(text, Encoding.UTF8);
}
