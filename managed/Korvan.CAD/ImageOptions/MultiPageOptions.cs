using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Which pages are written: layouts of a drawing, or frames of an image.</summary>
public class MultiPageOptions
{
    private int[] _pages = [];
    private string[] _pageTitles = [];
    private int _firstPage;
    private int _pageCount;

    /// <summary>Creates options for all pages.</summary>
    public MultiPageOptions()
    {
    }

    /// <summary>Creates options for a range of pages.</summary>
    /// <param name="firstPage">The number of the first page, from 0.</param>
    /// <param name="pageCount">The number of pages; 0 for all that follow.</param>
    public MultiPageOptions(int firstPage, int pageCount)
    {
        FirstPage = firstPage;
        PageCount = pageCount;
    }

    /// <summary>Gets or sets how pages are selected.</summary>
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

    /// <summary>Gets or sets the names of the pages; case is ignored. Setting them sets <see cref="Mode"/> to
    /// <see cref="MultiPageMode.Titles"/>.</summary>
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

    /// <summary>Gets or sets the number of the first page of a range, from 0. Setting it sets <see cref="Mode"/> to
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

    /// <summary>Gets or sets the number of pages of a range; 0 for all that follow. Setting it sets <see cref="Mode"/>
    /// to <see cref="MultiPageMode.Range"/>.</summary>
    public int PageCount
    {
        get => _pageCount;
        set
        {
            _pageCount = value;
            Mode = MultiPageMode.Range;
        }
    }

    /// <summary>Gets or sets the part of each page that is written, in pixels from the upper left corner; an empty
    /// rectangle for the whole page.</summary>
    public Rectangle ExportArea { get; set; }
}
