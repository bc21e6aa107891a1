using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Tiff.Enums;

/// <summary>Tag numbers of TIFF (TIFF 6.0 and its supplements).</summary>
[PythonEnum(EnumKind.Integer)]
public enum TiffTags
{
    /// <summary>Relation of the page to the other pages, as bits. Tag 254.</summary>
    NewSubfileType = 254,

    /// <summary>Relation of the page to the other pages; replaced by tag 254. Tag 255.</summary>
    SubfileType = 255,

    /// <summary>Width of the image in pixels. Tag 256.</summary>
    ImageWidth = 256,

    /// <summary>Height of the image in pixels. Tag 257.</summary>
    ImageLength = 257,

    /// <summary>Bits per sample, one value for each sample. Tag 258.</summary>
    BitsPerSample = 258,

    /// <summary>Compression scheme. Tag 259.</summary>
    Compression = 259,

    /// <summary>Photometric interpretation: the colour space of the samples. Tag 262.</summary>
    Photometric = 262,

    /// <summary>Method by which gray levels became black and white. Tag 263.</summary>
    Thresholding = 263,

    /// <summary>Order of bits in a byte. Tag 266.</summary>
    FillOrder = 266,

    /// <summary>Name of the document. Tag 269.</summary>
    DocumentName = 269,

    /// <summary>Description of the image. Tag 270.</summary>
    ImageDescription = 270,

    /// <summary>Manufacturer of the scanner. Tag 271.</summary>
    Make = 271,

    /// <summary>Model of the scanner. Tag 272.</summary>
    Model = 272,

    /// <summary>Offset of each strip. Tag 273.</summary>
    StripOffsets = 273,

    /// <summary>Position of row 0 and column 0. Tag 274.</summary>
    Orientation = 274,

    /// <summary>Samples per pixel. Tag 277.</summary>
    SamplesPerPixel = 277,

    /// <summary>Rows per strip. Tag 278.</summary>
    RowsPerStrip = 278,

    /// <summary>Compressed size of each strip in bytes. Tag 279.</summary>
    StripByteCounts = 279,

    /// <summary>Smallest sample value in use. Tag 280.</summary>
    MinSampleValue = 280,

    /// <summary>Largest sample value in use. Tag 281.</summary>
    MaxSampleValue = 281,

    /// <summary>Pixels per resolution unit along X. Tag 282.</summary>
    XResolution = 282,

    /// <summary>Pixels per resolution unit along Y. Tag 283.</summary>
    YResolution = 283,

    /// <summary>Storage of samples: pixel by pixel or plane by plane. Tag 284.</summary>
    PlanarConfig = 284,

    /// <summary>Name of the page. Tag 285.</summary>
    PageName = 285,

    /// <summary>Distance of the image from the left side of the page, in resolution units. Tag 286.</summary>
    XPosition = 286,

    /// <summary>Distance of the image from the top of the page, in resolution units. Tag 287.</summary>
    YPosition = 287,

    /// <summary>Options of ITU-T T.4 (group 3) compression. Tag 292.</summary>
    T4Options = 292,

    /// <summary>Options of ITU-T T.6 (group 4) compression. Tag 293.</summary>
    T6Options = 293,

    /// <summary>Unit of the resolutions. Tag 296.</summary>
    ResolutionUnit = 296,

    /// <summary>Index of the page and number of pages. Tag 297.</summary>
    PageNumber = 297,

    /// <summary>Transfer function as tables. Tag 301.</summary>
    TransferFunction = 301,

    /// <summary>Name and version of the program that wrote the file. Tag 305.</summary>
    Software = 305,

    /// <summary>Date and time of creation. Tag 306.</summary>
    DateTime = 306,

    /// <summary>Creator of the image. Tag 315.</summary>
    Artist = 315,

    /// <summary>Computer on which the file was written. Tag 316.</summary>
    HostComputer = 316,

    /// <summary>Prediction applied before LZW or Deflate compression. Tag 317.</summary>
    Predictor = 317,

    /// <summary>Chromaticity of the white point. Tag 318.</summary>
    WhitePoint = 318,

    /// <summary>Chromaticities of the primaries. Tag 319.</summary>
    PrimaryChromaticities = 319,

    /// <summary>Palette: all reds, all greens, all blues. Tag 320.</summary>
    ColorMap = 320,

    /// <summary>Gray levels that keep tonal detail in halftones. Tag 321.</summary>
    HalftoneHints = 321,

    /// <summary>Width of a tile in pixels. Tag 322.</summary>
    TileWidth = 322,

    /// <summary>Height of a tile in pixels. Tag 323.</summary>
    TileLength = 323,

    /// <summary>Offset of each tile. Tag 324.</summary>
    TileOffsets = 324,

    /// <summary>Compressed size of each tile in bytes. Tag 325.</summary>
    TileByteCounts = 325,

    /// <summary>Offsets of child directories. Tag 330.</summary>
    SubIfds = 330,

    /// <summary>Set of inks of separated images: 1 for CMYK. Tag 332.</summary>
    InkSet = 332,

    /// <summary>Names of the inks. Tag 333.</summary>
    InkNames = 333,

    /// <summary>Number of inks. Tag 334.</summary>
    NumberOfInks = 334,

    /// <summary>Sample values of 0 % and 100 % ink. Tag 336.</summary>
    DotRange = 336,

    /// <summary>Printing environment that the separation is meant for. Tag 337.</summary>
    TargetPrinter = 337,

    /// <summary>Meaning of the samples beyond the colour, such as alpha. Tag 338.</summary>
    ExtraSamples = 338,

    /// <summary>Number format of the samples. Tag 339.</summary>
    SampleFormat = 339,

    /// <summary>Smallest sample value, in the format of the samples. Tag 340.</summary>
    SMinSampleValue = 340,

    /// <summary>Largest sample value, in the format of the samples. Tag 341.</summary>
    SMaxSampleValue = 341,

    /// <summary>Range of the transfer function. Tag 342.</summary>
    TransferRange = 342,

    /// <summary>JPEG tables that strips or tiles share. Tag 347.</summary>
    JpegTables = 347,

    /// <summary>Offset of the JPEG stream of old-style JPEG compression. Tag 513.</summary>
    JpegInterchangeFormat = 513,

    /// <summary>Length of the JPEG stream of old-style JPEG compression. Tag 514.</summary>
    JpegInterchangeFormatLength = 514,

    /// <summary>Coefficients of the transformation from RGB to Y'CbCr. Tag 529.</summary>
    YcbcrCoefficients = 529,

    /// <summary>Chroma subsampling factors. Tag 530.</summary>
    YcbcrSubSampling = 530,

    /// <summary>Position of chroma samples relative to luma samples. Tag 531.</summary>
    YcbcrPositioning = 531,

    /// <summary>Reference values of black and white. Tag 532.</summary>
    ReferenceBlackWhite = 532,

    /// <summary>XMP packet. Tag 700.</summary>
    Xmp = 700,

    /// <summary>Copyright notice. Tag 33432.</summary>
    Copyright = 33432,

    /// <summary>IPTC metadata. Tag 33723.</summary>
    Iptc = 33723,

    /// <summary>Image resource blocks of Photoshop. Tag 34377.</summary>
    PhotoshopResources = 34377,

    /// <summary>Offset of the Exif directory. Tag 34665.</summary>
    ExifIfd = 34665,

    /// <summary>ICC profile. Tag 34675.</summary>
    IccProfile = 34675,

    /// <summary>Offset of the GPS directory. Tag 34853.</summary>
    GpsIfd = 34853,
}
