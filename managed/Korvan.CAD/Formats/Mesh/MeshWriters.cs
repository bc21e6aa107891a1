using System;
using System.IO;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.Formats.Pages;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering;

namespace Korvan.CAD.Formats.Mesh;

/// <summary>Writers of mesh formats.</summary>
internal static class MeshWriters
{
    /// <summary>Creates a writer.</summary>
    internal static FormatWriter For<TOptions>(Action<CadDrawing, TOptions, ExportContext, Stream> write)
        where TOptions : ImageOptionsBase =>
        FormatWriter.For<IDrawingContent, TOptions>(OutputKind.Faces, (content, options, context, output) =>
            PageWriters.Draw(content, context, () => write(content.Drawing, options, context, output)));
}
