using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Which pages of a source with several are written: layouts of a drawing, frames of a picture.</summary>
public class MultiPageOptions
{
    private int[] _pages = [];
    private string[] _pageTitles = [];
    private int _firstPage;
    private int _pageCount;

    /// <summary>Creates options that take all pages.</summary>
    public MultiPageOptions()
    {
    }

    /// <summary>Creates options that take an interval of pages.</summary>
    /// <param name="firstPage">The number of the first, from 0.</param>
    /// <param name="pageCount">How many; 0 for all that follow.</param>
    public MultiPageOptions(int firstPage, int pageCount)
    {
        FirstPage = firstPage;
        PageCount = pageCount;
    }

    /// <summary>Gets or sets by what pages are chosen.</summary>
    public MultiPageMode Mode { get; set; }

    /// <summary>Gets or sets the numbers of the pages, from 0. Setting them sets <see cref="Mode"/> to
    /// <see cref="MultiPageMode.Pages"/>.</summary>
    public int[] Pages
    {
        get => _pages;
        set
        {
            Verify.NotNull(value);
            _pages = value;
            Mode = MultiPageMode.Pages;
        }
    }

    /// <summary>Gets or sets the names of the pages; upper and lower case are the same. Setting them sets
    /// <see cref="Mode"/> to <see cref="MultiPageMode.Titles"/>.</summary>
    public string[] PageTitles
    {
        get => _pageTitles;
        set
        {
            Verify.NotNull(value);
            _pageTitles = value;
            Mode = MultiPageMode.Titles;
        }
    }

    /// <summary>Gets or sets the number of the first page of an interval, from 0. Setting it sets <see cref="Mode"/> to
    /// <see cref="MultiPageMode.Range"/>.</summary>
    public int FirstPage
    {
        get => _firstPage;
        set
        {
            _firstPage = value;
            Mode = MultiPageMode.Range;
        }
    }

    /// <summary>Gets or sets how many pages the interval has; 0 for all that follow. Setting it sets <see cref="Mode"/> to
    /// <see cref="MultiPageMode.Range"/>.</summary>
    public int PageCount
    {
        get => _pageCount;
        set
        {
            _pageCount = value;
            Mode = MultiPageMode.Range;
        }
    }

    /// <summary>Gets or sets the part of each page that is written, in pixels from the upper left corner; an empty one
    /// for all of it.</summary>
    public Rectangle ExportArea { get; set; }
}
