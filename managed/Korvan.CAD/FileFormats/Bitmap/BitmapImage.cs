using Korvan.CAD.Raster;

namespace Korvan.CAD.FileFormats.Bitmap;

/// <summary>An image that was read from a Windows bitmap.</summary>
public class BitmapImage : RasterCachedImage
{
    internal BitmapImage(DecodedFile file)
        : base(file)
    {
    }
}
