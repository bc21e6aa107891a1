using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Exif;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster.Operations;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.Raster;

/// <summary>Pages that are rendered to pixels one at a time: layouts of a drawing, frames of an image.</summary>
internal interface IRasterPages
{
    /// <summary>Gets the names of the pages; a page without one has an empty name.</summary>
    IReadOnlyList<string> Titles { get; }

    /// <summary>Returns the pixels of a page; the caller owns them.</summary>
    RasterPageData Render(int index);
}

/// <summary>The pixels of a page, with its resolution in pixels per inch.</summary>
internal sealed record RasterPageData(
    PixelGrid Pixels, double HorizontalResolution, double VerticalResolution) : IDisposable
{
    /// <summary>Gets the metadata of the source; options may override it.</summary>
    internal ExifData? Exif { get; init; }

    internal XmpPacketWrapper? Xmp { get; init; }

    /// <summary>Returns the page rotated and flipped; this one is disposed.</summary>
    internal RasterPageData RotatedFlipped(RotateFlipType type)
    {
        if (type == RotateFlipType.RotateNoneFlipNone)
        {
            return this;
        }

        using (this)
        {
            bool swap = ((int)type & 1) != 0;
            return this with
            {
                Pixels = Rotation.RotateFlip(Pixels, type),
                HorizontalResolution = swap ? VerticalResolution : HorizontalResolution,
                VerticalResolution = swap ? HorizontalResolution : VerticalResolution,
            };
        }
    }

    public void Dispose() => Pixels.Dispose();
}

/// <summary>Selects the pages of options.</summary>
internal static class PageChoice
{
    /// <summary>The pixels of further pages that take about as long as one step of the budget: those of an empty one
    /// are not free.</summary>
    private const int PixelsPerStep = 700;

    internal static int Single(IRasterPages pages, FileFormat format)
    {
        if (pages.Titles.Count != 1)
        {
            throw new ImageSaveException(
                $"A {Verify.NameOf(format)} file holds one page, but there are {pages.Titles.Count} pages; name one "
                    + $"of them.");
        }

        return 0;
    }

    internal static List<int> Of(IRasterPages pages, MultiPageOptions? options)
    {
        int count = pages.Titles.Count;
        List<int> chosen = options?.Mode switch
        {
            MultiPageMode.Pages => [.. options.Pages],
            MultiPageMode.Titles => [.. options.PageTitles.Select(title => Find(pages, title))],
            MultiPageMode.Range when (uint)options.FirstPage <= (uint)count
                && (uint)options.PageCount <= (uint)(count - options.FirstPage) => Range(options, count),
            MultiPageMode.Range => throw new ImageSaveException(
                $"There are {count} pages; {options.PageCount} of them from {options.FirstPage} on do not exist, as"
                    + $" PageCount and FirstPage ask."),
            _ => [.. Enumerable.Range(0, count)],
        };
        foreach (int page in chosen)
        {
            if ((uint)page >= (uint)count)
            {
                throw new ImageSaveException($"There is no page {page}; pages are numbered 0 to {count - 1}.");
            }
        }

        return chosen.Count > 0 ? chosen
            : throw new ImageSaveException("The multi_page_options choose no page at all; a file needs one.");
    }

    private static List<int> Range(MultiPageOptions options, int count)
    {
        int length = options.PageCount > 0 ? options.PageCount : count - options.FirstPage;
        return [.. Enumerable.Range(options.FirstPage, length)];
    }

    /// <summary>Renders a page and crops it to the area of the options.</summary>
    internal static RasterPageData Render(IRasterPages pages, int index, MultiPageOptions? options)
    {
        RasterPageData page = pages.Render(index);
        if (index > 0)
        {
            Budget.Step(page.Pixels.Count / PixelsPerStep);
        }

        if (options == null || options.ExportArea.IsEmpty)
        {
            return page;
        }

        Rectangle area = options.ExportArea;
        if (area.X < 0 || area.Y < 0 || area.Width < 1 || area.Height < 1
            || area.Width > page.Pixels.Width - area.X || area.Height > page.Pixels.Height - area.Y)
        {
            string size = $"{page.Pixels.Width} × {page.Pixels.Height}";
            page.Dispose();
            throw new ImageSaveException($"The export_area {area} does not lie on page {index} of {size} pixels.");
        }

        page.Pixels.CropInPlace(area);
        return page;
    }

    private static int Find(IRasterPages pages, string title)
    {
        for (int i = 0; i < pages.Titles.Count; i++)
        {
            if (string.Equals(pages.Titles[i], title, StringComparison.OrdinalIgnoreCase))
            {
                return i;
            }
        }

        throw new ImageSaveException(
            $"No page is called \"{title}\", as page_titles ask; there are: {string.Join(", ", pages.Titles)}.");
    }
}
