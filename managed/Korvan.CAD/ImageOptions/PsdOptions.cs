using Korvan.CAD.FileFormats.Psd;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for PSD files with the merged image.</summary>
public class PsdOptions : ImageOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public PsdOptions()
        : base(FileFormat.Psd)
    {
    }

    /// <summary>Gets or sets the colour mode: greyscale, indexed, RGB or CMYK.</summary>
    public ColorModes ColorMode { get; set; } = ColorModes.Rgb;

    /// <summary>Gets or sets the compression: none or run-length encoding.</summary>
    public CompressionMethod CompressionMethod { get; set; } = CompressionMethod.Rle;

    /// <summary>Gets or sets the image resource blocks that are stored in the file.</summary>
    public ResourceBlock[] Resources { get; set; } = [];

    internal override bool HoldsXmp => true;

    internal override bool HoldsResolution => true;

    internal override bool UsesPalette => ColorMode == ColorModes.Indexed;
}
