namespace Korvan.CAD;

/// <summary>Preprocesses an image.</summary>
public interface IImagePreprocessor
{
    /// <summary>Changes an image in place.</summary>
    /// <param name="image">The image.</param>
    void Process(RasterImage image);
}
