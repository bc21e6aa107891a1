using System;
using System.IO;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Formats.Pages;

/// <summary>Writers of rendered pages.</summary>
internal static class PageWriters
{
    /// <summary>Creates a writer of a format with pages of vector graphics.</summary>
    internal static FormatWriter For<TOptions>(Action<VectorScene, TOptions, ExportContext, Stream> write)
        where TOptions : ImageOptionsBase =>
        FormatWriter.For<IPageContent, TOptions>(OutputKind.Page, (content, options, context, output) =>
            Draw(content, context, () => write(content.OpenScene(), options, context, output)));

    /// <summary>Verifies that the options are supported, then renders the content.</summary>
    internal static void Draw(IPageContent content, ExportContext context, Action draw)
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
