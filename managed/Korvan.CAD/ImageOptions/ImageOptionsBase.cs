using System;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.WrpGen.Naming;

namespace Korvan.CAD.ImageOptions;

/// <summary>The base of the options of all output formats. If an option is set that the format or the kind of image
/// does not support, saving raises an <see cref="ImageSaveException"/> that names it.</summary>
public abstract class ImageOptionsBase : DisposableObject
{
    internal static readonly Color DefaultWatermarkColor = Color.FromArgb(64, Color.Gray);

    private int _timeout;

    internal ImageOptionsBase(FileFormat targetFormat)
    {
        TargetFormat = targetFormat;
    }

    /// <summary>Gets the format that these options write.</summary>
    public FileFormat TargetFormat { get; }

    /// <summary>Gets or sets how the drawing is converted. Only <see cref="CadOutputMode.Render"/> is supported so
    /// far.</summary>
    public CadOutputMode OutputMode { get; set; } = CadOutputMode.Render;

    /// <summary>Gets or sets how the pixels of each page are rotated and flipped before they are written; not for
    /// formats without pixels. Unchanged by default.</summary>
    public RotateFlipType Rotation { get; set; }

    /// <summary>Gets or sets the names of the layers to draw; empty for all. Case is ignored.</summary>
    public string[] Layers { get; set; } = [];

    /// <summary>Gets or sets a second destination, which gets a copy of the output; <see langword="null"/> for none. It
    /// is opened when the output is complete.</summary>
    public Source? Source { get; set; }

    /// <summary>Gets or sets whether the page of a layout covers the extents of its content instead of its paper, at
    /// the scale of the paper. Pages without paper always cover the extents. Off by default.</summary>
    public bool RenderToGraphicsBound { get; set; }

    /// <summary>Gets or sets the path of a plotter configuration file. Such files are not supported yet: setting any
    /// raises an error.</summary>
    public string Pc3File { get; set; } = "";

    /// <summary>Gets or sets the palette of the output, for formats and options with indexed pixels;
    /// <see langword="null"/> for a palette that is chosen for the image.</summary>
    public IColorPalette? Palette { get; set; }

    /// <summary>Gets or sets the XMP metadata that is stored in JPEG, PNG, TIFF and PSD files; <see langword="null"/>
    /// to keep that of the loaded image.</summary>
    public XmpPacketWrapper? XmpData { get; set; }

    /// <summary>Gets or sets the resolution of the output: that which a raster format states, that at which drawings
    /// are rasterized, and that of bitmaps in page formats; <see langword="null"/> for the default of the
    /// format.</summary>
    public ResolutionSetting? ResolutionSettings { get; set; }

    /// <summary>Gets or sets how vector content is rendered; <see langword="null"/> for the defaults of
    /// <see cref="CadRasterizationOptions"/>.</summary>
    public VectorRasterizationOptions? VectorRasterizationOptions { get; set; }

    /// <summary>Gets or sets the timeout of the export in milliseconds, after which it raises
    /// <see cref="OperationInterruptedException"/>; 0 for none.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is negative.</exception>
    public int Timeout
    {
        get => _timeout;
        set
        {
            Verify.NotNegative(value);
            _timeout = value;
        }
    }

    /// <summary>Gets or sets the text of a watermark across every page; empty for none.</summary>
    public string UserWatermarkText { get; set; } = "";

    /// <summary>Gets or sets the colour of <see cref="UserWatermarkText"/>.</summary>
    public Color UserWatermarkColor { get; set; } = DefaultWatermarkColor;

    /// <summary>Gets the result of the last export with these options; <see langword="null"/> before the first, and
    /// after one that failed.</summary>
    public CadRenderResult? RenderResult { get; internal set; }

    /// <summary>Gets whether the format can store <see cref="XmpData"/>.</summary>
    internal virtual bool HoldsXmp => false;

    /// <summary>Gets whether the format can store the resolution.</summary>
    internal virtual bool HoldsResolution => false;

    /// <summary>Gets whether these options write indexed pixels.</summary>
    internal virtual bool UsesPalette => false;

    /// <summary>Throws for the first option that is set, but not supported by the output.</summary>
    /// <param name="kind">The kind of output.</param>
    internal virtual void VerifyHonoured(OutputKind kind) => OptionRules.Verify(this, kind);

    internal ImageSaveException NotHonoured(string option, string advice)
    {
        string path = string.Join('.', option.Split('.').Select(PythonName.Lower));
        return new ImageSaveException($"{GetType().Name}.{path} cannot be honoured in this output; {advice}.");
    }
}
