using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.Raster;

/// <summary>The options that write a picture back in its own format.</summary>
internal static class OwnOptions
{
    internal static ImageOptionsBase? Of(FileFormat format) => format switch
    {
        FileFormat.Bmp => new BmpOptions { BitsPerPixel = 32 },
        FileFormat.Gif => new GifOptions(),
        FileFormat.Jpeg => new JpegOptions(),
        FileFormat.Jpeg2000 => new Jpeg2000Options(),
        FileFormat.Png => new PngOptions(),
        FileFormat.Tiff => new TiffOptions(FileFormats.Tiff.Enums.TiffExpectedFormat.TiffLzwRgba),
        FileFormat.Webp => new WebPOptions(),
        FileFormat.Psd => new PsdOptions(),
        FileFormat.Dicom => new DicomOptions(),
        _ => null,
    };
}
