using System.Linq;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Exif;
using Korvan.CAD.FileFormats.Tiff;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>The descriptive metadata in the first directory of a TIFF.</summary>
internal static class TiffMetadata
{
    // Tags that describe strips and samples are meaningless outside this file.
    private static readonly ExifProperties[] Kept =
    [
        ExifProperties.Make, ExifProperties.Model, ExifProperties.Software, ExifProperties.Artist,
        ExifProperties.Copyright,
        ExifProperties.ImageDescription, ExifProperties.DateTime,
    ];

    internal static (ExifData? Exif, XmpPacketWrapper? Xmp) Read(byte[] data)
    {
        try
        {
            var exif = new ExifData(data);
            TiffExifIfd directory = exif.CommonTags.Directory;
            XmpPacketWrapper? xmp =
                XmpPacketWrapper.TryRead((directory.Get((int)TiffTags.Xmp) as TiffByteType)?.Values);
            foreach (TiffDataType tag in directory.Tags.Where(static tag => !Kept.Contains((ExifProperties)tag.TagId)))
            {
                directory.Remove(tag.TagId);
            }

            return (exif.Properties.Length > 0 ? exif : null, xmp);
        }
        catch (TiffImageException)
        {
            return default; // a BigTIFF, or a directory with damage that does not affect the image
        }
    }
}
