using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats;
using Korvan.CAD.FileFormats.Cad;

namespace Korvan.CAD.ImageOptions;

/// <summary>How a drawing is drawn on pages. Formats of faces follow layers, colours and the visibility of layers; what has no
/// effect there, on a metafile or on a picture is refused by its name.</summary>
public class CadRasterizationOptions : VectorRasterizationOptions
{
    private float _zoom = 1;

    /// <summary>Creates options with their defaults.</summary>
    public CadRasterizationOptions()
    {
    }

    /// <summary>Gets or sets a factor on the drawing as fitted to its page; above 0. 1 by default.</summary>
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

    /// <summary>Gets or sets how lines end and meet; nothing for the defaults.</summary>
    public PenOptions? PenOptions { get; set; }

    /// <summary>Gets or sets the direction that the drawing is looked at from; nothing for plan view.</summary>
    public ObserverPoint? ObserverPoint { get; set; }

    /// <summary>Gets or sets whether each layout is fitted to its page on its own. On by default.</summary>
    public bool AutomaticLayoutsScaling { get; set; } = true;

    /// <summary>Gets or sets the names of the layers to draw; empty for all. Upper and lower case are the
    /// same.</summary>
    public string[] Layers { get; set; } = [];

    /// <summary>Gets or sets the names of the layouts to draw, in order; empty for the model.</summary>
    public string[] Layouts { get; set; } = [];

    /// <summary>Gets or sets which colours are used. Every object's own by default.</summary>
    public CadDrawTypeMode DrawType { get; set; } = CadDrawTypeMode.UseObjectColor;

    /// <summary>Gets or sets how the drawing is fitted to the page. By default it fills the page.</summary>
    public ScaleType ScaleMethod { get; set; } = ScaleType.GrowToFit;

    /// <summary>Gets or sets whether the drawing keeps its size, one drawing unit to one unit of the page; the same
    /// as <see cref="ScaleType.None"/>.</summary>
    public bool NoScaling { get; set; }

    /// <summary>Gets or sets how finely things are drawn.</summary>
    public RasterizationQuality Quality { get; set; } = new();

    /// <summary>Gets or sets whether content of a layout outside its paper is exported as well.</summary>
    public bool ExportAllLayoutContent { get; set; }

    /// <summary>Gets or sets the paths of compiled shape fonts to use before those of the system. Such fonts are not read yet:
    /// setting any is refused.</summary>
    public string[] ShxFonts { get; set; } = [];

    /// <summary>Gets or sets the code pages of the texts that compiled shape fonts draw. Such fonts are not read yet: setting any is
    /// refused.</summary>
    public CodePages[] ShxCodePages { get; set; } = [];

    /// <summary>Gets or sets where a program lies that writes PDF. The library writes PDF by itself: setting any is
    /// refused.</summary>
    public string PdfProductLocation { get; set; } = "";

    /// <summary>Gets or sets how bodies and faces in space are drawn. Other modes than
    /// <see cref="RenderMode3D.Wireframe"/> are refused so far.</summary>
    public RenderMode3D RenderMode3D { get; set; } = RenderMode3D.Wireframe;

    /// <summary>Gets or sets which layers count as visible.</summary>
    public VisibilityMode VisibilityMode { get; set; } = VisibilityMode.AsScreen;
}
