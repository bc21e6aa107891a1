using System;

namespace Korvan.CAD.ImageOptions;

/// <summary>Which pages of a source with several are written: layouts of a drawing, frames of a picture.</summary>
public class MultiPageOptions
{
    /// <summary>Creates options that take all pages.</summary>
    public MultiPageOptions()
    {
    }

    /// <summary>Creates options that take some pages.</summary>
    /// <param name="pages">Their numbers, from 0.</param>
    public MultiPageOptions(int[] pages)
    {
        ArgumentNullException.ThrowIfNull(pages);
        Pages = pages;
        Mode = MultiPageMode.Pages;
    }

    /// <summary>Creates options that take some pages.</summary>
    /// <param name="pageTitles">Their names; upper and lower case are the same.</param>
    public MultiPageOptions(string[] pageTitles)
    {
        ArgumentNullException.ThrowIfNull(pageTitles);
        PageTitles = pageTitles;
        Mode = MultiPageMode.Titles;
    }

    /// <summary>Creates options that take an interval of pages.</summary>
    /// <param name="firstPage">The number of the first, from 0.</param>
    /// <param name="pageCount">How many.</param>
    public MultiPageOptions(int firstPage, int pageCount)
    {
        FirstPage = firstPage;
        PageCount = pageCount;
        Mode = MultiPageMode.Range;
    }

    /// <summary>Gets or sets by what pages are chosen.</summary>
    public MultiPageMode Mode { get; set; }

    /// <summary>Gets or sets the numbers of the pages, from 0; for <see cref="MultiPageMode.Pages"/>.</summary>
    public int[] Pages { get; set; } = [];

    /// <summary>Gets or sets the names of the pages; for <see cref="MultiPageMode.Titles"/>.</summary>
    public string[] PageTitles { get; set; } = [];

    /// <summary>Gets or sets the number of the first page, from 0; for <see cref="MultiPageMode.Range"/>.</summary>
    public int FirstPage { get; set; }

    /// <summary>Gets or sets how many pages; for <see cref="MultiPageMode.Range"/>.</summary>
    public int PageCount { get; set; }

    /// <summary>Gets or sets the part of each page that is written, in pixels from the upper left corner; an empty one
    /// for all of it.</summary>
    public Rectangle ExportArea { get; set; }
}
