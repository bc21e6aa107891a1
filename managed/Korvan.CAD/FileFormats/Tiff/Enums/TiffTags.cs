using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>The numbers of the fields of a directory (TIFF 6.0 and its supplements).</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffTags
{
    /// <summary>The field new subfile type.</summary>
    NewSubfileType = 254,

    /// <summary>The field subfile type.</summary>
    SubfileType = 255,

    /// <summary>The field image width.</summary>
    ImageWidth = 256,

    /// <summary>The field image length.</summary>
    ImageLength = 257,

    /// <summary>The field bits per sample.</summary>
    BitsPerSample = 258,

    /// <summary>The field compression.</summary>
    Compression = 259,

    /// <summary>The field photometric.</summary>
    Photometric = 262,

    /// <summary>The field thresholding.</summary>
    Thresholding = 263,

    /// <summary>The field fill order.</summary>
    FillOrder = 266,

    /// <summary>The field document name.</summary>
    DocumentName = 269,

    /// <summary>The field image description.</summary>
    ImageDescription = 270,

    /// <summary>The field make.</summary>
    Make = 271,

    /// <summary>The field model.</summary>
    Model = 272,

    /// <summary>The field strip offsets.</summary>
    StripOffsets = 273,

    /// <summary>The field orientation.</summary>
    Orientation = 274,

    /// <summary>The field samples per pixel.</summary>
    SamplesPerPixel = 277,

    /// <summary>The field rows per strip.</summary>
    RowsPerStrip = 278,

    /// <summary>The field strip byte counts.</summary>
    StripByteCounts = 279,

    /// <summary>The field min sample value.</summary>
    MinSampleValue = 280,

    /// <summary>The field max sample value.</summary>
    MaxSampleValue = 281,

    /// <summary>The field xresolution.</summary>
    XResolution = 282,

    /// <summary>The field yresolution.</summary>
    YResolution = 283,

    /// <summary>The field planar config.</summary>
    PlanarConfig = 284,

    /// <summary>The field page name.</summary>
    PageName = 285,

    /// <summary>The field xposition.</summary>
    XPosition = 286,

    /// <summary>The field yposition.</summary>
    YPosition = 287,

    /// <summary>The field t4 options.</summary>
    T4Options = 292,

    /// <summary>The field t6 options.</summary>
    T6Options = 293,

    /// <summary>The field resolution unit.</summary>
    ResolutionUnit = 296,

    /// <summary>The field page number.</summary>
    PageNumber = 297,

    /// <summary>The field transfer function.</summary>
    TransferFunction = 301,

    /// <summary>The field software.</summary>
    Software = 305,

    /// <summary>The field date time.</summary>
    DateTime = 306,

    /// <summary>The field artist.</summary>
    Artist = 315,

    /// <summary>The field host computer.</summary>
    HostComputer = 316,

    /// <summary>The field predictor.</summary>
    Predictor = 317,

    /// <summary>The field white point.</summary>
    WhitePoint = 318,

    /// <summary>The field primary chromaticities.</summary>
    PrimaryChromaticities = 319,

    /// <summary>The field color map.</summary>
    ColorMap = 320,

    /// <summary>The field halftone hints.</summary>
    HalftoneHints = 321,

    /// <summary>The field tile width.</summary>
    TileWidth = 322,

    /// <summary>The field tile length.</summary>
    TileLength = 323,

    /// <summary>The field tile offsets.</summary>
    TileOffsets = 324,

    /// <summary>The field tile byte counts.</summary>
    TileByteCounts = 325,

    /// <summary>The field sub ifds.</summary>
    SubIfds = 330,

    /// <summary>The field ink set.</summary>
    InkSet = 332,

    /// <summary>The field ink names.</summary>
    InkNames = 333,

    /// <summary>The field number of inks.</summary>
    NumberOfInks = 334,

    /// <summary>The field dot range.</summary>
    DotRange = 336,

    /// <summary>The field target printer.</summary>
    TargetPrinter = 337,

    /// <summary>The field extra samples.</summary>
    ExtraSamples = 338,

    /// <summary>The field sample format.</summary>
    SampleFormat = 339,

    /// <summary>The field smin sample value.</summary>
    SMinSampleValue = 340,

    /// <summary>The field smax sample value.</summary>
    SMaxSampleValue = 341,

    /// <summary>The field transfer range.</summary>
    TransferRange = 342,

    /// <summary>The field jpeg tables.</summary>
    JpegTables = 347,

    /// <summary>The field jpeg interchange format.</summary>
    JpegInterchangeFormat = 513,

    /// <summary>The field jpeg interchange format length.</summary>
    JpegInterchangeFormatLength = 514,

    /// <summary>The field ycbcr coefficients.</summary>
    YcbcrCoefficients = 529,

    /// <summary>The field ycbcr sub sampling.</summary>
    YcbcrSubSampling = 530,

    /// <summary>The field ycbcr positioning.</summary>
    YcbcrPositioning = 531,

    /// <summary>The field reference black white.</summary>
    ReferenceBlackWhite = 532,

    /// <summary>The field xmp.</summary>
    Xmp = 700,

    /// <summary>The field copyright.</summary>
    Copyright = 33432,

    /// <summary>The field iptc.</summary>
    Iptc = 33723,

    /// <summary>The field photoshop resources.</summary>
    PhotoshopResources = 34377,

    /// <summary>The field exif ifd.</summary>
    ExifIfd = 34665,

    /// <summary>The field icc profile.</summary>
    IccProfile = 34675,

    /// <summary>The field gps ifd.</summary>
    GpsIfd = 34853,
}
