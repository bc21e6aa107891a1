using System;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Bitmap;
using Korvan.CAD.Raster.Codecs;

namespace Korvan.CAD.Raster;

/// <summary>Reads files of pixels.</summary>
internal static class RasterLoader
{
    private static readonly Dictionary<FileFormat, Func<RasterSource, DecodedFile>> Readers = new()
    {
        [FileFormat.Bmp] = BmpReader.Read,
        [FileFormat.Dicom] = DicomReader.Read,
        [FileFormat.Gif] = GifReader.Read,
        [FileFormat.Jpeg] = JpegReader.Read,
        [FileFormat.Jpeg2000] = Jpeg2000Codec.Read,
        [FileFormat.Png] = PngReader.Read,
        [FileFormat.Psd] = PsdReader.Read,
        [FileFormat.Tiff] = TiffReader.Read,
        [FileFormat.Webp] = WebPCodec.Read,
    };

    internal static bool CanRead(FileFormat format) => Readers.ContainsKey(format);

    internal static DecodedFile Decode(byte[] data, string name, FileFormat format, bool lenient, int? background = null)
    {
        try
        {
            return Readers[format](new RasterSource(data, name, lenient) { Background = background });
        }
        catch (ArgumentOutOfRangeException e)
        {
            throw new ImageLoadException($"'{name}' is damaged: {e.Message}");
        }
        catch (OutOfMemoryException e)
        {
            throw new LimitMemoryException($"'{name}' needs more memory than there is.", e);
        }
    }

    internal static Image Load(byte[] data, string name, FileFormat format, LoadOptions options)
    {
        DecodedFile file = Decode(data, name, format, options.IgnoreErrors, options.DataBackgroundColor.IsEmpty ? null : options.DataBackgroundColor.ToArgb());
        return format == FileFormat.Bmp ? new BitmapImage(file) : new RasterFileImage(file);
    }
}
