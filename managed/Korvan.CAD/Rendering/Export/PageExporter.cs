using System;
using System.IO;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.ImageOptions.SvgOptionsParameters;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Pdf;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Export;

/// <summary>Draws scenes onto pages and hands these to the writers of page formats.</summary>
internal static class PageExporter
{
    private const double PointsPerInch = 72;
    private const double UserUnitsPerInch = 96;

    /// <summary>Writes all pages that the options ask for.</summary>
    internal static void WritePdf(VectorScene scene, PdfOptions options, ExportContext context, Stream output)
    {
        using TextEngine engine = context.NewEngine();
        var pages = new PageSource(scene, context, engine, DeviceKind.Points, PointsPerInch)
        {
            InParts = true,
            HasSymbols = true,
            HasHiddenText = true,
            LargestPage = PdfDocument.LargestPage,
        };
        PdfDocument.Write(output, engine, pages.Pages(), new PdfSettings
        {
            Info = DocumentInfoReader.Read(options) with { Created = scene.Created, Modified = scene.Modified },
            Compliance = options.CorePdfOptions?.Compliance ?? PdfCompliance.Pdf15,
            Signature = options.CorePdfOptions?.DigitalSignatureDetails,
        });
    }

    internal static void WriteSvg(VectorScene scene, SvgOptions options, ExportContext context, Stream output)
    {
        using TextEngine engine = context.NewEngine();
        var pages = new PageSource(scene, context, engine, DeviceKind.UserUnits, UserUnitsPerInch)
        {
            InParts = options.TextAsShapes || options.FontStoreType == FontStoreType.Installed, // no fonts come first
            HasSymbols = true,
            HasHiddenText = true,
        };
        SvgDocument.Write(output, engine, pages.SinglePage(), options);
    }

    internal static void WriteHtml(VectorScene scene, Html5Options options, ExportContext context, Stream output)
    {
        using TextEngine engine = context.NewEngine();
        var pages = new PageSource(scene, context, engine, DeviceKind.UserUnits, UserUnitsPerInch)
        {
            InParts = true,
        };
        HtmlCanvasDocument.Write(output, engine, pages.SinglePage(), options);
    }

    /// <summary>Writes the one page that the options ask for, in points.</summary>
    internal static void WriteSingle<T>(
        VectorScene scene, T options, ExportContext context, Stream output,
        Action<Stream, TextEngine, Page, T> write)
    {
        using TextEngine engine = context.NewEngine();
        var pages = new PageSource(scene, context, engine, DeviceKind.Points, PointsPerInch)
        {
            InParts = true,
        };
        write(output, engine, pages.SinglePage(), options);
    }

    /// <summary>Gives the pixels of the one page that the options ask for.</summary>
    internal static RasterPage Rasterize(VectorScene scene, ExportContext context)
    {
        using TextEngine engine = context.NewEngine();
        var pages = new PageSource(scene, context, engine, DeviceKind.Pixels, context.Resolution);
        return RasterPage.Render(engine, pages.SinglePage());
    }
}
