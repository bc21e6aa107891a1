using System;
using System.Collections.Generic;
using System.IO;
using Korvan.CAD.DisplayList;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>
/// Writes pages as a PDF document (ISO 32000-1): PDF 1.5, or PDF 1.4 for archives (ISO 19005-1). Pages are written one
/// after the other; what they share follows at the end.
/// </summary>
internal sealed class PdfDocument
{
    /// <summary>The largest side of a page (about 5 km), in points.</summary>
    internal const double LargestPage = 1000 * MaxPageUnits;

    /// <summary>The largest side of a page in units of its own (ISO 32000-1, annex C).</summary>
    private const double MaxPageUnits = 14_400;
    private const double MinPageUnits = 3;

    private readonly PdfFile _file;
    private readonly PdfSettings _settings;
    private readonly TextEngine _engine;
    private readonly List<PdfPage> _pages = [];
    private readonly int _pageTree;
    private readonly int[] _alphaStates = new int[256];

    private PdfDocument(Stream output, TextEngine engine, PdfSettings settings)
    {
        _settings = settings;
        _engine = engine;
        _file = new PdfFile(output, compact: !IsArchive);
        _pageTree = _file.New();
        Fonts = new PdfFonts(_file);
        Images = new PdfImages(_file, HasTransparency);
        Gradients = new PdfGradients(_file);
        Layers = new PdfLayers(_file);
    }

    /// <summary>Gets whether the document is an archive.</summary>
    internal bool IsArchive => _settings.Compliance != PdfCompliance.Pdf15;

    /// <summary>Gets whether content may be transparent, which the first archives exclude (ISO 19005-1, 6.4).</summary>
    internal bool HasTransparency => !IsArchive;

    /// <summary>Gets whether layers are optional content, which the first archives exclude (ISO 19005-1, 6.1.13).
    /// </summary>
    internal bool HasLayers => !IsArchive;

    /// <summary>Gets whether content has a structure.</summary>
    internal bool IsTagged => _settings.Compliance == PdfCompliance.PdfA1a;

    internal PdfFonts Fonts { get; }

    internal PdfImages Images { get; }

    internal PdfGradients Gradients { get; }

    internal PdfLayers Layers { get; }

    /// <summary>Writes a document of pages.</summary>
    internal static void Write(Stream output, TextEngine engine, IEnumerable<Page> pages, PdfSettings settings)
    {
        if (settings.Signature is null)
        {
            new PdfDocument(output, engine, settings).WriteAll(pages, null);
            return;
        }

        using var signer = new PdfSigner(settings.Signature);
        using var unsigned = new MemoryStream();
        new PdfDocument(unsigned, engine, settings).WriteAll(pages, signer);
        byte[] document = unsigned.ToArray();
        signer.Sign(document);
        output.Write(document);
    }

    /// <summary>The colour that is written: as it is, or blended with the page where nothing may be transparent.
    /// </summary>
    internal Rgba Flatten(Rgba color, in PaintSettings settings, RenderNotes notes)
    {
        if (HasTransparency || color.A == 255)
        {
            return color;
        }

        notes.Add(RenderErrorCode.TransparencyBlended, "transparent colours were mixed with that of the page");
        byte Blend(byte over, byte below) => (byte)(((over * color.A) + (below * (255 - color.A)) + 127) / 255);
        Rgba page = settings.Background;
        return new Rgba(Blend(color.R, page.R), Blend(color.G, page.G), Blend(color.B, page.B));
    }

    /// <summary>Returns the number of a new object.</summary>
    internal int NewObject() => _file.New();

    /// <summary>The state of an opacity.</summary>
    internal int AlphaState(byte alpha)
    {
        ref int number = ref _alphaStates[alpha];
        if (number == 0)
        {
            number = _file.New();
            long part = PdfBuffer.Part(alpha);
            _file.Add(number, new PdfBuffer().Raw("<</Type/ExtGState/ca "u8).Fixed(part, 3).Raw("/CA "u8)
                .Fixed(part, 3).Raw(">>"u8));
        }

        return number;
    }

    private void WriteAll(IEnumerable<Page> pages, PdfSigner? signer)
    {
        try
        {
            foreach (Page page in pages)
            {
                WritePage(page, signer);
            }

            Fonts.Write(listGlyphs: IsArchive);
            new PdfCatalog(_file, _settings, Layers, _pages, _pageTree).Write(signer);
        }
        finally
        {
            Fonts.Release();
        }
    }

    private void WritePage(Page page, PdfSigner? signer)
    {
        double unit = UnitOf(page);
        var resources = new PdfResources();
        int content = _file.New();
        using (PdfStream stream = _file.Open(content))
        {
            _ = IsTagged ? stream.Content.Raw("/Figure<</MCID 0>>BDC\n"u8) : stream.Content;
            var painter = new PdfPainter(this, stream, _engine, page, resources, unit);
            painter.Paint();
            _ = IsTagged ? stream.Content.Raw("EMC\n"u8) : stream.Content;
            stream.Close();
            painter.WriteForms(_file);
        }

        Images.Write();
        Gradients.Write();
        int number = _file.New();
        var body = new PdfBuffer();
        body.Raw("<</Type/Page/Parent "u8).Ref(_pageTree).Raw("/MediaBox[0 0 "u8)
            .Real(Math.Max(page.Width / unit, MinPageUnits)).Raw((byte)' ')
            .Real(Math.Max(page.Height / unit, MinPageUnits)).Raw("]/Contents "u8).Ref(content).Raw("/Resources"u8);
        resources.Append(body);
        _ = unit > 1 ? body.Raw("/UserUnit "u8).Real(unit) : body;
        _ = HasTransparency ? body.Raw("/Group<</S/Transparency/CS/DeviceRGB>>"u8) : body;
        _ = IsTagged ? body.Raw("/StructParents "u8).Int(_pages.Count) : body;
        AppendAnnotations(body, page, unit, number, _pages.Count == 0 ? signer : null);

        _file.Add(number, body.Raw(">>"u8));
        _pages.Add(new PdfPage(number, page.Name, unit));
    }

    /// <summary>Writes the links of a page and the field of a signature, and adds them to the page.</summary>
    private void AppendAnnotations(PdfBuffer body, Page page, double unit, int number, PdfSigner? signer)
    {
        // A structure would have to hold the links as well.
        int[] links = IsTagged ? [] : PdfLinks.Write(_file, page, unit);
        if (links.Length == 0 && signer is null)
        {
            return;
        }

        body.Raw("/Annots["u8);
        foreach (int link in links)
        {
            body.Ref(link).Raw((byte)' ');
        }

        _ = signer is null ? body : body.Ref(signer.AddTo(_file, number));
        body.Raw((byte)']');
    }

    /// <summary>The points of a unit of a page: 1, or more for pages that are too large for it.</summary>
    private double UnitOf(Page page)
    {
        double side = Math.Max(page.Width, page.Height);
        if (side <= MaxPageUnits)
        {
            return 1;
        }

        return IsArchive
            ? throw new RenderException(
                $"A page of {page.Width:0} × {page.Height:0} points is too large for the archive that compliance asks "
                    + $"for: at most {MaxPageUnits} on a side; give a page size, or leave compliance at PDF15.")
            : Math.Ceiling(side / MaxPageUnits);
    }
}

/// <summary>A page that was written: its object, the name of its layout, and the points of its unit.</summary>
internal sealed record PdfPage(int Number, string Name, double Unit);
