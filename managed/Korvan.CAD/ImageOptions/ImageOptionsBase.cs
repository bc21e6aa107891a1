using System;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.WrpGen.Naming;

namespace Korvan.CAD.ImageOptions;

/// <summary>How an image is written: the base of the option classes of all output formats. An option that is set and that the
/// format, or the kind of image, has no use for is refused by an <see cref="ImageSaveException"/> with its name.</summary>
public abstract class ImageOptionsBase : DisposableObject
{
    internal static readonly Color UsualWatermark = Color.FromArgb(64, Color.Gray);

    private int _timeout;

    internal ImageOptionsBase(FileFormat targetFormat)
    {
        TargetFormat = targetFormat;
    }

    /// <summary>Gets the format that these options write.</summary>
    public FileFormat TargetFormat { get; }

    /// <summary>Gets or sets how the drawing is put into the output. Only
    /// <see cref="CadOutputMode.Render"/> is written so far.</summary>
    public CadOutputMode OutputMode { get; set; } = CadOutputMode.Render;

    /// <summary>Gets or sets how the pixels of each page are turned and mirrored before they are written; formats without
    /// pixels refuse it. As they are by default.</summary>
    public RotateFlipType Rotation { get; set; }

    /// <summary>Gets or sets the names of the layers to draw; empty for all. Upper and lower case are the
    /// same.</summary>
    public string[] Layers { get; set; } = [];

    /// <summary>Gets or sets a second place that all that is written goes to, beside the file or stream that saving names;
    /// nothing for none. It is opened when the output is whole.</summary>
    public Source? Source { get; set; }

    /// <summary>Gets or sets whether the page of a sheet shows the region that its content takes, instead of its paper, at the
    /// scale of the paper. What has no paper always shows its content. Off by default.</summary>
    public bool RenderToGraphicsBound { get; set; }

    /// <summary>Gets or sets the path of a plotter configuration. Such files are not read yet: setting any is refused.</summary>
    public string Pc3File { get; set; } = "";

    /// <summary>Gets or sets the colours that pixels become numbers of, for formats and options that have a palette;
    /// nothing for colours that are chosen for the picture.</summary>
    public IColorPalette? Palette { get; set; }

    /// <summary>Gets or sets metadata that is stored beside the picture: in JPEG, PNG, TIFF and PSD. Nothing keeps
    /// what a picture was loaded with.</summary>
    public XmpPacketWrapper? XmpData { get; set; }

    /// <summary>Gets or sets the resolution of pixels: those of a format that states one, those that lines and texts are drawn in,
    /// and those of a page whose content is made a bitmap; nothing for the default of the format.</summary>
    public ResolutionSetting? ResolutionSettings { get; set; }

    /// <summary>Gets or sets how a vector drawing is drawn; nothing for the defaults of
    /// <see cref="CadRasterizationOptions"/>.</summary>
    public VectorRasterizationOptions? VectorRasterizationOptions { get; set; }

    /// <summary>Gets or sets after how many milliseconds the export gives up with
    /// <see cref="OperationInterruptedException"/>; 0 for never.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is negative.</exception>
    public int Timeout
    {
        get => _timeout;
        set
        {
            Verify.NotNegative(value);
            _timeout = value;
        }
    }

    /// <summary>Gets or sets a text that is drawn across every page; empty for none.</summary>
    public string UserWatermarkText { get; set; } = "";

    /// <summary>Gets or sets the colour of <see cref="UserWatermarkText"/>.</summary>
    public Color UserWatermarkColor { get; set; } = UsualWatermark;

    /// <summary>Gets what became of the last export with these options; nothing before the first, and after one that failed.</summary>
    public CadRenderResult? RenderResult { get; internal set; }

    /// <summary>Gets whether the format has a place for <see cref="XmpData"/>.</summary>
    internal virtual bool HoldsXmp => false;

    /// <summary>Gets whether the format has a place for the resolution of pixels.</summary>
    internal virtual bool HoldsResolution => false;

    /// <summary>Gets whether pixels, as these options write them, are numbers of colours.</summary>
    internal virtual bool UsesPalette => false;

    /// <summary>Raises an error for the first option that is set and that the output would not honour.</summary>
    /// <param name="kind">What the image becomes.</param>
    internal virtual void VerifyHonoured(OutputKind kind) => OptionRules.Verify(this, kind);

    internal ImageSaveException NotHonoured(string option, string advice)
    {
        string path = string.Join('.', option.Split('.').Select(PythonName.Lower));
        return new ImageSaveException($"{GetType().Name}.{path} cannot be honoured in this output; {advice}.");
    }
}
