using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The indexed colours 1 to 255 as they are rendered.</summary>
internal static class AciPalette
{
    internal const int ByBlock = 0;
    internal const int ByLayer = 256;

    /// <summary>The index that shows as black on light and white on dark backgrounds.</summary>
    internal const int Contrast = IndexedColors.Contrast;

    internal static Rgba Color(int index) =>
        index is > 0 and < 256 ? Rgba.FromRgb(IndexedColors.Rgb(index)) : Rgba.Black;

    /// <summary>The colour of an index on a page: white and black change places, so that they stay visible.</summary>
    internal static Rgba Color(int index, Rgba background) =>
        index is Contrast or <= 0 or > 255 ? (background.IsLight ? Rgba.Black : Rgba.White) : Color(index);
}
