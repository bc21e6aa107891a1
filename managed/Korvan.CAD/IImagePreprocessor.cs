namespace Korvan.CAD;

/// <summary>Changes a picture before something else is done with it.</summary>
public interface IImagePreprocessor
{
    /// <summary>Changes a picture in place.</summary>
    /// <param name="image">The picture.</param>
    void Process(RasterImage image);
}
