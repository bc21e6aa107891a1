namespace Korvan.CAD.Raster;

/// <summary>An image of a format that has no class of its own.</summary>
internal sealed class RasterFileImage : RasterCachedImage
{
    internal RasterFileImage(DecodedFile file)
        : base(file)
    {
    }

    internal RasterFileImage(DecodedFile file, int index)
        : base(file, index)
    {
    }
}
