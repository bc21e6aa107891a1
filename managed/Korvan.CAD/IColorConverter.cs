namespace Korvan.CAD;

/// <summary>Converts bytes of a pixel format to 32-bit ARGB values, and back.</summary>
public interface IColorConverter
{
    /// <summary>Gets the format of the bytes.</summary>
    PixelDataFormat DataFormat { get; }

    /// <summary>Converts a row of pixels to ARGB values.</summary>
    /// <param name="rawData">The bytes of the row.</param>
    /// <param name="pixelCount">The number of pixels in the row.</param>
    int[] ToArgb32(byte[] rawData, int pixelCount);

    /// <summary>Converts ARGB values to a row of pixels.</summary>
    /// <param name="argb32Pixels">The colours.</param>
    byte[] FromArgb32(int[] argb32Pixels);
}
