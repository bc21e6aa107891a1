using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.Raster.Native;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>
/// Reads pages of red, green, blue and opacity that is not multiplied in, row by row. The usual way of libtiff multiplies
/// it in, which no division undoes exactly.
/// </summary>
internal static unsafe class TiffPlainRows
{
    private const int Samples = 4;

    internal static bool Fits(nint tiff, int width)
    {
        (TiffTags Tag, uint Value)[] wanted =
        [
            (TiffTags.BitsPerSample, 8), (TiffTags.SamplesPerPixel, Samples), (TiffTags.PlanarConfig, 1),
            (TiffTags.Photometric, (uint)TiffPhotometrics.Rgb), (TiffTags.Orientation, (uint)TiffOrientations.TopLeft),
        ];
        foreach ((TiffTags tag, uint value) in wanted)
        {
            if (Tiff.GetNumber(tiff, (int)tag) != value)
            {
                return false;
            }
        }

        return Tiff.FirstExtraSample(tiff) == (int)TiffAlphaStorage.Unassociated && Tiff.IsTiled(tiff) == 0
            && Tiff.ScanlineSize(tiff) == (nint)width * Samples;
    }

    /// <summary>Gives whether all rows could be read; the others stay as they were.</summary>
    internal static bool Read(nint tiff, PixelGrid pixels)
    {
        var row = new byte[pixels.Width * Samples];
        for (int y = 0; y < pixels.Height; y++)
        {
            fixed (byte* start = row)
            {
                if (Tiff.ReadScanline(tiff, start, (uint)y, 0) != 1)
                {
                    return false;
                }
            }

            System.Span<int> to = pixels.Row(y);
            for (int x = 0, at = 0; x < to.Length; x++, at += Samples)
            {
                to[x] = (row[at + 3] << 24) | (row[at] << 16) | (row[at + 1] << 8) | row[at + 2];
            }
        }

        return true;
    }
}
