using System;
using System.Collections.Generic;
using System.Diagnostics;
using System.IO;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Pdf;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Meshes;
using Korvan.CAD.Rendering.Pdf;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering;

/// <summary>Writes a drawing as pages or pixels. Every failure is an <see cref="ImageSaveException"/> that says why,
/// but those of the stream that is written to.</summary>
internal static class DrawingExporter
{
    private const double PointsPerInch = 72;
    private const double PixelsPerInch = 96;

    /// <summary>What writes a drawing with the options of a class.</summary>
    private static readonly Dictionary<Type, Action<Image, ImageOptionsBase, Stream>> Writers =
        new(RasterSaver.OptionTypes.Select(static type => KeyValuePair.Create<Type, Action<Image, ImageOptionsBase, Stream>>(type, WritePixels)))
        {
            [typeof(CgmOptions)] = (image, options, output) => WritePage(image, options, output, CgmDocument.Write, (CgmOptions)options),
            [typeof(EmfOptions)] = (image, options, output) => WritePage(image, options, output, EmfDocument.Write, (EmfOptions)options),
            [typeof(Html5Options)] = (image, options, output) => WriteHtml(image, (Html5Options)options, output),
            [typeof(PdfOptions)] = (image, options, output) => WritePdf(image, (PdfOptions)options, output),
            [typeof(SvgOptions)] = (image, options, output) => WriteSvg(image, (SvgOptions)options, output),
            [typeof(WmfOptions)] = (image, options, output) => WritePage(image, options, output, WmfDocument.Write, (WmfOptions)options),
        };

    /// <summary>What writes the bodies of a drawing; an image without bodies has no way into these.</summary>
    private static readonly Dictionary<Type, Action<Image, ImageOptionsBase, Stream>> BodyWriters = new()
    {
        [typeof(GlbOptions)] = (image, options, output) => MeshExporter.WriteGltf(((CadImage)image).Drawing, (GlbOptions)options, output),
        [typeof(GltfOptions)] = (image, options, output) => MeshExporter.WriteGltf(((CadImage)image).Drawing, (GltfOptions)options, output),
        [typeof(ObjOptions)] = (image, options, output) => MeshExporter.WriteObj(((CadImage)image).Drawing, (ObjOptions)options, output),
        [typeof(StlOptions)] = (image, options, output) => MeshExporter.WriteStl(((CadImage)image).Drawing, (StlOptions)options, output),
    };

    /// <summary>The classes of options that pages are written with.</summary>
    internal static IReadOnlyCollection<Type> PageOptionTypes => Writers.Keys;

    /// <summary>The classes of options that a drawing is written with.</summary>
    internal static IReadOnlyCollection<Type> OptionTypes => [.. Writers.Keys, .. BodyWriters.Keys];

    /// <summary>What content of lines and texts becomes with the options.</summary>
    internal static OutputKind KindOf(ImageOptionsBase options) =>
        BodyWriters.ContainsKey(options.GetType()) ? OutputKind.Faces
        : RasterSaver.Supports(options) ? OutputKind.Pixels : OutputKind.Page;

    internal static bool Writes(Image image, ImageOptionsBase options) => WriterFor(image, options) is not null;

    internal static void Export(Image image, ImageOptionsBase options, Stream output)
    {
        Verify.NotNull(image);
        Verify.NotNull(options);
        Verify.NotNull(output);
        Action<Image, ImageOptionsBase, Stream> write = WriterFor(image, options)
            ?? throw new ImageSaveException($"{image.GetType().Name} is not written with {options.GetType().Name}.");
        options.VerifyHonoured(KindOf(options));
        long start = Stopwatch.GetTimestamp();
        options.Notes = new RenderNotes();
        Guard(() =>
        {
            if (image is CadImage drawing)
            {
                LayerChoice.Verify(drawing.Drawing, options);
            }

            write(image, options, output);
        });
        options.RenderResult = new CadRenderResult(options.Notes.Results(), Stopwatch.GetElapsedTime(start));
    }

    /// <summary>The pixels of the one page that the options ask for, for formats that have their own encoder.</summary>
    internal static RasterPage Rasterize(Image image, ImageOptionsBase options)
    {
        RasterPage? result = null;
        Guard(() => result = RasterizeSingle(image, options));
        return result!;
    }

    private static Action<Image, ImageOptionsBase, Stream>? WriterFor(Image image, ImageOptionsBase options) =>
        Writers.GetValueOrDefault(options.GetType())
        ?? (image is CadImage ? BodyWriters.GetValueOrDefault(options.GetType()) : null);

    /// <summary>An engine with the fonts that the drawing was loaded with, and letters as the options ask for.</summary>
    internal static TextEngine NewEngine(Image image, ImageOptionsBase options) =>
        new(GlyphRendering.Of(options.VectorRasterizationOptions), FontFolders.Of(image.LoadOptions));

    private static void WritePdf(Image image, PdfOptions options, Stream output)
    {
        if (options.CorePdfOptions is { Compliance: not PdfCompliance.Pdf15 } document)
        {
            throw new RenderException(
                $"Pages are written as PDF 1.5, not as {Verify.NameOf(document.Compliance)}; leave compliance at "
                    + $"PDF15.");
        }

        using TextEngine engine = NewEngine(image, options);
        var pages = new PageSource((IVectorImage)image, options, engine, DeviceKind.Points, PointsPerInch);
        DocumentInfo info = DocumentInfoReader.Read(options);
        if (options.CorePdfOptions?.DigitalSignatureDetails is not { } signature)
        {
            VectorDocument.WritePdf(output, engine, pages.Pages(), info);
            return;
        }

        using var unsigned = new MemoryStream();
        VectorDocument.WritePdf(unsigned, engine, pages.Pages(), info);
        PdfSigner.Write(unsigned.ToArray(), signature, output);
    }

    private static void WriteSvg(Image image, SvgOptions options, Stream output)
    {
        using TextEngine engine = NewEngine(image, options);
        var pages = new PageSource((IVectorImage)image, options, engine, DeviceKind.UserUnits, PixelsPerInch);
        Page page = pages.SinglePage();
        if (options.TextAsShapes)
        {
            VectorDocument.WriteSvg(output, engine, page);
        }
        else
        {
            SvgTextDocument.Write(output, engine, page, options);
        }
    }

    /// <summary>Writes the one page that the options ask for, in points.</summary>
    private static void WritePage<T>(
        Image image, ImageOptionsBase options, Stream output, Action<Stream, TextEngine, Page, T> write, T own)
    {
        using TextEngine engine = NewEngine(image, options);
        var pages = new PageSource((IVectorImage)image, options, engine, DeviceKind.Points, PointsPerInch);
        write(output, engine, pages.SinglePage(), own);
    }

    private static void WriteHtml(Image image, Html5Options options, Stream output)
    {
        using TextEngine engine = NewEngine(image, options);
        var pages = new PageSource((IVectorImage)image, options, engine, DeviceKind.UserUnits, PixelsPerInch);
        HtmlCanvasDocument.Write(output, engine, pages.SinglePage(), options);
    }

    private static void WritePixels(Image image, ImageOptionsBase options, Stream output)
    {
        using var pages = new DrawingPages(image, options);
        RasterSaver.Write(pages, options, output);
    }

    private static RasterPage RasterizeSingle(Image image, ImageOptionsBase options)
    {
        using TextEngine engine = NewEngine(image, options);
        var pages = new PageSource((IVectorImage)image, options, engine, DeviceKind.Pixels, Resolution(options));
        return RasterPage.Render(engine, pages.SinglePage());
    }

    internal static double Resolution(ImageOptionsBase options) =>
        options.ResolutionSettings is { HorizontalResolution: > 0 } set ? set.HorizontalResolution : PixelsPerInch;

    private static void Guard(Action export)
    {
        try
        {
            export();
        }
        catch (RenderException e)
        {
            throw new ImageSaveException(e.Message, e.InnerException);
        }
        catch (Exception e) when (e is CadException or LimitMemoryException)
        {
            throw new ImageSaveException(e.Message);
        }
        catch (OutOfMemoryException)
        {
            throw new ImageSaveException("The drawing needs more memory than there is to be rendered.");
        }
    }
}
