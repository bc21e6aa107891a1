namespace Korvan.CAD.ImageOptions;

/// <summary>Space left free at the sides of a page, in units of the page.</summary>
public class Margins
{
    /// <summary>Creates margins of 0.</summary>
    public Margins()
    {
    }

    /// <summary>Gets or sets the space at the left.</summary>
    public int Left { get; set; }

    /// <summary>Gets or sets the space at the right.</summary>
    public int Right { get; set; }

    /// <summary>Gets or sets the space at the top.</summary>
    public int Top { get; set; }

    /// <summary>Gets or sets the space at the bottom.</summary>
    public int Bottom { get; set; }
}
