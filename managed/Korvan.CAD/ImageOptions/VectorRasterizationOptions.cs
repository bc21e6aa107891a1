using System;
using System.Runtime.CompilerServices;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats;

namespace Korvan.CAD.ImageOptions;

/// <summary>How vector content is drawn on a page.</summary>
public abstract class VectorRasterizationOptions : DisposableObject
{
    private float _pageWidth;
    private float _pageDepth;
    private float _pageHeight;
    private double _lineScale = 1;
    private double _relativeScale = 1;

    internal VectorRasterizationOptions()
    {
    }

    /// <summary>Gets or sets the space left free at the left and the right side, in units of the page.</summary>
    public float BorderX { get; set; }

    /// <summary>Gets or sets the space left free at the upper and the lower side, in units of the page.</summary>
    public float BorderY { get; set; }

    /// <summary>Gets or sets the space left free at each side, in units of the page; added to
    /// <see cref="BorderX"/> and <see cref="BorderY"/>. Nothing by default.</summary>
    public Margins? Margins { get; set; }

    /// <summary>Gets or sets the height of the page; 0 for the height of the layout's paper, or of the drawing at
    /// the given width. Pixels in raster formats; in page formats points of 1/72 inch unless
    /// <see cref="UnitType"/> states another unit.</summary>
    public float PageHeight
    {
        get => _pageHeight;
        set => _pageHeight = Length(value);
    }

    /// <summary>Gets or sets the width of the page; 0 for the width of the layout's paper, or of the drawing at
    /// the given height. Pixels in raster formats; in page formats points of 1/72 inch unless
    /// <see cref="UnitType"/> states another unit.</summary>
    public float PageWidth
    {
        get => _pageWidth;
        set => _pageWidth = Length(value);
    }

    /// <summary>Gets or sets <see cref="PageWidth"/> and <see cref="PageHeight"/> together.</summary>
    public SizeF PageSize
    {
        get => new(PageWidth, PageHeight);
        set
        {
            PageWidth = value.Width;
            PageHeight = value.Height;
        }
    }

    /// <summary>Gets or sets the extent of the page in depth. Pages are flat so far: anything but 0 is refused.</summary>
    public float PageDepth
    {
        get => _pageDepth;
        set => _pageDepth = Length(value);
    }

    /// <summary>Gets or sets the colour of the page. White by default.</summary>
    public Color BackgroundColor { get; set; } = Color.White;

    /// <summary>Gets or sets whether the background is drawn in page formats as well. Off by default: paper is
    /// white of itself.</summary>
    public bool EmbedBackground { get; set; }

    /// <summary>Gets or sets the colour that everything is drawn in where a single colour is asked for. Black by
    /// default.</summary>
    public Color DrawColor { get; set; } = Color.Black;

    /// <summary>Gets or sets the unit of <see cref="PageWidth"/> and <see cref="PageHeight"/> in page formats.
    /// </summary>
    public UnitType UnitType { get; set; } = UnitType.Unitless;

    /// <summary>Gets or sets whether a page format gets a picture of the content instead of lines and texts.</summary>
    public bool ContentAsBitmap { get; set; }

    /// <summary>Gets or sets how shapes and texts are smoothed; nothing for the defaults.</summary>
    public GraphicsOptions? GraphicsOptions { get; set; }

    /// <summary>Gets or sets a factor on the lengths of line types, above 0. 1 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The factor is not above 0, or not finite.</exception>
    public double LineScale
    {
        get => _lineScale;
        set => _lineScale = Factor(value);
    }

    /// <summary>Gets or sets a factor on the size of the drawing on its page, above 0. 1 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The factor is not above 0, or not finite.</exception>
    public double RelativeScale
    {
        get => _relativeScale;
        set => _relativeScale = Factor(value);
    }

    /// <summary>Gets or sets how far the drawing is moved on its page, as parts of the page's width and height.
    /// </summary>
    public PointF RelativePosition { get; set; }

    private static double Factor(double value, [CallerMemberName] string member = "") =>
        double.IsFinite(value) && value > 0
        ? value
        : throw Verify.OutOfRange(member, value, "A factor is a finite number above 0.");

    private static float Length(float value, [CallerMemberName] string member = "")
    {
        if (!float.IsFinite(value) || value < 0)
        {
            throw Verify.OutOfRange(member, value, "A length of a page is finite and not below 0.");
        }

        return value;
    }
}
