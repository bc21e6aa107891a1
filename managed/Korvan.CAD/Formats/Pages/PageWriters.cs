using System;
using System.IO;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Formats.Pages;

/// <summary>Writers of drawn content.</summary>
internal static class PageWriters
{
    /// <summary>Makes a writer of a format whose files are pages of lines, areas and texts.</summary>
    internal static FormatWriter For<TOptions>(Action<VectorScene, TOptions, ExportContext, Stream> write)
        where TOptions : ImageOptionsBase =>
        FormatWriter.For<IPageContent, TOptions>(OutputKind.Page, (content, options, context, output) =>
            Draw(content, context, () => write(content.OpenScene(), options, context, output)));

    /// <summary>Runs what draws the content, once it is sure that the options can be followed.</summary>
    internal static void Draw(object content, ExportContext context, Action draw)
    {
        if (content is IMetafileContent)
        {
            OptionRules.VerifyMetafile(context.Options);
        }

        ExportContext.Guard(() =>
        {
            if (content is IDrawingContent drawing)
            {
                LayerChoice.Verify(drawing.Drawing, context);
            }

            draw();
        });
    }
}
