using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.Raster.Codecs;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes TIFF 6.0, one page for each layout or frame.</summary>
public class TiffOptions : ImageOptionsBase
{
    internal const int UsualQuality = 90;

    private int[] _bitsPerSample = [8, 8, 8];
    private int _quality = UsualQuality;

    /// <summary>Creates options for colours of 24 bits, compressed with LZW.</summary>
    public TiffOptions()
        : base(FileFormat.Tiff)
    {
    }

    /// <summary>Creates options for a ready-made combination.</summary>
    /// <param name="expectedFormat">The combination.</param>
    public TiffOptions(TiffExpectedFormat expectedFormat)
        : this()
    {
        (Compression, Photometric, _bitsPerSample) = TiffPresets.Of(expectedFormat);
    }

    /// <summary>Gets or sets the order of bytes in numbers.</summary>
    public TiffByteOrder ByteOrder { get; set; } = TiffByteOrder.LittleEndian;

    /// <summary>Gets or sets how strips are compressed. LZW by default.</summary>
    public TiffCompressions Compression { get; set; } = TiffCompressions.Lzw;

    /// <summary>Gets or sets what samples mean. Red, green, blue by default.</summary>
    public TiffPhotometrics Photometric { get; set; } = TiffPhotometrics.Rgb;

    /// <summary>Gets or sets the bits of each sample of a pixel: 1, 4 or 8 for one sample; 8 three times for colours,
    /// four times for colours with opacity or for inks.</summary>
    public int[] BitsPerSample
    {
        get => (int[])_bitsPerSample.Clone();
        set
        {
            Verify.NotNull(value);
            _bitsPerSample = (int[])value.Clone();
        }
    }

    /// <summary>Gets or sets what the fourth sample of colours means.</summary>
    public TiffAlphaStorage AlphaStorage { get; set; } = TiffAlphaStorage.Unassociated;

    /// <summary>Gets or sets what LZW and Deflate store of samples of 8 bits.</summary>
    public TiffPredictor Predictor { get; set; } = TiffPredictor.Horizontal;

    /// <summary>Gets or sets the order of bits in a byte of facsimile codes.</summary>
    public TiffFillOrders FillOrder { get; set; } = TiffFillOrders.Msb2Lsb;

    /// <summary>Gets or sets how lines of group 3 are coded.</summary>
    public Group3Options FaxT4Options { get; set; }

    /// <summary>Gets or sets how colours become black and white or colours of a palette.</summary>
    public TiffThresholds Threshold { get; set; } = TiffThresholds.NoDithering;

    /// <summary>Gets or sets how many rows a strip has; 0 for strips of about 64 KiB.</summary>
    public int RowsPerStrip { get; set; }

    /// <summary>Gets or sets what resolutions count.</summary>
    public TiffResolutionUnits ResolutionUnit { get; set; } = TiffResolutionUnits.Inch;

    /// <summary>Gets or sets the quality of JPEG compression, 1 to 100. 90 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of its range.</exception>
    public int CompressedQuality
    {
        get => _quality;
        set
        {
            Verify.InRange(value, 1, 100);
            _quality = value;
        }
    }

    /// <summary>Gets or sets who made the picture; empty for no such field.</summary>
    public string Artist { get; set; } = "";

    /// <summary>Gets or sets who may use it; empty for no such field.</summary>
    public string Copyright { get; set; } = "";

    /// <summary>Gets or sets the date, as <c>YYYY:MM:DD HH:MM:SS</c>; empty for no such field.</summary>
    public string DateTime { get; set; } = "";

    /// <summary>Gets or sets the name of the document; empty for no such field.</summary>
    public string DocumentName { get; set; } = "";

    /// <summary>Gets or sets what is to be seen; empty for no such field.</summary>
    public string ImageDescription { get; set; } = "";

    /// <summary>Gets or sets the program that wrote the file; empty for no such field.</summary>
    public string SoftwareType { get; set; } = "korvan.cad";

    /// <summary>Gets or sets which pages are written; nothing for all of them.</summary>
    public MultiPageOptions? MultiPageOptions { get; set; }

    /// <summary>Gets the bits of a pixel.</summary>
    public int BitsPerPixel
    {
        get
        {
            int sum = 0;
            foreach (int bits in _bitsPerSample)
            {
                sum += bits;
            }

            return sum;
        }
    }

    /// <summary>Gets how many samples a pixel has.</summary>
    public int SamplesPerPixel => _bitsPerSample.Length;

    /// <summary>Gets whether the combination can be written.</summary>
    public bool IsValid => Validate() == TiffOptionsError.NoError;

    /// <summary>Gets what a file by these options needs of its readers.</summary>
    public TiffFileStandards FileStandard =>
        Compression is TiffCompressions.None or TiffCompressions.CcittRle or TiffCompressions.PackBits
            ? TiffFileStandards.Baseline
            : TiffFileStandards.Extended;

    /// <summary>Tells why the combination cannot be written.</summary>
    public TiffOptionsError Validate() => TiffPresets.Validate(this);

    internal override bool HoldsXmp => true;

    internal override bool HoldsResolution => true;

    internal override bool UsesPalette => Photometric == TiffPhotometrics.Palette;

    /// <inheritdoc/>
    internal override void VerifyHonoured(OutputKind kind)
    {
        base.VerifyHonoured(kind);
        foreach ((string name, bool isSet, bool isFollowed, string advice) in TiffPresets.Conditions(this))
        {
            if (isSet && !isFollowed)
            {
                throw NotHonoured(name, advice);
            }
        }
    }
}
