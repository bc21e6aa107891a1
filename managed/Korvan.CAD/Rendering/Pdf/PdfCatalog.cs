using System;
using System.Collections.Generic;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>Writes what describes a document as a whole: the tree of pages with their names, layers, metadata, and what
/// archives need.</summary>
internal sealed class PdfCatalog(
    PdfFile file, PdfSettings settings, PdfLayers layers, IReadOnlyList<PdfPage> pages, int pageTree)
{
    private const int PagesPerNode = 200;

    private readonly PdfBuffer _body = new();

    private bool IsArchive => settings.Compliance != PdfCompliance.Pdf15;

    internal void Write(PdfSigner? signer)
    {
        WritePageTree();
        var catalog = new PdfBuffer();
        catalog.Raw("<</Type/Catalog/Pages "u8).Ref(pageTree);
        AppendNames(catalog);
        layers.Write(catalog);
        int metadata = file.New();
        file.AddStream(metadata, _body.Cleared().Raw("/Type/Metadata/Subtype/XML"u8),
            PdfMetadata.Packet(settings), compress: false);
        catalog.Raw("/Metadata "u8).Ref(metadata);
        if (IsArchive)
        {
            AppendOutputIntent(catalog);
        }

        if (settings.Compliance == PdfCompliance.PdfA1a)
        {
            AppendStructure(catalog);
        }

        foreach (PdfPage page in pages)
        {
            if (page.Unit > 1)
            {
                catalog.Raw("/Version/1.6"u8);
                break;
            }
        }

        signer?.AppendForm(catalog);
        int root = file.New();
        int info = file.New();
        file.Add(root, catalog.Raw(">>"u8));
        file.AddPlain(info, PdfMetadata.Info(settings.Info));
        file.Finish(root, info);
    }

    /// <summary>Writes the pages in nodes of bounded size.</summary>
    private void WritePageTree()
    {
        var nodes = new List<int>();
        for (int first = 0; first < pages.Count && pages.Count > PagesPerNode; first += PagesPerNode)
        {
            nodes.Add(file.New());
        }

        _body.Cleared().Raw("<</Type/Pages/Count "u8).Int(pages.Count).Raw("/Kids["u8);
        IEnumerable<int> kids = nodes;
        if (nodes.Count == 0)
        {
            kids = Numbers(0, pages.Count);
        }

        AppendReferences(_body, kids);
        file.Add(pageTree, _body.Raw("]>>"u8));
        for (int i = 0; i < nodes.Count; i++)
        {
            int first = i * PagesPerNode;
            int count = Math.Min(PagesPerNode, pages.Count - first);
            _body.Cleared().Raw("<</Type/Pages/Parent "u8).Ref(pageTree).Raw("/Count "u8).Int(count).Raw("/Kids["u8);
            AppendReferences(_body, Numbers(first, count));
            file.Add(nodes[i], _body.Raw("]>>"u8));
        }
    }

    private IEnumerable<int> Numbers(int first, int count)
    {
        for (int i = first; i < first + count; i++)
        {
            yield return pages[i].Number;
        }
    }

    private static void AppendReferences(PdfBuffer body, IEnumerable<int> numbers)
    {
        foreach (int number in numbers)
        {
            body.Ref(number).Raw((byte)' ');
        }
    }

    /// <summary>Writes the names of layouts as bookmarks and labels of their pages.</summary>
    private void AppendNames(PdfBuffer catalog)
    {
        if (pages.Count == 0)
        {
            return;
        }

        int outline = file.New();
        var items = new int[pages.Count];
        for (int i = 0; i < items.Length; i++)
        {
            items[i] = file.New();
        }

        file.Add(outline, _body.Cleared().Raw("<</Type/Outlines/First "u8).Ref(items[0]).Raw("/Last "u8)
            .Ref(items[^1]).Raw("/Count "u8).Int(items.Length).Raw(">>"u8));
        for (int i = 0; i < items.Length; i++)
        {
            _body.Cleared().Raw("<</Title"u8).Text(pages[i].Name).Raw("/Parent "u8).Ref(outline).Raw("/Dest["u8)
                .Ref(pages[i].Number).Raw("/Fit]"u8);
            _ = i > 0 ? _body.Raw("/Prev "u8).Ref(items[i - 1]) : _body;
            _ = i + 1 < items.Length ? _body.Raw("/Next "u8).Ref(items[i + 1]) : _body;
            file.Add(items[i], _body.Raw(">>"u8));
        }

        int labels = file.New();
        _body.Cleared().Raw("<</Nums["u8);
        for (int i = 0; i < pages.Count; i++)
        {
            _body.Int(i).Raw("<</P"u8).Text(pages[i].Name).Raw(">>"u8);
        }

        file.Add(labels, _body.Raw("]>>"u8));
        catalog.Raw("/Outlines "u8).Ref(outline).Raw("/PageLabels "u8).Ref(labels)
            .Raw(pages.Count > 1 ? "/PageMode/UseOutlines"u8 : default);
    }

    /// <summary>Writes the colour space that colours of the device are in (ISO 19005-1, 6.2.2).</summary>
    private void AppendOutputIntent(PdfBuffer catalog)
    {
        int profile = file.New();
        file.AddStream(profile, _body.Cleared().Raw("/N 3"u8), SrgbProfile.Bytes());
        catalog.Raw("/OutputIntents[<</Type/OutputIntent/S/GTS_PDFA1/OutputConditionIdentifier"u8)
            .Text(SrgbProfile.Name).Raw("/Info"u8).Text(SrgbProfile.Name).Raw("/DestOutputProfile "u8).Ref(profile)
            .Raw(">>]"u8);
    }

    /// <summary>Writes a structure in which each page is a figure with the name of its layout (ISO 32000-1, 14.7).
    /// </summary>
    private void AppendStructure(PdfBuffer catalog)
    {
        int root = file.New();
        int document = file.New();
        int parents = file.New();
        var figures = new int[pages.Count];
        for (int i = 0; i < figures.Length; i++)
        {
            figures[i] = file.New();
            file.Add(figures[i], _body.Cleared().Raw("<</Type/StructElem/S/Figure/P "u8).Ref(document).Raw("/Pg "u8)
                .Ref(pages[i].Number).Raw("/K 0/Alt"u8).Text(pages[i].Name).Raw(">>"u8));
        }

        _body.Cleared().Raw("<</Type/StructElem/S/Document/P "u8).Ref(root).Raw("/K["u8);
        AppendReferences(_body, figures);
        file.Add(document, _body.Raw("]>>"u8));
        _body.Cleared().Raw("<</Nums["u8);
        for (int i = 0; i < figures.Length; i++)
        {
            _body.Int(i).Raw((byte)'[').Ref(figures[i]).Raw((byte)']');
        }

        file.Add(parents, _body.Raw("]>>"u8));
        file.Add(root, _body.Cleared().Raw("<</Type/StructTreeRoot/K "u8).Ref(document).Raw("/ParentTree "u8)
            .Ref(parents).Raw(">>"u8));
        catalog.Raw("/MarkInfo<</Marked true>>/Lang(und)/StructTreeRoot "u8).Ref(root);
    }
}
