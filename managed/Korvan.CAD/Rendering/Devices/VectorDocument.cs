using System.Collections.Generic;
using System.IO;
using Korvan.CAD.Rendering.Native;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Writes pages as PDF; device units are points.</summary>
internal static unsafe class VectorDocument
{
    private const int PdfVersion15 = 1;

    internal static void WritePdf(Stream output, TextEngine engine, IEnumerable<Page> pages, in DocumentInfo info)
    {
        using var sink = new StreamSink(output);
        NativeHandle? surface = null;
        NativeHandle? cr = null;
        try
        {
            foreach (Page page in pages)
            {
                if (surface is null)
                {
                    surface = StartPdf(sink, page, info);
                    cr = new NativeHandle(Cairo.Create(surface.Pointer), &Cairo.Destroy);
                }
                else
                {
                    Cairo.PdfSurfaceSetSize(surface.Pointer, page.Width, page.Height);
                }

                Cairo.PdfSurfaceSetPageLabel(surface.Pointer, page.Name);
                CairoPainter.Paint(cr!.Pointer, engine, page);
                Cairo.ShowPage(cr.Pointer);
                sink.Rethrow();
                Cairo.Check(Cairo.Status(cr.Pointer), $"writing the page \"{page.Name}\"");
            }

            Finish(surface, sink, "PDF");
        }
        finally
        {
            // Releasing a surface that was not finished still writes; the sink is alive until its using ends.
            cr?.Dispose();
            surface?.Dispose();
        }
    }

    private static NativeHandle StartPdf(StreamSink sink, Page page, in DocumentInfo info)
    {
        nint pdf = Cairo.PdfSurfaceCreate(StreamSink.Callback, sink.Closure, page.Width, page.Height);
        var surface = new NativeHandle(pdf, &Cairo.SurfaceDestroy);
        Cairo.Check(Cairo.SurfaceStatus(pdf), "starting a PDF document");
        Cairo.PdfSurfaceRestrictToVersion(pdf, PdfVersion15);
        Describe(pdf, info);
        return surface;
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

    private static void Finish(NativeHandle? surface, StreamSink sink, string kind)
    {
        if (surface is not null)
        {
            Cairo.SurfaceFinish(surface.Pointer);
        }

        sink.Complete();
        if (surface is not null)
        {
            Cairo.Check(Cairo.SurfaceStatus(surface.Pointer), $"finishing the {kind} document");
        }
    }
}
