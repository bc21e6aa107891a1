using System.Collections.Generic;
using System.IO;
using Korvan.CAD.Rendering.Native;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Writes pages as PDF (many) or SVG (one); device units are points and pixels of 1/96 inch.</summary>
internal static unsafe class VectorDocument
{
    private const int SvgUnitPixel = 3;
    private const int PdfVersion15 = 1;

    internal static void WritePdf(Stream output, TextEngine engine, IEnumerable<Page> pages, in DocumentInfo info)
    {
        using var sink = new StreamSink(output);
        nint surface = 0;
        nint cr = 0;
        try
        {
            foreach (Page page in pages)
            {
                if (surface == 0)
                {
                    surface = Cairo.PdfSurfaceCreate(StreamSink.Callback, sink.Closure, page.Width, page.Height);
                    Cairo.Check(Cairo.SurfaceStatus(surface), "starting a PDF document");
                    Cairo.PdfSurfaceRestrictToVersion(surface, PdfVersion15);
                    Describe(surface, info);
                    cr = Cairo.Create(surface);
                }
                else
                {
                    Cairo.PdfSurfaceSetSize(surface, page.Width, page.Height);
                }

                Cairo.PdfSurfaceSetPageLabel(surface, page.Name);
                CairoPainter.Paint(cr, engine, page);
                Cairo.ShowPage(cr);
                sink.Rethrow();
                Cairo.Check(Cairo.Status(cr), $"writing the page \"{page.Name}\"");
            }

            Finish(surface, sink, "PDF");
        }
        finally
        {
            Release(cr, surface);
        }
    }

    internal static void WriteSvg(Stream output, TextEngine engine, Page page)
    {
        using var sink = new StreamSink(output);
        nint surface = Cairo.SvgSurfaceCreate(StreamSink.Callback, sink.Closure, page.Width, page.Height);
        nint cr = Cairo.Create(surface);
        try
        {
            Cairo.SvgSurfaceSetDocumentUnit(surface, SvgUnitPixel);
            CairoPainter.Paint(cr, engine, page);
            Cairo.ShowPage(cr);
            Finish(surface, sink, "SVG");
        }
        finally
        {
            Release(cr, surface);
        }
    }

    private static void Describe(nint surface, in DocumentInfo info)
    {
        SetInfo(surface, CairoPdfMetadata.Title, info.Title);
        SetInfo(surface, CairoPdfMetadata.Author, info.Author);
        SetInfo(surface, CairoPdfMetadata.Subject, info.Subject);
        SetInfo(surface, CairoPdfMetadata.Keywords, info.Keywords);
        SetInfo(surface, CairoPdfMetadata.Creator, DocumentInfo.Creator);
    }

    private static void SetInfo(nint surface, CairoPdfMetadata key, string? value)
    {
        if (!string.IsNullOrEmpty(value))
        {
            Cairo.PdfSurfaceSetMetadata(surface, key, value);
        }
    }

    private static void Finish(nint surface, StreamSink sink, string kind)
    {
        if (surface != 0)
        {
            Cairo.SurfaceFinish(surface);
        }

        sink.Complete();
        if (surface != 0)
        {
            Cairo.Check(Cairo.SurfaceStatus(surface), $"finishing the {kind} document");
        }
    }

    // Destroying a surface that was not finished still writes; the sink is alive until its using ends.
    private static void Release(nint cr, nint surface)
    {
        if (cr != 0)
        {
            Cairo.Destroy(cr);
        }

        if (surface != 0)
        {
            Cairo.SurfaceDestroy(surface);
        }
    }
}
