using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff;
using Korvan.CAD.FileFormats.Tiff.Enums;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for TIFF 6.0 files with one page per layout or frame.</summary>
public class TiffOptions : ImageOptionsBase
{
    internal const int DefaultQuality = 90;

    private int[] _bitsPerSample = [8, 8, 8];
    private int _quality = DefaultQuality;

    /// <summary>Creates options for 24-bit RGB with LZW compression.</summary>
    public TiffOptions()
        : base(FileFormat.Tiff)
    {
    }

    /// <summary>Creates options for a predefined combination of compression and colours.</summary>
    /// <param name="expectedFormat">The combination.</param>
    public TiffOptions(TiffExpectedFormat expectedFormat)
        : this()
    {
        (Compression, Photometric, _bitsPerSample) = TiffPresets.Of(expectedFormat);
    }

    /// <summary>Gets or sets the byte order.</summary>
    public TiffByteOrder ByteOrder { get; set; } = TiffByteOrder.LittleEndian;

    /// <summary>Gets or sets the compression of the strips. LZW by default.</summary>
    public TiffCompressions Compression { get; set; } = TiffCompressions.Lzw;

    /// <summary>Gets or sets the photometric interpretation. RGB by default.</summary>
    public TiffPhotometrics Photometric { get; set; } = TiffPhotometrics.Rgb;

    /// <summary>Gets or sets the bits of each sample of a pixel: one value of 1, 4 or 8 for greyscale or a palette; 8
    /// three times for RGB, four times for RGB with alpha or for CMYK.</summary>
    public int[] BitsPerSample
    {
        get => (int[])_bitsPerSample.Clone();
        set
        {
            Verify.NotNull(value);
            _bitsPerSample = (int[])value.Clone();
        }
    }

    /// <summary>Gets or sets whether the fourth sample of RGB is associated or unassociated alpha.</summary>
    public TiffAlphaStorage AlphaStorage { get; set; } = TiffAlphaStorage.Unassociated;

    /// <summary>Gets or sets the predictor of LZW and Deflate for 8-bit samples.</summary>
    public TiffPredictor Predictor { get; set; } = TiffPredictor.Horizontal;

    /// <summary>Gets or sets the fill order of the bits of facsimile codes.</summary>
    public TiffFillOrders FillOrder { get; set; } = TiffFillOrders.Msb2Lsb;

    /// <summary>Gets or sets the coding of CCITT Group 3 rows.</summary>
    public Group3Options FaxT4Options { get; set; }

    /// <summary>Gets or sets the dithering method for bilevel images and palettes.</summary>
    public TiffThresholds Threshold { get; set; } = TiffThresholds.NoDithering;

    /// <summary>Gets or sets the rows per strip; 0 for strips of about 64 KiB.</summary>
    public int RowsPerStrip { get; set; }

    /// <summary>Gets or sets the unit of the resolution.</summary>
    public TiffResolutionUnits ResolutionUnit { get; set; } = TiffResolutionUnits.Inch;

    /// <summary>Gets or sets the quality of JPEG compression, 1 to 100. 90 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The value is out of range.</exception>
    public int CompressedQuality
    {
        get => _quality;
        set
        {
            Verify.InRange(value, 1, 100);
            _quality = value;
        }
    }

    /// <summary>Gets or sets the artist; empty to omit the field.</summary>
    public string Artist { get; set; } = "";

    /// <summary>Gets or sets the copyright notice; empty to omit the field.</summary>
    public string Copyright { get; set; } = "";

    /// <summary>Gets or sets the date, as <c>YYYY:MM:DD HH:MM:SS</c>; empty to omit the field.</summary>
    public string DateTime { get; set; } = "";

    /// <summary>Gets or sets the name of the document; empty to omit the field.</summary>
    public string DocumentName { get; set; } = "";

    /// <summary>Gets or sets the description of the image; empty to omit the field.</summary>
    public string ImageDescription { get; set; } = "";

    /// <summary>Gets or sets the name of the software that wrote the file; empty to omit the field.</summary>
    public string SoftwareType { get; set; } = "korvan.cad";

    /// <summary>Gets or sets which pages are written; <see langword="null"/> for all pages.</summary>
    public MultiPageOptions? MultiPageOptions { get; set; }

    /// <summary>Gets the bits per pixel.</summary>
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

    /// <summary>Gets the samples per pixel.</summary>
    public int SamplesPerPixel => _bitsPerSample.Length;

    /// <summary>Gets whether the combination can be written.</summary>
    public bool IsValid => Validate() == TiffOptionsError.NoError;

    /// <summary>Gets the capabilities that a reader needs for files with these options.</summary>
    public TiffFileStandards FileStandard =>
        Compression is TiffCompressions.None or TiffCompressions.CcittRle or TiffCompressions.PackBits
            ? TiffFileStandards.Baseline
            : TiffFileStandards.Extended;

    /// <summary>Returns why the combination cannot be written.</summary>
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
