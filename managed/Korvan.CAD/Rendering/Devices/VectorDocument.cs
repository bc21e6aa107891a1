using System.IO;
using Korvan.CAD.Rendering.Native;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Writes a page as SVG; device units are pixels of 1/96 inch.</summary>
internal static unsafe class VectorDocument
{
    private const int SvgUnitPixel = 3;

    internal static void WriteSvg(Stream output, TextEngine engine, Page page)
    {
        using var sink = new StreamSink(output);
        nint svg = Cairo.SvgSurfaceCreate(StreamSink.Callback, sink.Closure, page.Width, page.Height);
        using var surface = new NativeHandle(svg, &Cairo.SurfaceDestroy);
        using var cr = new NativeHandle(Cairo.Create(svg), &Cairo.Destroy);
        Cairo.SvgSurfaceSetDocumentUnit(svg, SvgUnitPixel);
        CairoPainter.Paint(cr.Pointer, engine, page);
        Cairo.ShowPage(cr.Pointer);
        Finish(surface, sink, "SVG");
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
