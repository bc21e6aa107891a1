namespace Korvan.CAD.ImageOptions;

/// <summary>The margins of a page, in units of the page.</summary>
public class Margins
{
    /// <summary>Creates margins of 0.</summary>
    public Margins()
    {
    }

    /// <summary>Gets or sets the left margin.</summary>
    public int Left { get; set; }

    /// <summary>Gets or sets the right margin.</summary>
    public int Right { get; set; }

    /// <summary>Gets or sets the top margin.</summary>
    public int Top { get; set; }

    /// <summary>Gets or sets the bottom margin.</summary>
    public int Bottom { get; set; }
}
