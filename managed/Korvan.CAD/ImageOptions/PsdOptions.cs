using Korvan.CAD.FileFormats.Psd;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes PSD files that hold the merged picture.</summary>
public class PsdOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public PsdOptions()
        : base(FileFormat.Psd)
    {
    }

    /// <summary>Gets or sets the colour mode: grey, palette, red-green-blue or inks.</summary>
    public ColorModes ColorMode { get; set; } = ColorModes.Rgb;

    /// <summary>Gets or sets how the picture is stored: plain or as run lengths.</summary>
    public CompressionMethod CompressionMethod { get; set; } = CompressionMethod.Rle;

    /// <summary>Gets or sets blocks that are stored beside the picture.</summary>
    public ResourceBlock[] Resources { get; set; } = [];

    internal override bool HoldsXmp => true;

    internal override bool HoldsResolution => true;

    internal override bool UsesPalette => ColorMode == ColorModes.Indexed;
}
