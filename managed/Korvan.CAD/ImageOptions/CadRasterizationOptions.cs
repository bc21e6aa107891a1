using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats;
using Korvan.CAD.FileFormats.Cad;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for rendering a drawing on pages. Mesh formats apply layers, colours and the visibility of layers.
/// An option that has no effect there, on a metafile or on a raster image raises an error that names it.</summary>
public class CadRasterizationOptions : VectorRasterizationOptions
{
    private float _zoom = 1;

    /// <summary>Creates options with default values.</summary>
    public CadRasterizationOptions()
    {
    }

    /// <summary>Gets or sets a factor that scales the drawing after it is fitted to its page; above 0. 1 by
    /// default.</summary>
    public float Zoom
    {
        get => _zoom;
        set
        {
            if (!float.IsFinite(value) || value <= 0)
            {
                throw Verify.OutOfRange(nameof(value), value, "A zoom is a finite number above 0.");
            }

            _zoom = value;
        }
    }

    /// <summary>Gets or sets the line caps; <see langword="null"/> for the defaults.</summary>
    public PenOptions? PenOptions { get; set; }

    /// <summary>Gets or sets the viewpoint of the drawing; <see langword="null"/> for plan view.</summary>
    public ObserverPoint? ObserverPoint { get; set; }

    /// <summary>Gets or sets whether each layout is fitted to its page on its own. On by default.</summary>
    public bool AutomaticLayoutsScaling { get; set; } = true;

    /// <summary>Gets or sets the names of the layers to draw; empty for all. Case is ignored.</summary>
    public string[] Layers { get; set; } = [];

    /// <summary>Gets or sets the names of the layouts to draw, in order; empty for model space.</summary>
    public string[] Layouts { get; set; } = [];

    /// <summary>Gets or sets which colours are used. By default, each object has its own colour.</summary>
    public CadDrawTypeMode DrawType { get; set; } = CadDrawTypeMode.UseObjectColor;

    /// <summary>Gets or sets how the drawing is fitted to the page. By default it fills the page.</summary>
    public ScaleType ScaleMethod { get; set; } = ScaleType.GrowToFit;

    /// <summary>Gets or sets whether the drawing keeps its size, one drawing unit to one unit of the page; the same
    /// as <see cref="ScaleType.None"/>.</summary>
    public bool NoScaling { get; set; }

    /// <summary>Gets or sets the rendering quality by kind of object.</summary>
    public RasterizationQuality Quality { get; set; } = new();

    /// <summary>Gets or sets whether content of a layout outside its paper is exported as well.</summary>
    public bool ExportAllLayoutContent { get; set; }

    /// <summary>Gets or sets the paths of compiled shape fonts (SHX), or of folders with such fonts. They draw the text
    /// of styles that name them, as strokes. Styles whose font is not among them are drawn with the stroke face of the
    /// library. A path that does not exist raises an error when the drawing is exported.</summary>
    public string[] ShxFonts { get; set; } = [];

    /// <summary>Gets or sets the code pages of the character numbers in <see cref="ShxFonts"/>, one for each path; the
    /// last one holds for the rest. Fonts whose numbers are Unicode need none.</summary>
    public CodePages[] ShxCodePages { get; set; } = [];

    /// <summary>Gets or sets the path of a program that writes PDF. The library writes PDF itself: setting any raises
    /// an error.</summary>
    public string PdfProductLocation { get; set; } = "";

    /// <summary>Gets or sets how solids and 3D faces are rendered. Modes other than
    /// <see cref="RenderMode3D.Wireframe"/> are not supported yet and raise an error.</summary>
    public RenderMode3D RenderMode3D { get; set; } = RenderMode3D.Wireframe;

    /// <summary>Gets or sets which layers count as visible.</summary>
    public VisibilityMode VisibilityMode { get; set; } = VisibilityMode.AsScreen;
}
