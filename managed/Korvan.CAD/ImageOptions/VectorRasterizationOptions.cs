using System;
using System.Runtime.CompilerServices;
using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for rendering vector content on a page.</summary>
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

    /// <summary>Gets or sets the left and right border, in units of the page.</summary>
    public float BorderX { get; set; }

    /// <summary>Gets or sets the top and bottom border, in units of the page.</summary>
    public float BorderY { get; set; }

    /// <summary>Gets or sets the margins, in units of the page, which are added to <see cref="BorderX"/> and
    /// <see cref="BorderY"/>. 0 by default.</summary>
    public Margins? Margins { get; set; }

    /// <summary>Gets or sets the height of the page; 0 for the height of the layout's paper, or that of the drawing at
    /// the given width. Pixels in raster formats and points of 1/72 inch in page formats, unless
    /// <see cref="UnitType"/> states another unit.</summary>
    public float PageHeight
    {
        get => _pageHeight;
        set => _pageHeight = Length(value);
    }

    /// <summary>Gets or sets the width of the page; 0 for the width of the layout's paper, or that of the drawing at
    /// the given height. Pixels in raster formats and points of 1/72 inch in page formats, unless
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

    /// <summary>Gets or sets the depth of the page. Pages are flat so far: values other than 0 raise an
    /// error.</summary>
    public float PageDepth
    {
        get => _pageDepth;
        set => _pageDepth = Length(value);
    }

    /// <summary>Gets or sets the background colour. White by default.</summary>
    public Color BackgroundColor { get; set; } = Color.White;

    /// <summary>Gets or sets whether the background is drawn in page formats as well. Off by default, as paper is
    /// white.</summary>
    public bool EmbedBackground { get; set; }

    /// <summary>Gets or sets the colour of all content in modes with a single colour. Black by default.</summary>
    public Color DrawColor { get; set; } = Color.Black;

    /// <summary>Gets or sets the unit of <see cref="PageWidth"/> and <see cref="PageHeight"/>. Raster formats follow it
    /// where <see cref="ImageOptionsBase.ResolutionSettings"/> states how many pixels an inch has; they count pixels
    /// otherwise.</summary>
    public UnitType UnitType { get; set; } = UnitType.Unitless;

    /// <summary>Gets or sets whether page formats get a bitmap of the content instead of vector graphics.</summary>
    public bool ContentAsBitmap { get; set; }

    /// <summary>Gets or sets the antialiasing of shapes, text and images; <see langword="null"/> for the
    /// defaults.</summary>
    public GraphicsOptions? GraphicsOptions { get; set; }

    /// <summary>Gets or sets a factor that scales the dashes of line types, above 0. 1 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The factor is not above 0, or not finite.</exception>
    public double LineScale
    {
        get => _lineScale;
        set => _lineScale = Factor(value);
    }

    /// <summary>Gets or sets a factor that scales the drawing on its page, above 0. 1 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The factor is not above 0, or not finite.</exception>
    public double RelativeScale
    {
        get => _relativeScale;
        set => _relativeScale = Factor(value);
    }

    /// <summary>Gets or sets the offset of the drawing on its page, as fractions of the page's width and height.
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
