namespace Korvan.CAD;

/// <summary>Turns bytes of some form into 32-bit colours, and back.</summary>
public interface IColorConverter
{
    /// <summary>Gets the form of the bytes.</summary>
    PixelDataFormat DataFormat { get; }

    /// <summary>Turns a row of pixels into colours.</summary>
    /// <param name="rawData">The bytes of the row.</param>
    /// <param name="pixelCount">How many pixels it has.</param>
    int[] ToArgb32(byte[] rawData, int pixelCount);

    /// <summary>Turns colours into a row of pixels.</summary>
    /// <param name="argb32Pixels">The colours.</param>
    byte[] FromArgb32(int[] argb32Pixels);
}
